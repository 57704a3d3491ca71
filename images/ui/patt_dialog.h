// The "Select Pattern" dialog.
#pragma once

#include <QDialog>
#include <QPushButton>

#include "images/pattern_edits.h"
#include "images/sird_patt.h"
#include "images/ui/pattern_browser.h"
#include "images/ui/pattern_grid.h"

namespace plenovia {

// A grid of all patterns, and the one that is shown large. OK leaves that one current, Cancel the
// one that was current before. "Add" asks the frame by WM_ADDPATTERN, with the number of patterns,
// to append one to the library. A frame that cannot gives the reason with its answer. "Delete"
// takes one of the user's own out of the library, "Undo" takes either back. OK moves the files of
// what is gone to the trash, Cancel undoes all and deletes the files of what was added.
class TPattDialog : public QDialog {
  Q_OBJECT

 public:
  // Modal over `frame`, which answers 1 when it added a pattern. `library` outlives the dialog.
  TPattDialog(QWidget* frame, TSirdPatt& library, bool addingAllowed);

  void accept() override;
  void reject() override;

 private:
  void Add();
  void Delete();
  void Undo();
  // The library has others than before.
  void ShowAll(int index);
  void ShowChoice();

  QWidget* frame_;
  TSirdPatt& library_;
  PatternEdits edits_;
  PatternBrowser* browser_;
  PatternGrid* grid_;
  QPushButton* delete_;
  QPushButton* undo_;
};

}  // namespace plenovia
