// A thin bar with a sentence for the user and buttons that belong to it.
#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QString>
#include <QToolButton>
#include <chrono>
#include <functional>
#include <vector>

namespace plenovia {

struct NoticeAction {
  QString text;
  std::function<void()> run;
};

struct Notice {
  QString text;
  std::vector<NoticeAction> actions{};
  QString details{};                   // the hint of the bar
  std::chrono::milliseconds lasts{0};  // until it goes by itself; 0: it stays
};

// The text and the buttons share a line where they fit one; else the buttons stand below the text.
// Escape in the bar and its small button close it. Actions run once the events that wait are
// handled, so they may take the bar or its window away.
class NoticeBar : public QFrame {
  Q_OBJECT

 public:
  explicit NoticeBar(const Notice& notice);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  // The user closed it, or its time is over.
  void Dismissed();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Places {
    QRect text;
    std::vector<QRect> buttons;
    int height = 0;
  };
  Places Arrange(int width) const;
  Places InOneLine(int width) const;
  Places InSeveralLines(int width) const;
  int LineWidth() const;

  QLabel* text_;
  std::vector<QPushButton*> buttons_;
  QToolButton* close_ = nullptr;
};

}  // namespace plenovia
