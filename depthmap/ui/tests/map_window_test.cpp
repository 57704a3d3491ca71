#include "depthmap/ui/map_window.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>
#include <vector>

#include "platform/ui/private_message.h"
#include "testing/ui/dialog_answers.h"

namespace plenovia {
namespace {

// Keeps the private messages; saves a window when it is asked to and has a path.
class Frame : public QWidget {
 public:
  std::vector<int> messages;
  QString savePath;

 protected:
  void customEvent(QEvent* event) override {
    if (event->type() != PrivateMessage::EventType()) return;
    const auto& message = *static_cast<PrivateMessage*>(event);
    messages.push_back(message.number());
    if (message.number() != WM_SAVECHILD || savePath.isEmpty()) return;
    static_cast<void>(static_cast<TMapWindow*>(message.window())->WriteDepthMap(savePath));
  }
};

class MapWindow : public testing::Test {
 protected:
  MapWindow() {
    area.resize(800, 700);
    area.show();
    window = Open(400, 400);
  }

  TMapWindow* Open(int width, int height, const QString& title = QStringLiteral("untitled")) {
    auto* opened = new TMapWindow(&area, title, width, height, &frame);
    opened->show();
    view = opened->findChild<QAbstractScrollArea*>(QStringLiteral("client"))->viewport();
    QCoreApplication::processEvents();
    return opened;
  }

  // A point of the map as the mouse events of the window count it.
  QPoint At(QPoint point) const { return (QPointF(point) / view->devicePixelRatioF()).toPoint(); }

  void Press(QPoint at, Qt::KeyboardModifiers keys = {}) {
    QTest::mousePress(view, Qt::LeftButton, keys, At(at));
  }
  void Release(QPoint at, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseRelease(view, Qt::LeftButton, keys, At(at));
  }
  void Move(QPoint to, Qt::MouseButtons buttons, Qt::KeyboardModifiers keys = {}) {
    QMouseEvent event(QEvent::MouseMove, At(to), view->mapToGlobal(At(to)), Qt::NoButton, buttons,
                      keys);
    QCoreApplication::sendEvent(view, &event);
  }
  void Click(QPoint at) {
    Press(at);
    Release(at);
  }
  void DoubleClick(QPoint at) {
    Click(at);
    QTest::mouseDClick(view, Qt::LeftButton, {}, At(at));
    Release(at);
  }
  void Drag(QPoint from, QPoint to) {
    Press(from);
    Move((from + to) / 2, Qt::LeftButton);
    Move(to, Qt::LeftButton);
    Release(to);
  }
  void Draw(int tool, int level, QPoint from, QPoint to) {
    window->SetTool(tool);
    SetLevel(level);
    Drag(from, to);
  }
  void SetLevel(int level) {
    DialogAnswers answers;
    answers.Add([=](QDialog& dialog) {
      dialog.findChild<QLineEdit*>(QStringLiteral("level"))->setText(QString::number(level));
      dialog.accept();
    });
    window->RunCommand(kSetLevel);
  }

  // What the window shows, a pixel of the map each.
  QImage Shown() const { return view->grab().toImage().convertToFormat(QImage::Format_RGB32); }

  QMdiArea area;
  Frame frame;
  TMapWindow* window;
  QWidget* view = nullptr;
};

TEST_F(MapWindow, NewMapFillsTheWindowAndAsksBeforeItCloses) {
  EXPECT_EQ(window->ClientSize(), QSize(400, 400));
  EXPECT_EQ(window->CurrentTool(), kSelectTool);
  EXPECT_EQ(window->Objects().CountObjects(), 1);
  EXPECT_FALSE(window->IsSaved());
}

TEST_F(MapWindow, SizeWaitsForTheWindowToBeNormal) {
  window->showMaximized();
  QCoreApplication::processEvents();
  auto* second = Open(300, 210);
  EXPECT_TRUE(second->isMaximized());
  second->showNormal();
  QCoreApplication::processEvents();
  EXPECT_EQ(second->ClientSize(), QSize(300, 210));
  auto* third = new TMapWindow(&area, QStringLiteral("untitled"), 310, 210, &frame);
  third->showMinimized();
  QCoreApplication::processEvents();
  third->showNormal();
  QCoreApplication::processEvents();
  EXPECT_EQ(third->ClientSize(), QSize(310, 210));
}

}  // namespace
}  // namespace plenovia
