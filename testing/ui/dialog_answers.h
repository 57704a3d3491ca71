// Answers to the dialogs that a test's actions open.
#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QObject>
#include <QString>
#include <deque>
#include <functional>
#include <utility>
#include <vector>

namespace plenovia {

// While it lives, each modal dialog that opens is handed to the next of the given answers, in
// their order. A dialog that nobody expected fails the test and is closed. So does an answer that
// leaves its dialog open when it should close it within ten seconds.
class DialogAnswers : public QObject {
 public:
  using Answer = std::function<void(QDialog&)>;

  DialogAnswers();
  // Fails the test when answers are left.
  ~DialogAnswers() override;

  void Add(Answer answer) { answers_.push_back(std::move(answer)); }
  // Presses this button of a message box with exactly this text and title.
  void AddMessage(const QString& text, const QString& title,
                  QMessageBox::StandardButton button = QMessageBox::Ok);
  // Types the path into a file dialog and accepts it; an empty path cancels the dialog.
  void AddFile(const QString& path);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  std::deque<Answer> answers_;
  std::vector<QDialog*> answered_;
  int timer_ = 0;
};

}  // namespace plenovia
