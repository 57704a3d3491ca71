#include "engine/ui/sirds_wnd.h"

#include <QPointer>
#include <utility>

#include "engine/generation.h"
#include "engine/ui/figure_caption.h"
#include "engine/ui/frame_monitor.h"
#include "engine/ui/screen_wnd.h"
#include "figures/sirdmath.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kFullScreen = 112;

// Shows the busy cursor in a window for as long as it lives, or the window does.
class BusyCursor {
 public:
  using SetCursor = std::function<void(int)>;
  BusyCursor(QWidget* window, SetCursor set) : window_(window), set_(std::move(set)) {
    set_(kBusyCursor);
  }
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
  ~BusyCursor() {
    if (window_) set_(kNormalCursor);
  }

 private:
  QPointer<QWidget> window_;
  SetCursor set_;
};

Result<void> NoPattern() {
  return Failure(ErrorCode::kInvalid, "There is no pattern to use.");
}

}  // namespace

TSirdsWnd::TSirdsWnd(QMdiArea* client, const QString& title, QWidget* frame,
                     std::shared_ptr<const IndexedImage> picture, const QSize& size,
                     const TSirdsSettings* settings)
    : TPictureWnd(client, title, frame, std::move(picture), size), settings_(settings) {}

std::shared_ptr<const IndexedImage> TSirdsWnd::CurrentPattern() {
  SendPrivateMessage(Frame(), PrivateMessage(WM_NEEDPATTERNS, this));
  return patterns_ != nullptr ? patterns_->GetCurrentBitmap() : nullptr;
}

Result<TSirdResult> TSirdsWnd::MakeSirdFromBitmap() {
  const auto source = Picture();
  const auto pattern = CurrentPattern();
  if (!source) return Failure(ErrorCode::kInvalid, "There is no picture in the window.");
  if (!pattern) return tl::unexpected(NoPattern().error());
  const BusyCursor busy(this, [this](int id) { SetCursorId(id); });
  const TSirdsSettings settings = *settings_;
  TSirdResult result;
  result.title = GetTitle() + QStringLiteral("{sird}");
  FrameMonitor monitor(Frame());
  monitor.BeepOnStop();
  auto made = plenovia::MakeSirdFromBitmap(*source, Zoom(), {*pattern, settings, monitor});
  if (!made) return tl::unexpected(made.error());
  result.bitmap = std::make_shared<const IndexedImage>(std::move(*made));
  return result;
}

Result<void> TSirdsWnd::MakeSirdFromDepthMap(const LevelGrid& map) {
  const QPointer<TSirdsWnd> self(this);
  const auto pattern = CurrentPattern();
  if (!pattern) return Finish(tl::unexpected(NoPattern().error()));
  const BusyCursor busy(this, [this](int id) { SetCursorId(id); });
  const TSirdsSettings settings = *settings_;
  FrameMonitor monitor(Frame());
  monitor.UpdateStatusAtStart();
  auto made = plenovia::MakeSirdFromDepthMap(map, {*pattern, settings, monitor});
  if (!self) return Failure(ErrorCode::kCancelled, "The window was closed.");
  return Finish(std::move(made));
}

Result<void> TSirdsWnd::MakeSirdFromFigure(std::int32_t code) {
  const QPointer<TSirdsWnd> self(this);
  const auto pattern = CurrentPattern();
  if (!pattern) return Finish(tl::unexpected(NoPattern().error()));
  const BusyCursor busy(this, [this](int id) { SetCursorId(id); });
  const TSirdsSettings settings = *settings_;
  const auto background = settings.useBmp != 0 ? Picture() : nullptr;
  FigureRun run;
  run.level = &_GetFigureLevel;
  run.code = code;
  run.background = background.get();
  run.caption = [title = GetTitle()](IndexedImage& picture) { DrawFigureCaption(picture, title); };
  FrameMonitor monitor(Frame());
  monitor.UpdateStatusAtStart();
  auto made = plenovia::MakeSirdFromFigure(run, {*pattern, settings, monitor});
  if (!self) return Failure(ErrorCode::kCancelled, "The window was closed.");
  return Finish(std::move(made));
}

Result<void> TSirdsWnd::Finish(Result<IndexedImage> made) {
  if (!made) {
    // A picture that was here before is given up only when the user stopped the run.
    if (made.error().code == ErrorCode::kCancelled || !Picture()) DropAndClose();
    return tl::unexpected(made.error());
  }
  SetSaved(false);
  SetImage(std::make_shared<const IndexedImage>(std::move(*made)));
  return {};
}

void TSirdsWnd::DropAndClose() {
  SetImage(nullptr);
  SetSaved(true);
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

bool TSirdsWnd::HandlesCommand(int command) const {
  return command == kFullScreen;
}

void TSirdsWnd::RunCommand(int command) {
  if (command == kFullScreen) (new TScreenWnd(window(), Picture()))->showFullScreen();
}

}  // namespace plenovia
