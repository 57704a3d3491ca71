#include "depthmap/ui/level_dialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "depthmap/level_choice.h"
#include "platform/leading_number.h"
#include "platform/ui/message_box.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kLongestText = 15;
constexpr int kDownButton = 311;
constexpr int kUpButton = 312;

QToolButton* StepButton(int id, Qt::ArrowType arrow, const QString& name) {
  auto* button = new QToolButton;
  button->setObjectName(name);
  button->setIcon(ButtonPicture(id));
  if (button->icon().isNull()) button->setArrowType(arrow);
  button->setAutoRepeat(true);
  return button;
}

}  // namespace

TLevelDialog::TLevelDialog(QWidget* owner, std::int32_t& target)
    : QDialog(owner), value_(target), target_(target), edit_(new QLineEdit) {
  setObjectName(QStringLiteral("LEVEL"));
  setWindowTitle(tr("Set Level"));

  auto* range = new QLabel(tr("[Range: %1-%2]").arg(kLowestLevel).arg(kHighestLevel));
  range->setObjectName(QStringLiteral("range"));
  edit_->setObjectName(QStringLiteral("level"));
  edit_->setMaxLength(kLongestText);
  auto* down = StepButton(kDownButton, Qt::DownArrow, QStringLiteral("down"));
  auto* up = StepButton(kUpButton, Qt::UpArrow, QStringLiteral("up"));
  auto* group = new QGroupBox(tr("Level"));
  auto* grid = new QGridLayout(group);
  grid->addWidget(range, 0, 0, 1, 2);
  grid->addWidget(edit_, 1, 0, 1, 2);
  grid->addWidget(down, 2, 0, Qt::AlignRight);
  grid->addWidget(up, 2, 1, Qt::AlignLeft);

  auto* buttons =
      new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Vertical);
  buttons->setObjectName(QStringLiteral("buttons"));
  auto* row = new QHBoxLayout(this);
  row->addWidget(group);
  row->addWidget(buttons);
  row->setSizeConstraint(QLayout::SetFixedSize);

  connect(down, &QToolButton::clicked, this, &TLevelDialog::StepDown);
  connect(up, &QToolButton::clicked, this, &TLevelDialog::StepUp);
  connect(buttons, &QDialogButtonBox::accepted, this, &TLevelDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &TLevelDialog::reject);
  ShowLevel();
  edit_->setFocus();
  edit_->selectAll();
}

void TLevelDialog::ShowLevel() {
  edit_->setText(QString::number(value_));
}

std::int32_t TLevelDialog::ReadLevel() const {
  return LeadingNumber(edit_->text().toStdString());
}

void TLevelDialog::StepUp() {
  value_ = StepLevelUp(ReadLevel());
  ShowLevel();
}

void TLevelDialog::StepDown() {
  value_ = StepLevelDown(ReadLevel());
  ShowLevel();
}

void TLevelDialog::accept() {
  const std::int32_t level = ReadLevel();
  if (!IsLevel(level)) {
    ShowMessage(this, tr("Level is not within accepted range"), tr("Note"), MessageIcon::kStop);
    return;
  }
  target_ = level;
  QDialog::accept();
}

}  // namespace plenovia
