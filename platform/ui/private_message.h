// Messages from windows, dialogs and bars to the main frame, as events of Qt's.
#pragma once

#include <QEvent>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "platform/private_messages.h"
#include "platform/progress.h"

namespace plenovia {

class PrivateMessage final : public QEvent {
 public:
  explicit PrivateMessage(PrivateMessageNumber number, int value = 0)
      : QEvent(EventType()), number_(number), value_(value) {}
  PrivateMessage(ProgressPhase phase, const ProgressInfo& progress)
      : QEvent(EventType()),
        number_(WM_PROGRESS),
        value_(static_cast<int>(phase)),
        progress_(&progress) {}
  PrivateMessage(PrivateMessageNumber number, QWidget* window)
      : QEvent(EventType()), number_(number), window_(window) {}

  // The one event type of all private messages.
  static QEvent::Type EventType();

  PrivateMessageNumber number() const { return number_; }
  int value() const { return value_; }
  // The window that the message is about; null for most messages.
  QWidget* window() const { return window_; }
  // Of WM_PROGRESS; valid while the message is handled.
  const ProgressInfo* progress() const { return progress_; }

  // What the receiver answers; 0 when it does not.
  int result() const { return result_; }
  void SetResult(int result) { result_ = result; }
  // A sentence for the user that goes with the answer; empty when there is nothing to say.
  const QString& reason() const { return reason_; }
  void SetReason(const QString& reason) { reason_ = reason; }

 private:
  PrivateMessageNumber number_;
  int value_ = 0;
  QWidget* window_ = nullptr;
  const ProgressInfo* progress_ = nullptr;
  int result_ = 0;
  QString reason_;
};

// Handles the message before it returns, and gives the answer; 0 when the receiver is null.
int SendPrivateMessage(QWidget* receiver, PrivateMessage message);
// Leaves the message in the receiver's queue. Not for messages with a window or progress.
void PostPrivateMessage(QWidget* receiver, PrivateMessageNumber number, int value = 0);

}  // namespace plenovia
