// The "Math SIRDS Selection" dialog.
#pragma once

#include <QDialog>
#include <QListWidget>
#include <QString>
#include <QStringList>

#include "images/ui/figure_titles.h"

namespace plenovia {

// Lets the user choose a figure. A double click on one chooses it too.
class MathDlg : public QDialog {
  Q_OBJECT

 public:
  explicit MathDlg(QWidget* parent, const QStringList& titles = FigureTitles());

  // After OK: the number of the chosen figure, -1 when none was, and its title.
  int SelectedIndex() const { return selectedIndex_; }
  const QString& SelectedTitle() const { return selectedTitle_; }

  void accept() override;

 private:
  QListWidget* list_;
  int selectedIndex_ = 0;
  QString selectedTitle_;
};

}  // namespace plenovia
