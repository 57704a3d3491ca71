#include "platform/ui/message_box.h"

#include <QMessageBox>

#include "platform/ui/text.h"

namespace plenovia {

namespace {

QString Lines(QString text) {
  return text.replace(u'\r', u'\n');
}

QMessageBox::Icon BoxIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kStop:
      return QMessageBox::Critical;
    case MessageIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

void ShowMessage(QWidget* owner, const QString& text, const QString& title, MessageIcon icon) {
  QMessageBox box(BoxIcon(icon), title, Lines(text), QMessageBox::Ok, owner);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

void ShowFailure(QWidget* owner, const Error& error) {
  if (error.code == ErrorCode::kCancelled) return;
  ShowMessage(owner, ToSentence(error.message), QObject::tr("Error"), MessageIcon::kStop);
}

Answer AskYesNoCancel(QWidget* owner, const QString& text, const QString& title) {
  QMessageBox box(QMessageBox::Question, title, Lines(text),
                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, owner);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  switch (box.exec()) {
    case QMessageBox::Yes:
      return Answer::kYes;
    case QMessageBox::No:
      return Answer::kNo;
    default:
      return Answer::kCancel;
  }
}

}  // namespace plenovia
