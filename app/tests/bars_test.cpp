#include <gtest/gtest.h>

#include <QMainWindow>
#include <QPainter>
#include <QTest>
#include <map>
#include <vector>

#include "app/bar_button.h"
#include "app/button_bar.h"
#include "app/command_bars.h"
#include "app/pattern_face.h"
#include "platform/ui/picture_painting.h"
#include "platform/ui/private_message.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

class Frame : public QMainWindow {
 public:
  QAction* ActionOf(int command) {
    QAction*& action = actions[command];
    if (action == nullptr) {
      action = new QAction(QString::number(command), this);
      action->setData(command);
      action->setStatusTip(QStringLiteral("Hint %1").arg(command));
      connect(action, &QAction::triggered, this, [this, command] { given.push_back(command); });
    }
    return action;
  }

  std::map<int, QAction*> actions;
  std::vector<int> given;
  std::vector<int> reports;

 protected:
  bool event(QEvent* event) override {
    if (event->type() == PrivateMessage::EventType()) {
      const auto* message = static_cast<PrivateMessage*>(event);
      if (message->number() == WM_BUTTONHINT) reports.push_back(message->value());
      return true;
    }
    if (event->type() == QEvent::StatusTip) ADD_FAILURE() << "a hint went past the bar";
    return QMainWindow::event(event);
  }
};

class Bars : public testing::Test {
 protected:
  Bars() : bar(new ButtonBar(&frame, 26)) {
    frame.addToolBar(bar);
    QObject::connect(bar, &ButtonBar::HintChanged, bar,
                     [this](const QString& hint) { hints.push_back(hint.toStdString()); });
  }

  void Show(int width = 640, int height = 480) {
    frame.resize(width, height);
    frame.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    MoveTo({width - 20, height - 20});
    MoveTo({width - 10, height - 10});
    frame.reports.clear();
    hints.clear();
  }
  void FillMain() {
    FillMainBar(*bar, [this](int command) { return frame.ActionOf(command); });
  }
  QPoint Middle(const QWidget* child) { return child->mapTo(&frame, child->rect().center()); }
  QPoint Middle(int command) { return Middle(bar->FindButton(command)); }
  void MoveTo(QPoint point) { QTest::mouseMove(frame.windowHandle(), point); }
  void Press(QPoint point) { QTest::mousePress(frame.windowHandle(), Qt::LeftButton, {}, point); }
  void Release(QPoint point) {
    QTest::mouseRelease(frame.windowHandle(), Qt::LeftButton, {}, point);
  }
  std::vector<int> Reports() { return std::exchange(frame.reports, {}); }

  Frame frame;
  ButtonBar* bar;
  std::vector<std::string> hints;
};

using Commands = std::vector<int>;

TEST_F(Bars, MainBarFitsItsFrameInARowAndInAColumn) {
  FillMain();
  Show();
  EXPECT_EQ(bar->actions().size(), 22);
  const QRect room(QPoint(), frame.size());
  int previous = -1;
  for (const BarButton* button : bar->findChildren<BarButton*>()) {
    EXPECT_TRUE(button->isVisible() && room.contains(Middle(button))) << button->command();
    EXPECT_EQ(button->size(), QSize(30, 30));
    EXPECT_GT(Middle(button).x(), previous);
    previous = Middle(button).x();
  }
  EXPECT_EQ(Middle(205).x() - Middle(111).x(), 30 + 12);
  EXPECT_EQ(Middle(107).x() - Middle(105).x(), 30 + 6);

  frame.addToolBar(Qt::RightToolBarArea, bar);
  frame.resize(500, 640);
  QTest::qWait(1);
  EXPECT_EQ(Middle(109).x(), Middle(24310).x());
  EXPECT_GT(Middle(24310).y(), Middle(109).y());
  EXPECT_TRUE(bar->FindButton(24310)->isVisible());
  EXPECT_EQ(bar->FindButton(999), nullptr);
}

TEST_F(Bars, CommandUnderTheMouseIsReportedAlsoWhileDisabled) {
  FillMain();
  frame.ActionOf(24331)->setEnabled(false);
  Show();
  MoveTo(Middle(901));
  MoveTo(Middle(24331));
  EXPECT_EQ(Reports(), (Commands{901, 24331}));
  EXPECT_EQ(hints, (std::vector<std::string>{"Hint 901", "", "Hint 24331"}));
  const QPoint separator = (Middle(901) + Middle(24331)) / 2;
  MoveTo(separator);
  MoveTo({320, 300});
  EXPECT_EQ(Reports(), (Commands{0, -1}));
  EXPECT_EQ(hints.back(), "");
}

