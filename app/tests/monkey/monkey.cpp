#include "app/tests/monkey/monkey.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <algorithm>
#include <utility>

#include "app/tests/monkey/acts.h"
#include "app/tests/monkey/answers.h"

namespace plenovia {

namespace {

constexpr int kDeepest = 4;
constexpr int kMostActsInside = 8;
constexpr int kRoundsToSettle = 5;

}  // namespace

Monkey::Monkey(MonkeyFiles& files, StepLog& log) : chance_(0), files_(files), log_(log) {
  otherProgram_.setObjectName(QStringLiteral("otherProgram"));
  startTimer(0);
}

void Monkey::Step(int number, std::uint64_t seed) {
  step_ = number;
  actsInside_ = 0;
  chance_ = Chance(Random(Random(seed).Next() + static_cast<std::uint64_t>(number)).Next());
  Act();
  Settle();
}

void Monkey::Settle() {
  for (int quiet = 0; quiet < kRoundsToSettle; ++quiet) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    if (QApplication::activePopupWidget() != nullptr) quiet = 0;
  }
}

void Monkey::Note(const std::string& what) {
  log_.Add(std::to_string(step_) + std::string(static_cast<std::size_t>(1 + 2 * depth_), ' ') +
           what);
}

void Monkey::Act() {
  if (!frame_ || !frame_->isVisible() || depth_ >= kDeepest) return;
  ++depth_;
  DoAnything(*this);
  --depth_;
}

void Monkey::timerEvent(QTimerEvent* event) {
  // The same timer would be silent in what is opened by the response.
  killTimer(event->timerId());
  startTimer(0);
  Respond();
}

void Monkey::Respond() {
  if (QWidget* popup = QApplication::activePopupWidget()) {
    Note("answers a menu");
    AnswerPopup(*popup, chance_);
  } else if (QWidget* modal = QApplication::activeModalWidget()) {
    auto* dialog = qobject_cast<QDialog*>(modal);
    ASSERT_NE(dialog, nullptr);
    if (std::find(answering_.begin(), answering_.end(), dialog) != answering_.end()) return;
    Note("answers " + dialog->windowTitle().toStdString());
    answering_.push_back(dialog);
    AnswerDialog(*dialog, chance_, files_);
    answering_.pop_back();
  } else if (depth_ > 0 && answering_.empty() && actsInside_ < kMostActsInside &&
             chance_.OneIn(frame_ && frame_->IsBusy() ? 2 : 8)) {
    ++actsInside_;
    Act();
  }
}

}  // namespace plenovia
