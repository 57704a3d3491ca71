// The parts that dialogs are built of, each named by its number: "edit104", "button1", "radio102".
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QString>

namespace plenovia {

// The numbers of OK and Cancel in every dialog.
inline constexpr int kOkButton = 1;
inline constexpr int kCancelButton = 2;

QPushButton* MakeButton(int id, const QString& text);
QCheckBox* MakeCheck(int id, const QString& text);
QRadioButton* MakeRadio(int id, const QString& text);
QLineEdit* MakeEdit(int id);
// As wide as `digits` digits.
QLineEdit* MakeNumberEdit(int id, int digits = 6);
// A whole number of least..most, of this object name.
QSpinBox* MakeSpinBox(const char* name, int least, int most, int value);
// The text in front of a control.
QLabel* MakeLabel(const QString& text, QWidget* control);

// A text below controls, which wraps and has room for `lines` lines. "note".
QLabel* MakeNote(int lines, const QString& text = {});

// OK, which the Enter key presses, accepts the dialog; Cancel, and the Escape key, reject it.
QPushButton* MakeOkButton(QDialog* dialog);
QPushButton* MakeCancelButton(QDialog* dialog);
// Both, side by side in the middle of a row.
QHBoxLayout* MakeOkCancelRow(QDialog* dialog);

// A number of units of the measure that dialogs are laid out in, a quarter of a character's width
// and an eighth of its height, in the widget's font.
QSize DialogUnits(const QWidget& widget, int width, int height);

}  // namespace plenovia
