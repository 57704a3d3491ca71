#include "live/ui/live_model.h"

#include <algorithm>
#include <cstdint>
#include <new>
#include <utility>

#include "images/ui/figure_titles.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

// Of a map whose levels are copied for the worker.
constexpr std::int64_t kMostPoints = std::int64_t{1} << 25;
constexpr int kFirstFigure = 15;  // one with many levels

}  // namespace

LiveModel::LiveModel(QObject* parent, TSirdsSettings& settings,
                     std::function<TSirdPatt*()> patterns)
    : QObject(parent), settings_(settings), patterns_(std::move(patterns)), figure_(kFirstFigure) {
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, &LiveModel::AskWorker);
  connect(&worker_, &LiveWorker::PictureMade, this, &LiveModel::PictureMade);
  connect(&worker_, &LiveWorker::LevelsCounted, this, &LiveModel::LevelsCounted);
  connect(&worker_, &LiveWorker::Measured, this, &LiveModel::Measured);
}

void LiveModel::Unfollow() {
  if (document_) disconnect(document_, nullptr, this, nullptr);
  document_.clear();
  snapshot_.reset();
  read_.reset();
}

void LiveModel::Follow(Document* document) {
  if (document != nullptr && document != document_ && !document->IsStereogram()) {
    const DocumentDepth depth = document->Depth();
    if (depth.picture || depth.levels) {
      Unfollow();
      document_ = document;
      connect(document, &Document::DepthChanged, this, &LiveModel::RowsChanged);
      connect(document, &QObject::destroyed, this, &LiveModel::Refresh);
    }
  }
  Refresh();
}

void LiveModel::ShowFigure(int number) {
  Unfollow();
  figure_ = number;
  Refresh();
}

void LiveModel::RowsChanged(int first, int end) {
  if (firstChanged_ >= endChanged_) {
    firstChanged_ = first;
    endChanged_ = end;
  } else {
    firstChanged_ = std::min(firstChanged_, first);
    endChanged_ = std::max(endChanged_, end);
  }
  Refresh();
}

void LiveModel::Refresh() {
  if (watched_) soon_.start(0);
}

void LiveModel::SetWatched(bool watched) {
  if (watched_ == watched) return;
  watched_ = watched;
  if (watched) {
    Refresh();
  } else {
    soon_.stop();
    worker_.Drop();
    asked_.reset();
  }
}

void LiveModel::SetView(LiveView view) {
  if (request_.view == view) return;
  request_.view = view;
  Refresh();
}

void LiveModel::SetFit(bool fit) {
  if (request_.fit == fit) return;
  request_.fit = fit;
  Refresh();
}

void LiveModel::SetPane(const QSize& pixels) {
  if (request_.pane == pixels) return;
  request_.pane = pixels;
  Refresh();
}

void LiveModel::SetRelief(const ReliefView& relief) {
  if (request_.relief == relief) return;
  request_.relief = relief;
  Refresh();
}

void LiveModel::SetMillimetresPerPixel(double millimetres) {
  if (request_.millimetresPerPixel == millimetres) return;
  request_.millimetresPerPixel = millimetres;
  Refresh();
}

void LiveModel::Edit(const std::function<void(TSirdsSettings&)>& edit) {
  const TSirdsSettings before = settings_;
  edit(settings_);
  const bool exchanged = settings_.zmin > settings_.zmax;
  settings_ = Settle(settings_);
  if (exchanged) std::swap(settings_.zmin, settings_.zmax);
  if (settings_ == before) return;
  Q_EMIT SettingsEdited();
  Refresh();
}

void LiveModel::ChoosePattern(int index) {
  TSirdPatt* library = Patterns();
  if (library == nullptr || index == library->GetCurrentIndex()) return;
  library->SelectPattern(index);
  Q_EMIT PatternChosen();
  Refresh();
}

// Called as its window is, whose title becomes the caption.
LiveSource LiveModel::FigureSource() const {
  return {.figure = -(figure_ + 1), .title = BaseNameTitle(FigureTitle(figure_))};
}

// The source as it is now. Levels are copied, as the document goes on with them.
LiveSource LiveModel::ReadSource() {
  if (!document_) return FigureSource();
  const DocumentDepth depth = document_->Depth();
  if (depth.picture && !document_->IsStereogram()) {
    return {.picture = depth.picture, .zoom = depth.zoom, .title = document_->GetTitle()};
  }
  if (!depth.levels) return FigureSource();
  const std::int64_t points = std::int64_t{depth.levels->GridWidth()} * depth.levels->GridHeight();
  if (points > kMostPoints) return {};
  if (!snapshot_ || read_.lock() != depth.levels) {
    snapshot_ = LevelSnapshot::Of(*depth.levels);
    read_ = depth.levels;
  } else if (firstChanged_ < endChanged_) {
    snapshot_ = snapshot_->Updated(*depth.levels, firstChanged_, endChanged_);
  }
  firstChanged_ = endChanged_ = 0;
  return {.levels = snapshot_, .title = document_->GetTitle()};
}

void LiveModel::AskWorker() {
  LiveRequest request = request_;
  try {
    request.source = ReadSource();
  } catch (const std::bad_alloc&) {
    request.source = {};
  }
  request.settings = settings_;
  const TSirdPatt* library = patterns_();
  request.pattern = library != nullptr ? library->GetCurrentBitmap() : nullptr;
  if (asked_ && request == *asked_) return;
  asked_ = request_ = request;
  Q_EMIT RequestChanged();
  if (request.source.IsNone() || !request.pattern || request.pane.isEmpty()) {
    const auto picture = std::make_shared<LivePicture>();
    picture->problem = request.pattern ? tr("This map is too large to be shown live.")
                                       : tr("There is no pattern that can be read.");
    Q_EMIT PictureMade(picture);
    return;
  }
  worker_.Ask(request);
}

}  // namespace plenovia
