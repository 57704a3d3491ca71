#include "platform/ui/abort_check.h"

#include <QCoreApplication>
#include <QMdiSubWindow>
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

  bool stopped() const { return stopped_ || frame_.isNull(); }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() == QEvent::Quit) {
      stopped_ = true;
    } else if (event->type() == QEvent::Close) {
      if (receiver == frame_ || qobject_cast<QMdiSubWindow*>(receiver) != nullptr) stopped_ = true;
    } else if (event->type() == PrivateMessage::EventType()) {
      const bool stops = static_cast<PrivateMessage*>(event)->number() == WM_STOPPROCESS;
      if (stops) stopped_ = true;
      return stops;
    }
    return false;
  }

 private:
  QPointer<QWidget> frame_;
  bool stopped_ = false;
};

}  // namespace

int PumpAndCheckAbort(QWidget* frame) {
  const StopWatch watch(frame);
  QCoreApplication::processEvents();
  return watch.stopped() ? -1 : 0;
}

}  // namespace plenovia
