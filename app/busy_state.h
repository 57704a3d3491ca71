// Whether a long operation runs.
#pragma once

#include <QObject>

namespace plenovia {

class BusyState : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  bool IsBusy() const { return busy_; }
  // Leaves (true) or enters the busy state, in which most commands are gray.
  void SetProcessState(bool enabled) {
    busy_ = !enabled;
    Q_EMIT Changed();
  }

  // Long operations announce their begin and end; they may run nested in one another.
  void OperationBegins() {
    ++operations_;
    SetProcessState(false);
  }
  void OperationEnds() {
    --operations_;
    SetProcessState(operations_ == 0);
    if (operations_ == 0) Q_EMIT AllEnded();
  }
  bool HasOperations() const { return operations_ > 0; }

 Q_SIGNALS:
  void Changed();
  void AllEnded();

 private:
  bool busy_ = true;  // until the frame is set up
  int operations_ = 0;
};

}  // namespace plenovia
