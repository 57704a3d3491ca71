// The main frame's status bar.
#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>
#include <QString>
#include <QTimer>

namespace plenovia {

class ElidedLabel;

// From the left: the message area with the gauge of long operations over its left part, the size of
// the active picture, the free memory. The message area shows a hint instead of the message while
// one is set. A text begins right of the gauge while the gauge shows.
class TCStatusBar : public QStatusBar {
  Q_OBJECT

 public:
  explicit TCStatusBar(QWidget* parent);

  void SetMessage(const QString& text);
  const QString& Message() const { return text_; }
  // Shows a hint and hides the gauge. An empty text clears the hint, as ClearHint() does.
  void SetHint(const QString& text);
  // Shows the message again, and the gauge.
  void ClearHint();
  // 0 to 100. A gauge that a hint hides comes back. Repaints gauge and message at once.
  void SetProgress(int percent);
  // The two fields. Repaint at once.
  void SetImageText(const QString& text);
  QString ImageText() const { return imageField_->text(); }
  void SetFreeText(const QString& text);
  // Tells something for some seconds beside the message; with a link that opens `folder`, when one
  // is named.
  void ShowNote(const QString& text, const QString& folder = QString());
  QString Note() const { return note_->text(); }
  // Paints what was changed, before it returns.
  void RepaintNow();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QLabel* AddField(const QString& name);
  void ShowText();
  void FitFields();

  QProgressBar* gauge_;
  ElidedLabel* message_;
  QLabel* imageField_;
  QLabel* freeField_;
  QLabel* note_;
  QTimer noteTime_;
  QString text_;
  QString hint_;  // empty: none
  // Turns over with every hint set or cleared, as the gauge is hidden and shown again; decides
  // whether progress brings the gauge back.
  bool gaugeShown_ = true;
};

}  // namespace plenovia
