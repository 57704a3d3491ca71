#include "images/ui/math_dlg.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/ui/dialog_controls.h"

namespace plenovia {

MathDlg::MathDlg(QWidget* parent, const QStringList& titles)
    : QDialog(parent), list_(new QListWidget) {
  setObjectName(QStringLiteral("dialog211"));
  setWindowTitle(tr("Math SIRDS Selection"));
  list_->setObjectName(QStringLiteral("list101"));
  list_->addItems(titles);
  list_->setCurrentRow(selectedIndex_);
  connect(list_, &QListWidget::itemDoubleClicked, this, &MathDlg::accept);

  auto* all = new QVBoxLayout(this);
  all->addWidget(list_);
  all->addLayout(MakeOkCancelRow(this));
}

void MathDlg::accept() {
  selectedIndex_ = list_->currentRow();
  if (selectedIndex_ >= 0) selectedTitle_ = list_->item(selectedIndex_)->text();
  QDialog::accept();
}

}  // namespace plenovia
