// The way through the patterns that the pattern dialog and the wizard's pattern page share.
#pragma once

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

#include "images/sird_patt.h"
#include "images/ui/pattern_sample.h"

namespace plenovia {

// A sample of the current pattern, its number, and the buttons "Next" and "Prev", which go round.
// The library's current pattern follows at once.
class PatternBrowser : public QWidget {
  Q_OBJECT

 public:
  // `library` outlives the browser.
  explicit PatternBrowser(TSirdPatt& library, QWidget* parent = nullptr);

  // The position of the pattern that is shown.
  int Shown() const { return shown_; }
  void Show(int index);
  // Makes the pattern current again that was so when the browser was made.
  void RestoreOpening();

  // Where more buttons have their place, below "Next" and "Prev".
  QVBoxLayout* Buttons() { return buttons_; }

 Q_SIGNALS:
  // Another pattern is shown.
  void Moved();

 private:
  void Next();
  void Prev();
  void Refresh();

  TSirdPatt& library_;
  const int opening_;
  int shown_;
  PatternSample* sample_;
  QLabel* number_;
  QVBoxLayout* buttons_;
};

}  // namespace plenovia
