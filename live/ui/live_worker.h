// The thread that makes what Live View shows.
#pragma once

#include <QMutex>
#include <QThread>
#include <QWaitCondition>
#include <atomic>
#include <memory>
#include <optional>

#include "live/ui/live_scene.h"

namespace plenovia {

// Makes the latest request and drops those before it. The thread begins with the first request; the
// destructor ends it. A piece of work that took long already stops when a newer request waits.
class LiveWorker : public QThread {
  Q_OBJECT

 public:
  using QThread::QThread;
  ~LiveWorker() override;

  void Ask(const LiveRequest& request);
  // Ends what is being made and drops what waits.
  void Drop();

 Q_SIGNALS:
  // Sent from the thread: connect with a receiver that lives on the thread of the windows.
  void PictureMade(const std::shared_ptr<const LivePicture>& picture);
  void LevelsCounted(const std::shared_ptr<const LevelHistogram>& histogram);
  // Once no request has come for a moment.
  void Measured(const std::shared_ptr<const LiveMeter>& meter);

 protected:
  void run() override;

 private:
  class Monitor;

  std::optional<LiveRequest> Next();
  bool StaysQuiet();

  QMutex lock_;
  QWaitCondition wake_;
  std::optional<LiveRequest> waiting_;
  std::atomic<bool> isNewer_ = false;  // a request waits, or the one in work is not wanted
  std::atomic<bool> ends_ = false;
};

}  // namespace plenovia
