// Message boxes, modal over the window that they belong to.
#pragma once

#include <QString>
#include <QWidget>

#include "platform/result.h"

namespace plenovia {

enum class MessageIcon { kNone, kInformation, kExclamation, kStop };

// Shows `text` with one button, OK. A carriage return in it breaks the line.
void ShowMessage(QWidget* owner, const QString& text, const QString& title, MessageIcon icon);

// Tells in a box that something failed. What the user stopped needs no words.
void ShowFailure(QWidget* owner, const Error& error);

enum class Answer { kYes, kNo, kCancel };

// A question with the buttons Yes, No and Cancel. Closing the box is Cancel.
Answer AskYesNoCancel(QWidget* owner, const QString& text, const QString& title);

}  // namespace plenovia
