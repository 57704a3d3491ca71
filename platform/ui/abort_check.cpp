#include "platform/ui/abort_check.h"

#include <QCoreApplication>
#include <QPointer>

#include "platform/ui/private_message.h"

namespace plenovia {

namespace {

// Sees every event before it is handled. Of several that watch, the youngest sees it first.
class StopWatch : public QObject {
 public:
  explicit StopWatch(QWidget* frame) : frame_(frame) {
    QCoreApplication::instance()->installEventFilter(this);
  }

  Abort seen() const { return frame_.isNull() ? Abort::kLeaving : seen_; }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != PrivateMessage::EventType()) return false;
    const auto& message = *static_cast<PrivateMessage*>(event);
    if (message.number() != WM_STOPPROCESS) return false;
    const bool all = message.value() == kStopAllProcesses;
    if (seen_ != Abort::kLeaving) seen_ = all ? Abort::kLeaving : Abort::kStopped;
    return !all;
  }

 private:
  QPointer<QWidget> frame_;
  Abort seen_ = Abort::kNone;
};

}  // namespace

Abort PumpAndCheckAbort(QWidget* frame) {
  const StopWatch watch(frame);
  QCoreApplication::processEvents();
  return watch.seen();
}

}  // namespace plenovia
