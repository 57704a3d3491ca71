#include "app/sirds_commands.h"

#include <QPointer>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "app/command_context.h"
#include "app/desk.h"
#include "app/file_commands.h"
#include "app/make_again.h"
#include "app/program_state.h"
#include "app/save_commands.h"
#include "app/settings_path.h"
#include "app/status_bar.h"
#include "codec/picture_format.h"
#include "depthmap/depth_map_file.h"
#include "documents/ui/commands.h"
#include "engine/fit_depth_range.h"
#include "engine/ui/sett_dialog.h"
#include "engine/ui/sirds_wnd.h"
#include "engine/ui/wizard_run.h"
#include "figures/sirdmath.h"
#include "images/add_pattern.h"
#include "images/ui/figure_titles.h"
#include "images/ui/patt_dialog.h"
#include "platform/file_io.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"
#include "sources/ui/formula_dialog.h"

namespace plenovia {

namespace {

void MakeFromPicture(CommandContext& context, Document& source) {
  const QString proposed = ProposedStereogramFile(source);
  SourcePlace place{&source, source.File()};
  auto made = MakeSirdFromBitmap(source, context.state.patterns.get(), context.state.settings);
  if (!made) {
    ShowFailure(&context.frame, made.error());
    return;
  }
  const QSize size(made->bitmap->width(), made->bitmap->height());
  auto* window = new TSirdsWnd(&context.desk.Area(), made->title, &context.frame, nullptr, size,
                               &context.state.settings);
  window->SetIsStereogram(true);
  window->ProposeFile(proposed);
  window->SetMadeBy(made->run.MadeBy());
  window->SetSource(std::move(place));
  context.desk.Adopt(*window);
  window->SetImage(std::move(made->bitmap));
  window->TellFittedRange(made->run);
}

// In a new window, which `make` fills. It may be gone when that returns. `proposed` is the file
// that it may be saved as, and may be empty.
void MakeInNewWindow(CommandContext& context, const QString& title, const QString& proposed,
                     const QSize& size, const std::function<Result<void>(TSirdsWnd&)>& make) {
  const QPointer<TSirdsWnd> window = new TSirdsWnd(&context.desk.Area(), title, &context.frame,
                                                   nullptr, size, &context.state.settings);
  window->ProposeFile(proposed);
  context.desk.Adopt(*window);
  const auto made = make(*window);
  if (!made) {
    ShowFailure(&context.frame, made.error());
  } else if (window) {
    window->SetIsStereogram(true);
    SendPrivateMessage(&context.frame, PrivateMessage(WM_UPDATESTATUS));
  }
}

void MakeFromLevels(CommandContext& context, Document& map,
                    const std::shared_ptr<const LevelGrid>& levels) {
  context.status.SetMessage(QString());
  context.status.SetImageText(QString());
  MakeInNewWindow(context, StereogramTitle(map), ProposedStereogramFile(map),
                  QSize(levels->GridWidth(), levels->GridHeight()), [&](TSirdsWnd& window) {
                    window.SetSource({&map, map.File()});
                    return window.MakeSirdFromDepthMap(levels);
                  });
}

// What the wizard's size page asks for.
std::optional<SourceLevels> LevelsOfSource(const WizardSource& source,
                                           const TSirdsSettings& settings) {
  if (source.type == kFigureSource) return SourceLevels{kFigureLevels, SourceKind::kShape};
  const auto file = ReadFile(ToPath(source.name));
  if (!file) return std::nullopt;
  if (source.type == kDepthMapSource || LooksLikeDepthMap(*file)) {
    const auto map = DecodeDepthMap(*file);
    if (!map) return std::nullopt;
    return SourceLevels{LevelsOf(map->list), SourceKind::kShape};
  }
  const auto picture = DecodePicture(std::span(*file));
  if (!picture) return std::nullopt;
  return SourceLevels{LevelsOf(*picture, settings.depthSel), SourceKind::kImage};
}

// With the range as set when `asSet`. A run reads the settings when it starts.
void MakeLater(CommandContext& context, int command, bool asSet) {
  TSirdsSettings& settings = context.state.settings;
  const std::int32_t fitRange = settings.fitRange;
  if (asSet) settings.fitRange = 0;
  context.runLater(command);
  QMetaObject::invokeMethod(
      &context.frame, [&settings, fitRange] { settings.fitRange = fitRange; },
      Qt::QueuedConnection);
}

}  // namespace

void CmMakeSirds(CommandContext& context) {
  if (Document* active = context.desk.Active()) {
    const DocumentDepth depth = active->Depth();
    if (active->IsStereogram()) {
      ShowMessage(&context.frame,
                  Commands::tr("The active window is already a SIRD.") + u'\r' +
                      Commands::tr("Make Again (F5) makes it anew with the settings of now."),
                  Commands::tr("Note"), MessageIcon::kInformation);
    } else if (depth.levels) {
      MakeFromLevels(context, *active, depth.levels);
    } else {
      MakeFromPicture(context, *active);
    }
  }
  RepaintAll(context);
}

void CmFigure(CommandContext& context, int command) {
  const int number = command - kCmFirstFigure;
  if (number < 0 || number >= _GetFigureCount()) return;
  const TSirdsSettings& settings = context.state.settings;
  MakeInNewWindow(context, FigureTitle(number), QString(), QSize(settings.w, settings.h),
                  [number](TSirdsWnd& window) { return window.MakeSirdFromFigure(-(number + 1)); });
}

void CmFormula(CommandContext& context) {
  FormulaDialog dialog(&context.frame, context.state.formula);
  if (dialog.exec() != QDialog::Accepted) return;
  const Formula formula = context.state.formula = dialog.Chosen();
  const TSirdsSettings& settings = context.state.settings;
  MakeInNewWindow(context, Commands::tr("Formula"), QString(), QSize(settings.w, settings.h),
                  [&formula](TSirdsWnd& window) {
                    return window.MakeSirdFromFine(DrawingOf(formula), RecipeSourceOf(formula));
                  });
}

void CmWizard(CommandContext& context) {
  const TSirdsSettings& settings = context.state.settings;
  const auto source = RunWizard(
      &context.frame, context.state.settings, *context.state.patterns, SettingsPath(),
      [&settings](const WizardSource& chosen) { return LevelsOfSource(chosen, settings); });
  Q_EMIT context.state.PatternChanged();
  if (!source) return;
  if (source->type == kFigureSource) {
    MakeLater(context, kCmFirstFigure + source->figure, source->rangeTyped);
    return;
  }
  if (source->type == kBitmapSource) {
    OpenPicture(context, source->name);
  } else {
    OpenDepthMap(context, source->name);
  }
  ShowBusyCursor(context.frame, false);
  MakeLater(context, kCmMakeSirds, source->rangeTyped);
}

void CmSettings(CommandContext& context) {
  TSettDialog(&context.frame, context.state.settings).exec();
}

void CmPatterns(CommandContext& context) {
  const Document* active = context.desk.Active();
  const bool mayAdd = active != nullptr && active->GetWindowKind() == kPictureWindow;
  TPattDialog(&context.frame, *context.state.patterns, mayAdd).exec();
  Q_EMIT context.state.PatternChanged();
}

Result<void> AddPatternFromPicture(CommandContext& context) {
  const Document* active = context.desk.Active();
  const auto picture = active != nullptr ? active->Picture() : nullptr;
  if (!picture) return Failure(ErrorCode::kInvalid, "there is no picture in the active window");
  return AddPattern(*context.state.patterns, *picture);
}

}  // namespace plenovia
