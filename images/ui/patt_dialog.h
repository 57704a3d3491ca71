// The "Select Pattern" dialog.
#pragma once

#include <QDialog>

#include "images/sird_patt.h"
#include "images/ui/pattern_browser.h"

namespace plenovia {

// OK leaves the shown pattern current, Cancel the one that was current before. "Add" asks the frame
// by WM_ADDPATTERN, with the number of patterns, to append one to the library; it stays there in
// either case. A frame that cannot gives the reason with its answer.
class TPattDialog : public QDialog {
  Q_OBJECT

 public:
  // Modal over `frame`, which answers 1 when it added a pattern. `library` outlives the dialog.
  TPattDialog(QWidget* frame, TSirdPatt& library, bool addingAllowed);

  void accept() override;
  void reject() override;

 private:
  void Add();

  QWidget* frame_;
  TSirdPatt& library_;
  PatternBrowser* browser_;
};

}  // namespace plenovia
