#include "images/ui/popup_hint.h"

#include <QCursor>
#include <QPainter>
#include <algorithm>
#include <chrono>
#include <utility>

namespace plenovia {

namespace {

using namespace std::chrono_literals;

constexpr auto kDelay = 250ms;
constexpr auto kDisplayTime = 1500ms;
constexpr QPoint kFromCursor(8, 20);
constexpr QPoint kTextCorner(6, 3);
constexpr QSize kAroundText(12, 8);
constexpr QSize kKeptFree(20, 36);  // from the cursor to the window's edges, beside the text
constexpr QColor kBox(128, 255, 128);
constexpr QColor kText(0, 0, 128);

}  // namespace

QRect HintPlace(QPoint cursor, QSize text, const QRect& window) {
  const QPoint end(window.left() + window.width(), window.top() + window.height());
  const QSize needed = text + kKeptFree;
  const QPoint shift(std::min(0, end.x() - (cursor.x() + needed.width())),
                     std::min(0, end.y() - (cursor.y() + needed.height())));
  return {cursor - window.topLeft() + shift + kFromCursor, text + kAroundText};
}

PopupHint::PopupHint(QWidget* frame, TextOfCommand text) : QWidget(frame), text_(std::move(text)) {
  setObjectName(QStringLiteral("popuphint"));
  setWindowTitle(QStringLiteral("popuphint"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  QFont bold = font();
  bold.setBold(true);
  setFont(bold);
  hide();
  delay_.setSingleShot(true);
  delay_.setInterval(kDelay);
  connect(&delay_, &QTimer::timeout, this, [this] { Show(current_); });
  display_.setSingleShot(true);
  display_.setInterval(kDisplayTime);
  connect(&display_, &QTimer::timeout, this, &PopupHint::Hide);
}

void PopupHint::Report(int command) {
  if (command < 1) {
    Hide();
    current_ = kNoCommand;
  } else if (!shown_ || command != current_) {
    Hide();
    Show(command);
  }
}

void PopupHint::Show(int command) {
  if (pending_) {
    Complete(command);
  } else if (command < 1 || command == current_) {
    hide();
    shown_ = false;
    delay_.stop();
    display_.stop();
  } else {
    pending_ = true;
    shown_ = true;
    current_ = command;
    delay_.start();
  }
}

void PopupHint::Complete(int command) {
  pending_ = false;
  delay_.stop();
  const QString text = command < 1 ? QString() : text_(command);
  if (text.size() < 2) return;
  hide();
  shown_ = true;
  current_ = command;
  const QSize extent(fontMetrics().horizontalAdvance(text), fontMetrics().height());
  const QWidget& frame = *parentWidget();
  const QRect window(frame.mapToGlobal(QPoint()), frame.size());
  setGeometry(HintPlace(QCursor::pos(), extent, window));
  raise();
  show();
  display_.start();
}

void PopupHint::Hide() {
  if (shown_) Show(0);
}

void PopupHint::paintEvent(QPaintEvent*) {
  if (!shown_) return;
  QPainter painter(this);
  painter.setPen(Qt::black);
  painter.setBrush(kBox);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setPen(kText);
  const QRect area(kTextCorner, rect().bottomRight());
  painter.drawText(area, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine, text_(current_));
}

}  // namespace plenovia
