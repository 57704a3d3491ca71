// How the monkey answers what asks it.
#pragma once

#include <QDialog>
#include <QWidget>

#include "app/tests/monkey/chance.h"
#include "app/tests/monkey/monkey_files.h"

namespace plenovia {

// Does one thing in a dialog that is open: uses a control, presses a button, leaves it. A dialog
// that was asked often enough is rejected; one that stays then fails the test.
void AnswerDialog(QDialog& dialog, Chance& chance, MonkeyFiles& files);
// Chooses an item of a menu or of a list that has popped up, or closes it.
void AnswerPopup(QWidget& popup, Chance& chance);

}  // namespace plenovia
