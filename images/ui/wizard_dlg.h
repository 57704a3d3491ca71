// The base of the pages of the stereogram wizard.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <QString>
#include <QVBoxLayout>

namespace plenovia {

// A modal page: a picture, a text, what the page adds, and below it the buttons. exec() gives one
// of the results here, or QDialog::Rejected for Cancel.
class WizardDlg : public QDialog {
  Q_OBJECT

 public:
  static constexpr int kNext = 101;
  static constexpr int kBack = 102;

 protected:
  WizardDlg(QWidget* parent, const QString& text);

  // Where the page puts its controls, below the text.
  QVBoxLayout* Content() { return content_; }
  QPushButton* NextButton() { return next_; }
  enum class BackButton { kNone, kShown };
  // The last step of making a page, so that the Tab key comes to the buttons last.
  void AddButtons(BackButton back);

  // Called before the page closes with the result of that name. "Next >" leaves the page open when
  // it gives false.
  virtual bool OnNext() { return true; }
  virtual void OnBack() {}

 private:
  QVBoxLayout* content_;
  QPushButton* next_;
};

}  // namespace plenovia
