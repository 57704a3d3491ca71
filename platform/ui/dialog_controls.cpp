#include "platform/ui/dialog_controls.h"

#include <QFontMetrics>
#include <algorithm>

namespace plenovia {

QPushButton* MakeButton(int id, const QString& text) {
  auto* button = new QPushButton(text);
  button->setObjectName(QStringLiteral("button%1").arg(id));
  return button;
}

QCheckBox* MakeCheck(int id, const QString& text) {
  auto* check = new QCheckBox(text);
  check->setObjectName(QStringLiteral("check%1").arg(id));
  return check;
}

QRadioButton* MakeRadio(int id, const QString& text) {
  auto* radio = new QRadioButton(text);
  radio->setObjectName(QStringLiteral("radio%1").arg(id));
  return radio;
}

QLineEdit* MakeEdit(int id) {
  auto* edit = new QLineEdit;
  edit->setObjectName(QStringLiteral("edit%1").arg(id));
  return edit;
}

QLineEdit* MakeNumberEdit(int id, int digits) {
  QLineEdit* edit = MakeEdit(id);
  const int besideText =
      edit->sizeHint().width() - 17 * edit->fontMetrics().horizontalAdvance(u'x');
  edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QString(digits, u'0')) +
                      std::max(besideText, 0));
  return edit;
}

QSpinBox* MakeSpinBox(const char* name, int least, int most, int value) {
  auto* box = new QSpinBox;
  box->setObjectName(QString::fromLatin1(name));
  box->setRange(least, most);
  box->setValue(value);
  return box;
}

QLabel* MakeLabel(const QString& text, QWidget* control) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(control);
  return label;
}

QLabel* MakeNote(int lines, const QString& text) {
  auto* note = new QLabel(text);
  note->setObjectName(QStringLiteral("note"));
  note->setTextFormat(Qt::PlainText);
  note->setWordWrap(true);
  note->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  note->setMinimumHeight(lines * note->fontMetrics().lineSpacing());
  // It takes the width that the controls have.
  note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
  return note;
}

QPushButton* MakeOkButton(QDialog* dialog) {
  QPushButton* button = MakeButton(kOkButton, QDialog::tr("OK"));
  button->setDefault(true);
  QObject::connect(button, &QPushButton::clicked, dialog, &QDialog::accept);
  return button;
}

QPushButton* MakeCancelButton(QDialog* dialog) {
  QPushButton* button = MakeButton(kCancelButton, QDialog::tr("Cancel"));
  QObject::connect(button, &QPushButton::clicked, dialog, &QDialog::reject);
  return button;
}

QHBoxLayout* MakeOkCancelRow(QDialog* dialog) {
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(MakeOkButton(dialog));
  row->addWidget(MakeCancelButton(dialog));
  row->addStretch();
  return row;
}

QSize DialogUnits(const QWidget& widget, int width, int height) {
  const QFontMetrics metrics = widget.fontMetrics();
  return {width * metrics.averageCharWidth() / 4, height * metrics.height() / 8};
}

}  // namespace plenovia
