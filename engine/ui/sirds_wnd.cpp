#include "engine/ui/sirds_wnd.h"

#include <QPointer>
#include <utility>

#include "documents/ui/commands.h"
#include "documents/ui/notice_bar.h"
#include "engine/ui/depth_range_hint.h"
#include "engine/ui/frame_monitor.h"
#include "engine/ui/screen_wnd.h"
#include "images/ui/figure_titles.h"
#include "platform/ui/message_box.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

// Shows the busy cursor in a window for as long as it lives, or the window does.
class BusyWindow {
 public:
  explicit BusyWindow(Document& window) : window_(&window) { window.ShowBusy(true); }
  BusyWindow(const BusyWindow&) = delete;
  BusyWindow& operator=(const BusyWindow&) = delete;
  ~BusyWindow() {
    if (window_) window_->ShowBusy(false);
  }

 private:
  QPointer<Document> window_;
};

tl::unexpected<Error> NoPattern() {
  return Failure(
      ErrorCode::kInvalid,
      TSirdsWnd::tr("There is no pattern that can be read. Open a picture and press Add in "
                    "SIRDS Patterns, or install the program again.")
          .toStdString());
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

SirdRun TSirdsWnd::WithNames(SirdRun run, RecipeSource source) const {
  run.source = std::move(source);
  run.patternFile = PatternFileOf(patterns_);
  return run;
}

Result<void> TSirdsWnd::MakeSirdFromDepthMap(std::shared_ptr<const LevelGrid> map) {
  auto pattern = CurrentPattern();
  const std::string name = source_.window ? FileNameOf(*source_.window) : std::string();
  return Draw(WithNames(RunFromMap(std::move(map), std::move(pattern), *settings_),
                        {RecipeKind::kDepthMap, name}));
}

Result<void> TSirdsWnd::MakeSirdFromFine(FineDrawing draw, RecipeSource source) {
  auto pattern = CurrentPattern();
  return Draw(
      WithNames(RunFromFine(std::move(draw), std::move(pattern), *settings_), std::move(source)));
}

Result<void> TSirdsWnd::MakeSirdFromFigure(std::int32_t code) {
  auto pattern = CurrentPattern();
  auto background = settings_->useBmp != 0 ? Picture() : nullptr;
  const std::string under = background ? FileNameOf(*this) : std::string();
  const QString figure = FigureTitle(-code - 1);
  const QString caption = Picture() ? GetTitle() : BaseNameTitle(figure);
  return Draw(
      WithNames(RunFromFigure(code, std::move(background), caption, std::move(pattern), *settings_),
                {RecipeKind::kFigure, figure.toStdString(), under}));
}

Result<void> TSirdsWnd::MakeAgain(const SirdRun& run) {
  return Draw(run, WhenStopped::kStays);
}

std::string TSirdsWnd::Comment() const {
  if (!recipe_ || !keepsRecipe_) return {};
  Recipe recipe = *recipe_;
  // It may have got its file since.
  if (source_.window && recipe.source.name.empty())
    recipe.source.name = FileNameOf(*source_.window);
  return RecipeText(recipe);
}

Result<void> TSirdsWnd::Draw(const SirdRun& run, WhenStopped whenStopped) {
  const QPointer<TSirdsWnd> self(this);
  if (!run.pattern) {
    if (!Picture()) DropAndClose();
    return NoPattern();
  }
  const BusyWindow busy(*this);
  // A run that began later, inside this one, may have drawn the window or closed it.
  const auto isOver = [&self, drawings = drawings_] {
    return !self || self->isHidden() || self->drawings_ != drawings;
  };
  FrameMonitor monitor(Frame());
  monitor.UpdateStatusAtStart();
  monitor.EndWhen(isOver);
  auto made = run.Make(monitor);
  if (isOver()) return Failure(ErrorCode::kCancelled, "The run is over.");
  if (!made) {
    const bool failed = made.error().code != ErrorCode::kCancelled;
    const bool stopped = monitor.IsStopped() && whenStopped == WhenStopped::kCloses;
    if (stopped || (failed && !Picture())) DropAndClose();
    return tl::unexpected(made.error());
  }
  ++drawings_;
  if (!Picture()) isStereogram_ = true;
  recipe_ = run.MadeBy();
  SetSaved(false);
  HideNotice();
  SetImage(std::make_shared<const IndexedImage>(std::move(*made)));
  TellFittedRange(run);
  return {};
}

void TSirdsWnd::TellFittedRange(const SirdRun& run) {
  if (!run.range.fitted) return;
  const NoticeAction asSet{tr("Use the range as set"), [this, run] { MakeWithRangeAsSet(run); }};
  const NoticeAction noMore{
      tr("Do not fit again"), [this, asSet] {
        SendPrivateMessage(Frame(), PrivateMessage(WM_USERANGEASSET));
        ShowNotice({tr("From now on the range is used as set. \"Fit the depth range\" in SIRDS "
                       "Settings changes that."),
                    {asSet}});
      }};
  ShowNotice(
      {FittedRangeText(run.range, run.settings), {asSet, noMore}, ToQString(run.range.notice)});
}

void TSirdsWnd::MakeWithRangeAsSet(const SirdRun& run) {
  const auto fitted = std::make_shared<const SirdRun>(run);  // the notice and what it keeps go
  const QPointer<TSirdsWnd> self(this);
  const QPointer<QWidget> owner = window();
  const int drawings = drawings_;
  HideNotice();
  const auto made = Draw(fitted->WithRangeAsSet(), WhenStopped::kStays);
  if (made) return;
  if (self && drawings_ == drawings) TellFittedRange(*fitted);
  if (owner) ShowFailure(owner, made.error());
}

void TSirdsWnd::DropAndClose() {
  ++drawings_;
  SetImage(nullptr);
  SetSaved(true);
  QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

bool TSirdsWnd::HandlesCommand(int command) const {
  return command == kCmFullScreen || (IsFigureCommand(command) && settings_->useBmp != 0) ||
         TPictureWnd::HandlesCommand(command);
}

bool TSirdsWnd::CommandEnabled(int command) const {
  return TPictureWnd::HandlesCommand(command) ? TPictureWnd::CommandEnabled(command)
                                              : HandlesCommand(command);
}

void TSirdsWnd::RunCommand(int command) {
  if (command == kCmFullScreen) {
    (new TScreenWnd(window(), Picture()))->showFullScreen();
  } else if (IsFigureCommand(command)) {
    QWidget* owner = window();
    const auto made = MakeSirdFromFigure(-(command - kCmFirstFigure + 1));
    if (!made) ShowFailure(owner, made.error());
  } else {
    TPictureWnd::RunCommand(command);
  }
}

QString StereogramTitle(const Document& source) {
  return source.GetTitle() + QStringLiteral("{sird}");
}

std::string FileNameOf(const Document& document) {
  return ToPath(document.File()).filename().string();
}

std::string PatternFileOf(const TSirdPatt* patterns) {
  return patterns != nullptr ? PatternFileName(patterns->GetCurrentNumber()) : std::string();
}

Result<TSirdResult> MakeSirdFromBitmap(Document& source, const TSirdPatt* patterns,
                                       const TSirdsSettings& settings) {
  const DocumentDepth depth = source.Depth();
  const auto pattern = patterns != nullptr ? patterns->GetCurrentBitmap() : nullptr;
  if (!depth.picture) {
    return Failure(ErrorCode::kInvalid,
                   TSirdsWnd::tr("There is no picture in the window.").toStdString());
  }
  if (!pattern) return NoPattern();
  const QPointer<Document> window(&source);
  const BusyWindow busy(source);
  TSirdResult result;
  result.run = RunFromPicture(depth.picture, depth.zoom, pattern, settings);
  result.run.source = {
      RecipeKind::kPicture, FileNameOf(source), {}, static_cast<std::int32_t>(depth.zoom * 100)};
  result.run.patternFile = PatternFileOf(patterns);
  result.title = StereogramTitle(source);
  FrameMonitor monitor(source.Frame());
  monitor.BeepOnStop();
  monitor.EndWhen([&window] { return !window || window->isHidden(); });
  auto made = result.run.Make(monitor);
  if (!made) return tl::unexpected(made.error());
  result.bitmap = std::make_shared<const IndexedImage>(std::move(*made));
  return result;
}

}  // namespace plenovia
