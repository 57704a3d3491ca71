#include "app/make_again.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <array>
#include <charconv>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/command_context.h"
#include "app/desk.h"
#include "app/open_preview.h"
#include "app/program_state.h"
#include "app/sample_files.h"
#include "app/status_bar.h"
#include "codec/graph_io.h"
#include "codec/picture_format.h"
#include "depthmap/depth_map_file.h"
#include "engine/ui/sirds_wnd.h"
#include "images/ui/figure_titles.h"
#include "platform/file_io.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/message_box.h"
#include "platform/ui/text.h"
#include "platform/vector_state.h"

namespace plenovia {

namespace {

struct FoundSource {
  DocumentDepth depth;
  SourcePlace place;
  QString damage{};  // a sentence about a file that is not whole
};

bool HasDepth(const DocumentDepth& depth) {
  return depth.picture || depth.levels;
}

std::optional<FoundSource> FromWindow(Document* document, const TSirdsWnd& stereogram) {
  if (document == nullptr || document == &stereogram) return std::nullopt;
  DocumentDepth depth = document->Depth();
  if (!HasDepth(depth)) return std::nullopt;
  return FoundSource{std::move(depth), {document, document->File()}};
}

Result<FoundSource> FromFile(const QString& path) {
  const auto file = ReadFile(ToPath(path));
  if (!file) return tl::unexpected(file.error());
  FoundSource found{{}, {nullptr, path}};
  if (LooksLikeDepthMap(*file)) {
    auto map = DecodeDepthMap(*file);
    if (!map) return tl::unexpected(map.error());
    if (map->damaged) found.damage = Commands::tr("The depth map is damaged or cut off.");
    found.depth.levels = std::make_shared<const TDepthList>(std::move(map->list));
    return found;
  }
  ClearUpperVectorHalves();
  auto picture = DecodePicture(std::span(*file));
  if (!picture) return tl::unexpected(picture.error());
  found.damage = ToQString(picture->damage);
  found.depth.picture = std::make_shared<const IndexedImage>(std::move(*picture));
  return found;
}

// Looks for a file of this name, which may be empty, as the source of `stereogram`.
class Search {
 public:
  Search(CommandContext& context, const TSirdsWnd& stereogram, const std::string& name)
      : context_(context), stereogram_(stereogram), name_(PathToQString(name)) {}

  // Where it was.
  std::optional<FoundSource> InItsPlace() const {
    const SourcePlace& place = stereogram_.Source();
    auto found = FromWindow(place.window, stereogram_);
    return found ? found : InFile(place.file);
  }
  std::optional<FoundSource> ByName() const {
    if (name_.isEmpty()) return std::nullopt;
    for (QMdiSubWindow* window : context_.desk.Area().subWindowList()) {
      auto* document = qobject_cast<Document*>(window);
      if (document == nullptr || QFileInfo(document->File()).fileName() != name_) continue;
      if (auto found = FromWindow(document, stereogram_)) return found;
    }
    for (const QString& path : Candidates()) {
      if (auto found = InFile(path)) return found;
    }
    return std::nullopt;
  }
  // Nothing, too, when the file that the user chooses cannot be read, which he is told.
  std::optional<FoundSource> Ask() const {
    FileQuestion question;
    question.title = name_.isEmpty() ? Commands::tr("What is the stereogram made from?")
                                     : Commands::tr("Where is %1?").arg(name_);
    question.filters = ToQString(OpenFileTypes());
    question.preselected = static_cast<int>(FilterEntries(question.filters).size());
    question.folder = context_.state.openFolder;
    question.place = SampleFolder();
    question.extend = &AddOpenPreview;
    const auto path = AskOpenFile(&context_.frame, question);
    if (!path) return std::nullopt;
    auto found = FromFile(*path);
    if (found) return std::move(*found);
    ShowFailure(&context_.frame, found.error());
    return std::nullopt;
  }

 private:
  std::vector<QString> Candidates() const {
    std::vector<QString> paths;
    if (!stereogram_.File().isEmpty()) {
      paths.push_back(QFileInfo(stereogram_.File()).dir().filePath(name_));
    }
    for (const auto& recent : context_.state.recentFiles.Existing()) {
      if (PathToQString(recent.filename()) == name_) paths.push_back(PathToQString(recent));
    }
    return paths;
  }
  std::optional<FoundSource> InFile(const QString& path) const {
    if (path.isEmpty() || QFileInfo(path) == QFileInfo(stereogram_.File())) return std::nullopt;
    auto found = FromFile(path);
    return found ? std::optional(std::move(*found)) : std::nullopt;
  }

