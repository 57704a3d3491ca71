#include "platform/ui/private_message.h"

#include <QCoreApplication>

namespace plenovia {

QEvent::Type PrivateMessage::EventType() {
  static const int type = QEvent::registerEventType();
  return static_cast<QEvent::Type>(type);
}

int SendPrivateMessage(QWidget* receiver, PrivateMessage message) {
  if (receiver != nullptr) QCoreApplication::sendEvent(receiver, &message);
  return message.result();
}

void PostPrivateMessage(QWidget* receiver, PrivateMessageNumber number, int value) {
  if (receiver == nullptr) return;
  QCoreApplication::postEvent(receiver, new PrivateMessage(number, value));
}

}  // namespace plenovia
