#include "app/file_commands.h"

#include <QFileInfo>
#include <memory>
#include <utility>

#include "app/command_context.h"
#include "app/desk.h"
#include "app/open_preview.h"
#include "app/program_state.h"
#include "app/sample_files.h"
#include "app/status_bar.h"
#include "codec/graph_io.h"
#include "codec/picture_format.h"
#include "depthmap/depth_map_file.h"
#include "depthmap/level_choice.h"
#include "depthmap/ui/map_window.h"
#include "engine/ui/sirds_wnd.h"
#include "platform/file_io.h"
#include "platform/ui/busy_cursor.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"
#include "platform/vector_state.h"

namespace plenovia {

namespace {

constexpr QSize kWindowBeforePicture(200, 20);
constexpr int kMapSideBeforeFile = 400;

GraphicFormat LastFormat(const CommandContext& context) {
  return static_cast<GraphicFormat>(context.state.lastFormat);
}

// "Error Opening ...", and below it the file and the reason.
void ShowReason(CommandContext& context, const QString& what, const QString& path,
                const Error& error) {
  const QString text = what + QStringLiteral("\r") + BaseNameTitle(path) + QStringLiteral(": ") +
                       ToQString(error.message);
  ShowMessage(&context.frame, text, Commands::tr("Error"), MessageIcon::kInformation);
  context.status.SetMessage(QString());
}

// What the file tells of a stereogram. Returns what is wrong with it, or nothing.
QString TakeRecipe(TSirdsWnd& window, const std::string& comment) {
  if (comment.empty()) return {};
  auto recipe = ReadRecipe(comment);
  if (!recipe) return ToQString(recipe.error().message) + u' ' + Commands::tr("It is ignored.");
  window.SetMadeBy(std::move(*recipe));
  window.SetIsStereogram(true);
  return {};
}

// The document is open and is what its file holds; `damage` is empty when the file is whole.
void Opened(CommandContext& context, Document& document, const QString& path,
            const QString& damage) {
  document.SetFile(path);
  context.status.SetMessage(QString());
  context.state.NoteFile(path);
  SendPrivateMessage(&context.frame, PrivateMessage(WM_UPDATESTATUS));
  if (damage.isEmpty()) return;
  context.status.ShowNote(
      Commands::tr("%1: %2 What could be read is shown.").arg(BaseNameTitle(path), damage));
}

bool IsDepthMap(const QString& path, const Result<ByteBuffer>& file) {
  return (file && LooksLikeDepthMap(*file)) ||
         path.contains(QStringLiteral(".rds"), Qt::CaseInsensitive);
}

void ShowPicture(CommandContext& context, const QString& path, const Result<ByteBuffer>& file) {
  const GraphicFormat format = file ? DetectFormat(*file) : GraphicFormat::kUnknown;
  context.state.lastFormat = static_cast<int>(format);
  const QString name = ToQString(NameWhileReading(format));
  if (!name.isEmpty()) context.status.SetMessage(Commands::tr("Reading %1 File").arg(name));
  ClearUpperVectorHalves();
  auto picture =
      file.and_then([](const ByteBuffer& bytes) { return DecodePicture(std::span(bytes)); });
  if (!picture) {
    ShowReason(context, Commands::tr("Error Opening the Bitmap file"), path, picture.error());
    return;
  }
  auto* window = new TSirdsWnd(&context.desk.Area(), path, &context.frame, nullptr,
                               kWindowBeforePicture, &context.state.settings);
  context.desk.Adopt(*window);
  const QString damage = ToQString(picture->damage);
  const QString aboutRecipe = TakeRecipe(*window, picture->comment);
  window->SetImage(std::make_shared<const IndexedImage>(std::move(*picture)));
  window->SetSaved(true);
  Opened(context, *window, path, damage);
  if (damage.isEmpty() && !aboutRecipe.isEmpty()) {
    context.status.ShowNote(BaseNameTitle(path) + QStringLiteral(": ") + aboutRecipe);
  }
}

void ShowDepthMap(CommandContext& context, const QString& path, const Result<ByteBuffer>& file) {
  context.state.lastFormat = static_cast<int>(GraphicFormat::kDepthMap);
  context.status.SetMessage(Commands::tr("Reading Depth Map File"));
  auto* window = new TMapWindow(&context.desk.Area(), path, kMapSideBeforeFile, kMapSideBeforeFile,
                                &context.frame);
  const auto read = file.and_then(
      [&](const ByteBuffer& bytes) { return window->ReadDepthMap(std::span(bytes)); });
  if (!read) {
    delete window;
    ShowReason(context, Commands::tr("Error Opening the Depth Map file"), path, read.error());
    return;
  }
  context.desk.Adopt(*window);
  const bool damaged = *read == DepthMapState::kDamaged;
  Opened(context, *window, path,
         damaged ? Commands::tr("The depth map is damaged or cut off.") : QString());
}

}  // namespace

void CmFileNew(CommandContext& context) {
  const QSize size = context.state.newMapSize.Of(context.state.settings);
  auto* map = new TMapWindow(&context.desk.Area(), Commands::tr("untitled"), size.width(),
                             size.height(), &context.frame);
  map->SetLevelAtHand(LevelThatStandsOut(kLowestLevel));
  context.desk.Adopt(*map);
}

void CmFileOpen(CommandContext& context) {
  context.status.ClearHint();
  FileQuestion question;
  question.title = Commands::tr("Open");
  question.filters = ToQString(OpenFileTypes());
  question.preselected = static_cast<int>(FilterEntries(question.filters).size());
  question.defaultExtension = ToQString(OpenExtension(LastFormat(context)));
  question.folder = context.state.openFolder;
  question.place = SampleFolder();
  question.extend = &AddOpenPreview;
  const auto path = AskOpenFile(&context.frame, question);
  if (!path) return;
  context.state.openFolder = QFileInfo(*path).absolutePath();
  OpenByName(context, *path);
}

void OpenByName(CommandContext& context, const QString& path) {
  const BusyCursor busy(context.frame);
  RepaintAll(context);
  const auto file = ReadFile(ToPath(path));
  IsDepthMap(path, file) ? ShowDepthMap(context, path, file) : ShowPicture(context, path, file);
}

void OpenPicture(CommandContext& context, const QString& path) {
  const auto file = ReadFile(ToPath(path));
  const bool map = file && LooksLikeDepthMap(*file);
  map ? ShowDepthMap(context, path, file) : ShowPicture(context, path, file);
}

void OpenDepthMap(CommandContext& context, const QString& path) {
  ShowDepthMap(context, path, ReadFile(ToPath(path)));
}

}  // namespace plenovia
