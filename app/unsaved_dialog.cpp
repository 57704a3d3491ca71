#include "app/unsaved_dialog.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace plenovia {

UnsavedDialog::UnsavedDialog(QWidget* parent, const QStringList& titles)
    : QDialog(parent), list_(new QListWidget) {
  setObjectName(QStringLiteral("unsaved"));
  setWindowTitle(tr("Confirm"));
  list_->setObjectName(QStringLiteral("unsavedList"));
  for (const QString& title : titles) {
    auto* item = new QListWidgetItem(title, list_);
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(Qt::Checked);
  }
  list_->setCurrentRow(0);
  auto* question = new QLabel(tr("&Save these before closing?"));
  question->setBuddy(list_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  auto* close = buttons->addButton(QString(), QDialogButtonBox::AcceptRole);
  close->setObjectName(QStringLiteral("closeAll"));
  close->setDefault(true);
  // Says what it does, as what has no mark is lost.
  const auto tell = [this, close] {
    const auto checked = Checked();
    const auto saved = std::count(checked.begin(), checked.end(), true);
    const bool all = saved == static_cast<std::ptrdiff_t>(checked.size());
    close->setText(all          ? tr("Save &All")
                   : saved == 0 ? tr("&Forget All")
                                : tr("Save %1, &Forget the Others").arg(saved));
  };
  connect(list_, &QListWidget::itemChanged, this, tell);
  tell();
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* all = new QVBoxLayout(this);
  all->addWidget(question);
  all->addWidget(list_);
  all->addWidget(buttons);
  list_->setFocus();
}

std::vector<bool> UnsavedDialog::Checked() const {
  std::vector<bool> checked;
  for (int i = 0; i < list_->count(); ++i) {
    checked.push_back(list_->item(i)->checkState() == Qt::Checked);
  }
  return checked;
}

}  // namespace plenovia