TEST_F(Bars, PressHidesTheHintUntilTheRelease) {
  FillMain();
  frame.ActionOf(24331)->setEnabled(false);
  Show();
  MoveTo(Middle(901));
  Press(Middle(901));
  MoveTo(Middle(901) + QPoint(2, 0));
  MoveTo({320, 300});
  EXPECT_EQ(Reports(), (Commands{901, -1, -1})) << "nothing is reported outside of the buttons";
  MoveTo(Middle(109));
  Release(Middle(109));
  EXPECT_TRUE(frame.given.empty());
  MoveTo(Middle(901));
  EXPECT_EQ(Reports(), (Commands{-1, 901}));
  Press(Middle(901));
  Release(Middle(901));
  EXPECT_EQ(frame.given, Commands{901});
  MoveTo(Middle(24331));
  Reports();
  Press(Middle(24331));
  MoveTo(Middle(24331) + QPoint(2, 0));
  Release(Middle(24331) + QPoint(2, 0));
  EXPECT_EQ(Reports(), (Commands{-1, 24331})) << "a disabled button does not take the mouse";
  EXPECT_EQ(frame.given, Commands{901});
}

TEST_F(Bars, OneToolIsPressed) {
  FillToolsPalette(*bar, [this](int command) { return frame.ActionOf(command); });
  frame.addToolBar(Qt::LeftToolBarArea, bar);
  Show(640, 600);
  EXPECT_EQ(bar->findChildren<BarButton*>().size(), 16);
  EXPECT_EQ(bar->orientation(), Qt::Vertical);
  const auto pressed = [this] {
    Commands commands;
    for (const BarButton* button : bar->findChildren<BarButton*>()) {
      if (button->isChecked()) commands.push_back(button->command());
    }
    return commands;
  };
  bar->PressButton(1258);
  bar->PressButton(1262);
  bar->PressButton(4);
  EXPECT_EQ(pressed(), Commands{1258});
  EXPECT_TRUE(frame.given.empty());
  for (const int command : {1254, 1254, 1262}) {
    QTest::mouseClick(bar->FindButton(command), Qt::LeftButton);
  }
  EXPECT_EQ(pressed(), Commands{1254});
  EXPECT_EQ(frame.given, (Commands{1254, 1254, 1262})) << "a tool can be chosen again";
}

TEST(PatternFace, ShowsTheCornerDotForDot) {
  Random random(5);
  for (const int side : {60, 10}) {
    const IndexedImage pattern = RandomPicture(random, side, side, 200);
    for (const double scale : {1.0, 1.5, 2.0}) {
      const QImage face = PatternFace(pattern, {26, 26}, scale, Qt::red).toImage();
      const QImage dots = ToImage(pattern);
      const int whole = static_cast<int>(26 * scale);
      const int border = static_cast<int>(2 * scale);
      ASSERT_EQ(face.size(), QSize(whole, whole));
      for (int y = 0; y < whole; ++y) {
        for (int x = 0; x < whole; ++x) {
          const QPoint dot(x - border, y - border);
          const bool inside = dots.rect().contains(dot) && x < whole - border && y < whole - border;
          const QRgb expected = inside ? dots.pixel(dot) : QColor(Qt::red).rgb();
          ASSERT_EQ(face.pixel(x, y), expected) << x << ", " << y << " at scale " << scale;
        }
      }
    }
  }
}

TEST_F(Bars, FaceIsShownDotForDotAndGrayWhileDisabled) {
  FillMain();
  Show();
  Random random(6);
  const qreal scale = frame.devicePixelRatioF();
  const QPixmap face = PatternFace(RandomPicture(random, 80, 80, 256), {26, 26}, scale, Qt::red);
  bar->SetFace(111, face);
  QToolButton* button = bar->FindButton(111);
  const QImage shown = button->grab().toImage();
  const int border = static_cast<int>(2 * scale);
  const QRect place(QPoint(border, border), face.size());
  const auto plain = [](const QImage& image) {
    return image.convertToFormat(QImage::Format_RGB32).convertToFormat(QImage::Format_RGB32);
  };
  QImage dots = plain(shown.copy(place));
  dots.setDevicePixelRatio(scale);
  EXPECT_EQ(dots, plain(face.toImage()));

  QPixmap half(face.size());
  half.setDevicePixelRatio(scale);
  half.fill(Qt::transparent);
  QPainter(&half).fillRect(13, 0, 13, 26, Qt::blue);
  frame.ActionOf(111)->setEnabled(false);
  bar->SetFace(111, QPixmap());
  const QImage without = button->grab().toImage();
  bar->SetFace(111, half);
  const QImage grayed = button->grab().toImage();
  for (int x = 0; x < grayed.width(); ++x) {
    const QColor dot = grayed.pixelColor(x, place.top());
    EXPECT_LE(std::abs(dot.red() - dot.blue()), 8) << x;
    const bool covered = x >= grayed.width() / 2 && x <= place.right();
    EXPECT_EQ(dot != without.pixelColor(x, place.top()), covered) << x;
  }
}

}  // namespace
}  // namespace plenovia
