#include "live/ui/live_worker.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QMutexLocker>
#include <chrono>
#include <utility>

#include "live/ui/live_maker.h"

namespace plenovia {

namespace {

// Work is not stopped before, so that something is shown while requests come without a pause.
constexpr qint64 kAtLeast = 30;  // milliseconds
// The meter can wait for the hand to rest.
constexpr std::chrono::milliseconds kQuiet{150};

}  // namespace

class LiveWorker::Monitor final : public RunMonitor {
 public:
  Monitor(const LiveWorker& worker, qint64 atLeast) : worker_(worker), atLeast_(atLeast) {
    clock_.start();
  }
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override {
    return worker_.ends_ || (worker_.isNewer_ && clock_.elapsed() >= atLeast_);
  }

 private:
  const LiveWorker& worker_;
  qint64 atLeast_;
  QElapsedTimer clock_;
};

LiveWorker::~LiveWorker() {
  {
    const QMutexLocker locked(&lock_);
    ends_ = true;
    wake_.wakeAll();
  }
  wait();
}

void LiveWorker::Ask(const LiveRequest& request) {
  const QMutexLocker locked(&lock_);
  waiting_ = request;
  isNewer_ = true;
  wake_.wakeAll();
  if (!isRunning()) start(QThread::LowPriority);
}

void LiveWorker::Drop() {
  const QMutexLocker locked(&lock_);
  waiting_.reset();
  isNewer_ = true;
}

std::optional<LiveRequest> LiveWorker::Next() {
  const QMutexLocker locked(&lock_);
  while (!waiting_ && !ends_) wake_.wait(&lock_);
  if (ends_) return std::nullopt;
  isNewer_ = false;
  return std::exchange(waiting_, std::nullopt);
}

bool LiveWorker::StaysQuiet() {
  const QMutexLocker locked(&lock_);
  const QDeadlineTimer end(kQuiet);
  while (!isNewer_ && !ends_) {
    if (!wake_.wait(&lock_, end)) break;
  }
  return !isNewer_ && !ends_;
}

void LiveWorker::run() {
  LiveMaker maker;
  while (const auto request = Next()) {
    Monitor monitor(*this, kAtLeast);
    maker.Make(*request, monitor, [this](LivePicture picture) {
      Q_EMIT PictureMade(std::make_shared<const LivePicture>(std::move(picture)));
    });
    if (request->source.IsNone()) continue;
    Q_EMIT LevelsCounted(maker.Histogram(*request));
    if (!StaysQuiet()) continue;
    Monitor impatient(*this, 0);
    if (auto meter = maker.Measure(*request, impatient)) {
      Q_EMIT Measured(std::make_shared<const LiveMeter>(*meter));
    }
  }
}

}  // namespace plenovia
