// The one question about all work that is not saved when everything closes.
#pragma once

#include <QDialog>
#include <QListWidget>
#include <QStringList>
#include <vector>

namespace plenovia {

// Lists the documents with check marks, all set. Accepted: those with a mark are to be saved and
// the others forgotten. Rejected: nothing is to close.
class UnsavedDialog : public QDialog {
  Q_OBJECT

 public:
  UnsavedDialog(QWidget* parent, const QStringList& titles);

  // For each title whether it has a mark.
  std::vector<bool> Checked() const;

 private:
  QListWidget* list_;
};

}  // namespace plenovia
