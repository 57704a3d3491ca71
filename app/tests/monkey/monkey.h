// Somebody who does anything with the program, without sense.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <string>
#include <vector>

#include "app/plenovia_wnd.h"
#include "app/tests/monkey/chance.h"
#include "app/tests/monkey/monkey_files.h"
#include "app/tests/monkey/step_log.h"

namespace plenovia {

// A step is an act on the frame. While the program handles events within it, the monkey goes on:
// it answers dialogs and menus, and acts inside a run that works.
class Monkey : public QObject {
 public:
  Monkey(MonkeyFiles& files, StepLog& log);

  void SetFrame(TPlenoviaWnd& frame) { frame_ = &frame; }
  // What is done depends only on `seed` and on what the program shows.
  void Step(int number, std::uint64_t seed);
  // Handles events until nothing more is to be answered.
  void Settle();

  // For the acts.
  TPlenoviaWnd& Frame() { return *frame_; }
  Chance& Dice() { return chance_; }
  MonkeyFiles& Files() { return files_; }
  // A window that is not the program's.
  QWidget& OtherProgram() { return otherProgram_; }
  void Note(const std::string& what);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  void Act();
  void Respond();

  Chance chance_;
  MonkeyFiles& files_;
  StepLog& log_;
  QPointer<TPlenoviaWnd> frame_;
  QWidget otherProgram_;
  int step_ = 0;
  int depth_ = 0;
  int actsInside_ = 0;  // in this step
  // The dialogs that an answer is being given to. Until it is given nothing else happens to them,
  // nor, when it closed them, to what is behind: in the program no event comes between.
  std::vector<const QWidget*> answering_;
};

}  // namespace plenovia