  CommandContext& context_;
  const TSirdsWnd& stereogram_;
  QString name_;
};

// Asks when it is nowhere. Nothing when the user cancels.
std::optional<FoundSource> FindSource(CommandContext& context, const TSirdsWnd& stereogram,
                                      const std::string& name) {
  const Search search(context, stereogram, name);
  if (auto found = search.InItsPlace()) return found;
  if (auto found = search.ByName()) return found;
  return search.Ask();
}

std::shared_ptr<const IndexedImage> CurrentTile(CommandContext& context) {
  const TSirdPatt* patterns = context.state.patterns.get();
  return patterns != nullptr ? patterns->GetCurrentBitmap() : nullptr;
}

// The run that makes the stereogram of `recipe` anew, and where its source was found.
struct NewRun {
  SirdRun run;
  SourcePlace place{};
  QString damage{};
};

std::optional<NewRun> RunOfFigure(CommandContext& context, const TSirdsWnd& stereogram,
                                  const Recipe& recipe) {
  const QString title = ToQString(recipe.source.name);
  const auto number = static_cast<std::int32_t>(FigureTitles().indexOf(title));
  if (number < 0) {
    ShowMessage(&context.frame, Commands::tr("There is no figure %1.").arg(title),
                Commands::tr("Note"), MessageIcon::kInformation);
    return std::nullopt;
  }
  FoundSource background;
  if (!recipe.source.background.empty()) {
    auto found = FindSource(context, stereogram, recipe.source.background);
    if (!found) return std::nullopt;
    background = std::move(*found);
  }
  const QString caption = background.depth.picture ? stereogram.GetTitle() : BaseNameTitle(title);
  NewRun made{RunFromFigure(-(number + 1), background.depth.picture, caption, CurrentTile(context),
                            context.state.settings),
              background.place, background.damage};
  made.run.source = recipe.source;
  return made;
}

std::optional<NewRun> RunOfSource(CommandContext& context, const TSirdsWnd& stereogram,
                                  const Recipe& recipe) {
  auto found = FindSource(context, stereogram, recipe.source.name);
  if (!found) return std::nullopt;
  const auto pattern = CurrentTile(context);
  const TSirdsSettings& settings = context.state.settings;
  const std::string name = ToPath(found->place.file).filename().string();
  if (found->depth.levels) {
    NewRun made{RunFromMap(found->depth.levels, pattern, settings), found->place, found->damage};
    made.run.source = {RecipeKind::kDepthMap, name};
    return made;
  }
  const std::int32_t zoom = recipe.source.zoom;
  NewRun made{RunFromPicture(found->depth.picture, zoom / 100.0, pattern, settings), found->place,
              found->damage};
  made.run.source = {RecipeKind::kPicture, name, {}, zoom};
  return made;
}

constexpr char kReach[] = "--reach ";

std::optional<NewRun> RunOfFormula(CommandContext& context, const Recipe& recipe) {
  Formula formula{recipe.source.name, Formula().reach};
  const std::string& shape = recipe.source.shape;
  if (shape.starts_with(kReach)) {
    std::from_chars(shape.data() + sizeof kReach - 1, shape.data() + shape.size(), formula.reach);
  }
  if (const auto checked = CheckFormula(formula); !checked) {
    ShowFailure(&context.frame, checked.error());
    return std::nullopt;
  }
  NewRun made{RunFromFine(DrawingOf(formula), CurrentTile(context), context.state.settings)};
  made.run.source = recipe.source;
  return made;
}

std::optional<NewRun> RunOf(CommandContext& context, const TSirdsWnd& stereogram,
                            const Recipe& recipe) {
  switch (recipe.source.kind) {
    case RecipeKind::kFigure:
      return RunOfFigure(context, stereogram, recipe);
    case RecipeKind::kFormula:
      return RunOfFormula(context, recipe);
    case RecipeKind::kText:
      ShowFailure(&context.frame, {ErrorCode::kUnsupported,
                                   "A stereogram of a text can only be made again with sirds."});
      return std::nullopt;
    case RecipeKind::kPicture:
    case RecipeKind::kDepthMap:
      break;
  }
  return RunOfSource(context, stereogram, recipe);
}

}  // namespace

FineDrawing DrawingOf(const Formula& formula) {
  return [formula](const RunInput& input) {
    return DrawFormula(formula, input.settings.w, input.settings.h, input.threads, input.monitor);
  };
}

RecipeSource RecipeSourceOf(const Formula& formula) {
  std::array<char, 40> reach{};
  const auto written = std::to_chars(reach.data(), reach.data() + reach.size(), formula.reach);
  return {
      RecipeKind::kFormula, formula.text, {}, 100, kReach + std::string(reach.data(), written.ptr)};
}

void CmMakeAgain(CommandContext& context) {
  const QPointer<TSirdsWnd> stereogram = qobject_cast<TSirdsWnd*>(context.desk.Active());
  if (!stereogram || stereogram->MadeBy() == nullptr) return;
  const Recipe recipe = *stereogram->MadeBy();
  auto anew = RunOf(context, *stereogram, recipe);
  if (!anew || !stereogram) return;
  anew->run.patternFile = PatternFileOf(context.state.patterns.get());
  stereogram->SetSource(anew->place);
  const auto made = stereogram->MakeAgain(anew->run);
  if (!made) {
    ShowFailure(&context.frame, made.error());
    return;
  }
  const QString name = QFileInfo(anew->place.file).fileName();
  if (!anew->damage.isEmpty()) {
    context.status.ShowNote(
        Commands::tr("%1: %2 What could be read is used.").arg(name, anew->damage));
  } else if (!name.isEmpty()) {
    context.status.ShowNote(Commands::tr("Made again from %1.").arg(name),
                            QFileInfo(anew->place.file).absolutePath());
  }
}

}  // namespace plenovia
