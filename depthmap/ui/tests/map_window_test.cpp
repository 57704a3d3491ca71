#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMimeData>
#include <QScrollBar>
#include <QtTest/QTest>
#include <string>
#include <utility>
#include <vector>

#include "depthmap/picking.h"
#include "depthmap/ui/tests/map_window_fixture.h"

namespace plenovia {
namespace {

TEST_F(MapWindow, NewMapFillsTheWindow) {
  EXPECT_EQ(window->ClientSize(), QSize(400, 400));
  EXPECT_EQ(window->windowTitle(), kUntitled);
  EXPECT_EQ(window->GetWindowKind(), kDepthMapWindow);
  EXPECT_EQ(window->CurrentTool(), kSelectTool);
  EXPECT_EQ(Top(), "3(0,0,400,400)=0");
  EXPECT_EQ(window->Objects().CountObjects(), 1);
  EXPECT_FALSE(window->IsSaved());
  EXPECT_EQ(Open(401, 300)->GetImageSize(), 121200u);
}

TEST_F(MapWindow, SizeWaitsForTheWindowToBeNormal) {
  window->showMaximized();
  QCoreApplication::processEvents();
  auto* second = Open(300, 210);
  EXPECT_TRUE(second->isMaximized());
  second->showNormal();
  QCoreApplication::processEvents();
  EXPECT_EQ(second->ClientSize(), QSize(300, 210));
}

TEST_F(MapWindow, AMapLargerThanTheDeskScrolls) {
  window = Open(3000, 200);
  EXPECT_TRUE(area.viewport()->rect().contains(window->geometry()));
  EXPECT_NEAR(window->ClientSize().height(), 200, 1);
  window->resize(QSize(350, 190) / window->devicePixelRatio());
  QCoreApplication::processEvents();
  const auto* client = window->findChild<QAbstractScrollArea*>(QStringLiteral("client"));
  const QPoint scroll(1431, 47);
  client->horizontalScrollBar()->setValue(scroll.x());
  client->verticalScrollBar()->setValue(scroll.y());
  Draw(kCircleTool, 7, {20, 10}, {120, 70});
  EXPECT_EQ(Top(), "6(1451,57,1551,117)=7");
  ExpectScreenUpToDate("after a new shape");
  window->RunCommand(kSquareBoxTool);
  Press({200, 20});
  Pull({300, 60});
  ExpectScreenUpToDate("with a rubber band");
  Pull({240, 40});
  ExpectScreenUpToDate("with a smaller rubber band");
  Release({240, 40});
  window->RunCommand(kMoveTool);
  Drag({70, 40}, {150, 45});
  EXPECT_EQ(Text(*window->Objects().Selected()), "6(1531,62,1631,122)=7");
  ExpectScreenUpToDate("after a move");
  client->horizontalScrollBar()->setValue(scroll.x() + 33);
  client->verticalScrollBar()->setValue(20);
  ExpectScreenUpToDate("after scrolling");
}

TEST_F(MapWindow, ScreenShowsEveryChangeInEachViewAtEachZoom) {
  const auto scroll = [&] {
    const auto* client = window->findChild<QAbstractScrollArea*>(QStringLiteral("client"));
    return QPoint(client->horizontalScrollBar()->value(), client->verticalScrollBar()->value());
  };
  Draw(kCircleTool, 9, {40, 30}, {220, 190});
  Draw(kSquareBoxTool, 20, {120, 100}, {180, 150});
  for (const int notches : {-4, 2, 3, 7}) {
    window->RunCommand(kCmActualSize);
    const QPoint pointer(150, 130);
    Wheel(pointer, notches);
    const MapScale scale = window->Look().scale;
    window->RunCommand(kCmMapView);
    ExpectScreenUpToDate("zooming to " + scale.Text());
    const auto onMap = [&](QPoint shown) {
      const QPoint place = shown + scroll();
      return QPoint(static_cast<int>(scale.MapPixel(place.x())),
                    static_cast<int>(scale.MapPixel(place.y())));
    };
    EXPECT_TRUE(scale.IsReduced() || onMap(pointer) == pointer) << scale.Text();

    const QPoint from(31, 17);
    const QPoint to(95, 77);
    window->RunCommand(kRoundBoxTool);
    Press(from);
    Pull(to);
    ExpectScreenUpToDate("a rubber band");
    Release(to);
    ExpectScreenUpToDate("a shape");
    const auto [x1, y1, x2, y2] = window->Objects().Head()->GetRect();
    EXPECT_EQ(QPoint(x1, y1), onMap(from)) << scale.Text();
    EXPECT_EQ(QPoint(x2, y2), onMap(to)) << scale.Text();
    window->RunCommand(kMoveTool);
    Drag((from + to) / 2, to);
    ExpectScreenUpToDate("a move");
    window->RunCommand(kDeleteObject);
    ExpectScreenUpToDate("a delete");
    window->RunCommand(kPolygonTool);
    Click(from);
    Hover(to);
    ExpectScreenUpToDate("a line to the mouse");
    window->RunCommand(kLineTool);
    Click(from);
  }
  Draw(kSquareBoxTool, 200, {10, 10}, {40, 40});
  ExpectScreenUpToDate("all other shades");

  // Moving what is shown.
  window->RunCommand(kCmActualSize);
  Wheel({200, 200}, 3);
  const QPoint before = scroll();
  Mouse(QEvent::MouseButtonPress, {200, 200}, Qt::MiddleButton, Qt::MiddleButton);
  Mouse(QEvent::MouseMove, {190, 230}, Qt::NoButton, Qt::MiddleButton);
  Mouse(QEvent::MouseButtonRelease, {190, 230}, Qt::MiddleButton, Qt::NoButton);
  EXPECT_EQ(scroll() - before, QPoint(10, -30));
  window->RunCommand(kSquareBoxTool);
  const auto shapes = window->Objects().CountObjects();
  QTest::keyPress(View()->parentWidget(), Qt::Key_Space);
  Drag({200, 200}, {210, 170});
  QTest::keyRelease(View()->parentWidget(), Qt::Key_Space);
  EXPECT_EQ(scroll(), before);
  EXPECT_EQ(window->Objects().CountObjects(), shapes) << "space pans with each tool";
  window->RunCommand(kCmZoomToFit);
  EXPECT_EQ(scroll(), QPoint());
  EXPECT_EQ(window->Look().scale, MapScale());
}

TEST_F(MapWindow, EachToolDrawsItsShapeWithTheCornersOfTheDrag) {
  const std::vector<std::pair<int, const char*>> cases{{kLineTool, "1(200,150,100,50)=7"},
                                                       {kCurveTool, "2(200,150,100,50)=7"},
                                                       {kSquareBoxTool, "3(200,150,100,50)=7"},
                                                       {kRoundBoxTool, "4(200,150,100,50)=7"},
                                                       {kCircleTool, "6(200,150,100,50)=7"}};
  for (const auto& [tool, expected] : cases) {
    Draw(tool, 7, {200, 150}, {100, 50});
    EXPECT_EQ(Top(), expected);
    EXPECT_EQ(window->Objects().Selected(), window->Objects().Head());
  }
  EXPECT_EQ(window->Objects().GetLevelAt(150, 100), 7);
  EXPECT_EQ(window->Objects().GetLevelAt(200, 100), 0);
}

TEST_F(MapWindow, OnlyADragWithTheLeftButtonAloneDraws) {
  window->RunCommand(kSquareBoxTool);
  Click({50, 50});
  Press({10, 10}, Qt::ShiftModifier);
  Pull({60, 60}, Qt::ShiftModifier);
  Release({60, 60});
  EXPECT_EQ(window->Objects().CountObjects(), 1);

  Press({10, 10});
  Pull({11, 10});
  Pull({90, 60}, Qt::ControlModifier);
  Release({-5, 500});  // outside of the window
  EXPECT_EQ(Top(), "3(10,10,-5,500)=0");
  Drag({50, 50}, {51, 50});
  EXPECT_EQ(window->Objects().CountObjects(), 2) << "a box without area";
}

TEST_F(MapWindow, ADragWhoseReleaseIsLostEndsWithoutAShape) {
  window->RunCommand(kSquareBoxTool);
  enum class Lost { kAtAMove, kAtAPress, kInADialog };
  for (const Lost lost : {Lost::kAtAMove, Lost::kAtAPress, Lost::kInADialog}) {
    Press({50, 50});
    Pull({120, 90});
    if (lost == Lost::kAtAMove) Hover({200, 200});
    if (lost == Lost::kInADialog) SetLevel(5);
    if (lost != Lost::kAtAPress) Pull({210, 210});
    if (lost == Lost::kInADialog) Release({210, 210});
    Click({10, 10});
    EXPECT_EQ(window->Objects().CountObjects(), 1);
  }
  ExpectScreenUpToDate("the lost drags");
  window->RunCommand(kPolygonTool);
  Press({10, 10});
  Pull({20, 20});
  Hover({100, 10});
  Click({100, 10});
  DoubleClick({100, 100});
  EXPECT_EQ(Top(), "5(10,10,100,10,100,100)=5") << "a polygon keeps its vertices";
}

TEST_F(MapWindow, PolygonCollectsClicksUpToADoubleClick) {
  window->RunCommand(kPolygonTool);
  for (const QPoint vertex : {QPoint(10, 10), {100, 10}, {100, 100}}) Click(vertex);
  Hover({30, 70});
  SetLevel(33);  // counts when the polygon is finished
  DoubleClick({10, 100});
  EXPECT_EQ(Top(), "5(10,10,100,10,100,100,10,100)=33");
  EXPECT_EQ(window->Objects().Selected(), nullptr);
  EXPECT_EQ(window->Objects().GetLevelAt(50, 50), 33);

  for (int i = 0; i < 66; ++i) Click({20 + 5 * i, 200 + i % 2});
  DoubleClick({200, 300});
  EXPECT_EQ(window->Objects().Head()->GetPoints().size(), 64u);
}

TEST_F(MapWindow, PolygonsAlsoEndAtTheirFirstPointAndWithEnter) {
  window->RunCommand(kPolygonTool);
  const auto corners = [&] {
    for (const QPoint vertex : {QPoint(10, 10), {100, 10}, {100, 100}}) Click(vertex);
  };
  corners();
  Click({12, 7});
  EXPECT_EQ(Top(), "5(10,10,100,10,100,100)=0");
  corners();
  QTest::keyClick(View()->parentWidget(), Qt::Key_Return);
  EXPECT_EQ(window->Objects().CountObjects(), 3);
  for (const QPoint vertex : {QPoint(10, 10), {12, 10}}) Click(vertex);
  QTest::keyClick(View()->parentWidget(), Qt::Key_Return);
  DoubleClick({200, 200});
  EXPECT_EQ(window->Objects().CountObjects(), 3) << "a line and a point are no polygons";
  for (int i = 0; i < 65; ++i) Click({20 + 5 * i, 200 + i % 2});
  EXPECT_EQ(window->Objects().Head()->GetPoints().size(), 64u) << "finished by the 65th";
  ExpectScreenUpToDate("polygons");
}

TEST_F(MapWindow, UnfinishedPolygonLivesUntilAnotherToolIsUsed) {
  for (const int other : {kSelectTool, kSquareBoxTool}) {
    window->RunCommand(kPolygonTool);
    Click({10, 10});
    window->RunCommand(other);
    window->RunCommand(kPolygonTool);
    Click({50, 10});
    window->RunCommand(other);
    Drag({200, 200}, {220, 220});
    window->RunCommand(kPolygonTool);
    Click({50, 50});
    Click({90, 50});
    DoubleClick({90, 90});
    EXPECT_EQ(Top(), "5(50,50,90,50,90,90)=0") << "begun anew";
    window->RunCommand(kCmUndo);
  }
}

TEST_F(MapWindow, LevelsAreTakenAndGivenWithoutMakingTheMapUnsaved) {
  Draw(kSquareBoxTool, 120, {10, 10}, {60, 60});
  Draw(kCircleTool, 40, {100, 100}, {200, 200});
  ASSERT_TRUE(window->WriteDepthMap(PathToQString(folder / "map.rds")));
  window->RunCommand(kGetLevelTool);
  Click({30, 30});
  EXPECT_EQ(window->Objects().CurrentLevel(), 120);
  window->RunCommand(kApplyLevelTool);
  Click({150, 150});
  EXPECT_EQ(Stack(), "120 120 0");
  SetLevel(30);
  Click({300, 300});
  EXPECT_EQ(window->Objects().GetLevelAt(399, 0), 30);
  EXPECT_EQ(window->Objects().Selected(), window->Objects().Background());
  EXPECT_FALSE(window->IsSaved());
  window->RunCommand(kSquareBoxTool);
  Drag({5, 5}, {9, 9});
  EXPECT_EQ(Top(), "3(5,5,9,9)=30");
  EXPECT_FALSE(window->IsSaved());
}

TEST_F(MapWindow, MoveToolShiftsWhatIsUnderTheMouse) {
  Draw(kCurveTool, 5, {60, 60}, {10, 10});
  ASSERT_TRUE(window->WriteDepthMap(PathToQString(folder / "map.rds")));
  window->RunCommand(kMoveTool);
  Drag({30, 30}, {130, 20});
  EXPECT_EQ(Top(), "2(160,50,110,0)=5");
  Drag({300, 300}, {310, 290});
  EXPECT_EQ(Text(*window->Objects().Background()), "3(0,0,400,400)=0");
  EXPECT_EQ(window->Objects().Selected(), nullptr) << "a frame around nothing";
  Press({300, 300}, Qt::ControlModifier);
  Pull({310, 290}, Qt::ControlModifier);
  Release({310, 290});
  EXPECT_EQ(Text(*window->Objects().Background()), "3(10,-10,410,390)=0");
  Click({5, 5});
  EXPECT_EQ(window->Objects().Selected(), nullptr) << "nothing is there any more";
  Drag({5, 5}, {50, 50});
  EXPECT_FALSE(window->IsSaved());
  EXPECT_EQ(window->ClientSize(), QSize(400, 400));
}

TEST_F(MapWindow, CommandsChangeTheStackAndTellOfIt) {
  for (const int level : {1, 2, 3}) Draw(kSquareBoxTool, level, {10, 10}, {60, 60});
  ASSERT_TRUE(window->WriteDepthMap(PathToQString(folder / "map.rds")));
  int changes = 0;
  QObject::connect(window, &TMouseWnd::StateChanged, window, [&] { ++changes; });
  window->RunCommand(kMoveObjectDown);
  EXPECT_EQ(Stack(), "2 3 1 0");
  EXPECT_FALSE(window->IsSaved());
  EXPECT_EQ(changes, 1);
  window->RunCommand(kMoveObjectUp);
  window->RunCommand(kMoveObjectUp);
  EXPECT_EQ(Stack(), "3 2 1 0");
  window->RunCommand(kDeleteObject);
  EXPECT_EQ(Stack(), "2 1 0");
  window->RunCommand(kDeleteObject);
  EXPECT_EQ(Stack(), "2 1 0") << "nothing is selected";
  EXPECT_EQ(changes, 2);
  std::string handled;
  for (int command = 1250; command <= 1267; ++command) {
    handled += window->HandlesCommand(command) ? "x" : "-";
  }
  EXPECT_EQ(handled, "-xxxxxxxxxxxxxxx--");
}

TEST_F(MapWindow, ToolBelongsToTheWindowThatIsActive) {
  window->RunCommand(kCircleTool);
  auto* second = Open(100, 100);
  std::vector<int> tools;
  for (TMapWindow* each : {window, second}) {
    QObject::connect(each, &TMapWindow::ToolChanged, each,
                     [&](int tool) { tools.push_back(tool); });
  }
  frame.messages.clear();
  area.setActiveSubWindow(window);
  EXPECT_EQ(frame.messages, std::vector<int>{WM_UPDATESTATUS});
  area.setActiveSubWindow(second);
  second->RunCommand(kLineTool);
  EXPECT_EQ(tools, (std::vector<int>{kCircleTool, kSelectTool, kLineTool}));
}

TEST_F(MapWindow, KeysWorkOnTheSelection) {
  Draw(kSquareBoxTool, 1, {10, 10}, {60, 60});
  Draw(kSquareBoxTool, 2, {100, 100}, {160, 160});
  const auto key = [&](Qt::Key pressed, Qt::KeyboardModifiers keys = {}) {
    QTest::keyClick(View()->parentWidget(), pressed, keys);
  };
  const auto places = [&] {
    std::string all;
    for (const auto* object : ObjectsAboveBackground(window->Objects())) all += Text(*object) + " ";
    return all;
  };
  key(Qt::Key_Right);
  key(Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(places(), "3(101,90,161,150)=2 3(10,10,60,60)=1 ");
  key(Qt::Key_Tab);
  key(Qt::Key_Down);
  EXPECT_EQ(places(), "3(101,90,161,150)=2 3(10,11,60,61)=1 ");
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(window->Objects().Selected(), window->Objects().Head());
  window->RunCommand(kCmSelectAll);
  ExpectScreenUpToDate("selecting all");
  key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(places(), "3(91,90,151,150)=2 3(0,11,50,61)=1 ");
  ExpectScreenUpToDate("moving all");
  window->RunCommand(kMoveTool);
  Press({30, 30});
  Pull({90, 90});
  key(Qt::Key_Escape);
  Pull({95, 95});
  Release({95, 95});
  EXPECT_EQ(places(), "3(91,90,151,150)=2 3(0,11,50,61)=1 ");
  window->RunCommand(kSquareBoxTool);
  Press({200, 200});
  Pull({250, 250});
  key(Qt::Key_Escape);
  Release({250, 250});
  window->RunCommand(kDeleteObject);
  EXPECT_EQ(Stack(), "0");
  ExpectScreenUpToDate("deleting all");
  window->RunCommand(kCmUndo);
  EXPECT_EQ(Stack(), "2 1 0");
  ExpectScreenUpToDate("both back");
  window->RunCommand(kMoveTool);
  Press({380, 380});
  Pull({200, 180});
  ExpectScreenUpToDate("a frame");
  Pull({300, 200});
  ExpectScreenUpToDate("a smaller frame");
  Release({300, 200});
  EXPECT_EQ(window->Objects().Selected(), nullptr);
  ExpectScreenUpToDate("no frame");
}

TEST_F(MapWindow, HandlesChangeTheSelectedShape) {
  Draw(kSquareBoxTool, 1, {40, 40}, {100, 100});
  window->RunCommand(kSelectTool);
  ExpectScreenUpToDate("handles");
  const auto cursorAt = [&](QPoint at) {
    Hover(at);
    return View()->cursor().shape();
  };
  EXPECT_EQ(cursorAt({41, 39}), Qt::SizeFDiagCursor);
  EXPECT_EQ(cursorAt({100, 71}), Qt::SizeHorCursor);
  const auto own = cursorAt({70, 70});
  EXPECT_NE(own, Qt::SizeHorCursor);
  Drag({100, 70}, {120, 70});
  EXPECT_EQ(Top(), "3(40,40,120,100)=1");
  Press({40, 40});
  Pull({30, 35}, Qt::AltModifier);
  ExpectScreenUpToDate("a corner");
  Release({30, 35});
  EXPECT_EQ(Top(), "3(30,35,130,105)=1");
  window->RunCommand(kPolygonTool);
  for (const QPoint vertex : {QPoint(200, 200), {300, 200}}) Click(vertex);
  DoubleClick({300, 300});
  window->RunCommand(kMoveTool);
  DoubleClick({250, 250});
  EXPECT_EQ(Top(), "5(200,200,300,200,300,300,250,250)=1");
  Drag({250, 250}, {220, 320});
  EXPECT_EQ(Top(), "5(200,200,300,200,300,300,220,320)=1");
  ExpectScreenUpToDate("points");
}

TEST_F(MapWindow, ShapesGoToOtherMapsAsBytesAndAsText) {
  Draw(kSquareBoxTool, 1, {10, 10}, {60, 60});
  Draw(kCircleTool, 2, {100, 100}, {160, 160});
  window->RunCommand(kCmSelectAll);
  window->RunCommand(kCmDuplicate);
  EXPECT_EQ(Stack(), "2 1 2 1 0");
  window->RunCommand(kCmCut);
  EXPECT_EQ(Stack(), "2 1 0");
  EXPECT_EQ(window->CommandSubject(kCmUndo), QStringLiteral("Cut"));
  EXPECT_FALSE(window->CommandEnabled(kCmCopy)) << "nothing is selected";
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  const QByteArray bytes = data->data(QString::fromLatin1(window->PasteFormats().front()));
  const QByteArray text = data->text().toUtf8();
  window = Open(300, 300);
  for (const QByteArray& pasted : {bytes, "\n " + text + "\n"}) {
    EXPECT_TRUE(window->Paste(pasted));
    EXPECT_EQ(window->CommandSubject(kCmUndo), QStringLiteral("Paste"));
  }
  EXPECT_EQ(Stack(), "2 1 2 1 0");
  EXPECT_EQ(Top(), "6(120,120,180,180)=2") << "beside the ones pasted before";
  for (const QByteArray& wrong :
       {QByteArray(), QByteArray("shapes"), text.chopped(9), text + "?"}) {
    EXPECT_FALSE(window->Paste(wrong));
  }
  EXPECT_EQ(Stack(), "2 1 2 1 0");
}

TEST_F(MapWindow, RotateAsksForTheAngle) {
  window->RunCommand(kPolygonTool);
  for (const QPoint vertex : {QPoint(100, 100), {200, 100}}) Click(vertex);
  DoubleClick({200, 140});
  window->RunCommand(kSelectTool);
  Click({190, 110});
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) {
    static_cast<QInputDialog&>(dialog).setDoubleValue(90);
    dialog.accept();
  });
  window->RunCommand(kRotate);
  EXPECT_EQ(Top(), "5(170,70,170,170,130,170)=0");
  window->RunCommand(kTurnLeft);
  EXPECT_EQ(Top(), "5(100,100,200,100,200,140)=0");
  ExpectScreenUpToDate("turns");
}

TEST_F(MapWindow, StepsAreTakenBackAndDoneAgain) {
  const auto subject = [&](int command) { return window->CommandSubject(command).toStdString(); };
  EXPECT_FALSE(window->CommandEnabled(kCmUndo));
  Draw(kSquareBoxTool, 7, {10, 10}, {60, 60});
  ASSERT_TRUE(window->WriteDepthMap(PathToQString(folder / "map.rds")));
  window->RunCommand(kMoveTool);
  Press({30, 30});
  Pull({80, 60});
  window->RunCommand(kCmUndo);
  Pull({130, 90});
  Release({130, 90});
  EXPECT_EQ(Top(), "3(110,70,160,120)=7") << "not during the drag";
  EXPECT_EQ(subject(kCmUndo), "Move");
  window->RunCommand(kCmUndo);
  EXPECT_EQ(Top(), "3(10,10,60,60)=7");
  EXPECT_TRUE(window->IsSaved());
  EXPECT_EQ(subject(kCmUndo), "Draw");
  EXPECT_EQ(subject(kCmRedo), "Move");
  ExpectScreenUpToDate("undo");
  window->RunCommand(kCmUndo);
  EXPECT_EQ(Stack(), "0");
  EXPECT_FALSE(window->IsSaved());
  EXPECT_FALSE(window->CommandEnabled(kCmUndo));
  for (int i = 0; i < 3; ++i) window->RunCommand(kCmRedo);
  EXPECT_EQ(Top(), "3(110,70,160,120)=7");
  EXPECT_FALSE(window->CommandEnabled(kCmRedo));
  ExpectScreenUpToDate("redo");
}

TEST_F(MapWindow, ScreenShowsEveryChange) {
  Draw(kSquareBoxTool, 200, {10, 10}, {160, 160});
  Draw(kCircleTool, 5, {100, 100}, {240, 200});
  Draw(kLineTool, 222, {300, 40}, {300, 50});  // narrower and lower than its label
  ExpectScreenUpToDate("drawing");
  window->RunCommand(kMoveTool);
  Press({50, 50});
  for (const QPoint to : {QPoint(60, 80), {200, 120}, {330, 300}}) {
    Pull(to);
    ExpectScreenUpToDate("moving");
  }
  Release({330, 300});
  window->RunCommand(kMoveObjectUp);
  ExpectScreenUpToDate("moving up");
  window->RunCommand(kSelectTool);
  Click({170, 150});
  ExpectScreenUpToDate("selecting");
  window->RunCommand(kDeleteObject);
  ExpectScreenUpToDate("deleting");

  window->RunCommand(kApplyLevelTool);
  SetLevel(0);
  Click({300, 45});
  ExpectScreenUpToDate("a shorter label");
  window->RunCommand(kRoundBoxTool);
  Press({20, 220});
  for (const QPoint to : {QPoint(120, 280), {40, 240}, {10, 200}}) {
    Pull(to);
    ExpectScreenUpToDate("pulling an outline");
  }
  Release({20, 220});
  window->RunCommand(kPolygonTool);
  for (const QPoint to : {QPoint(350, 50), {200, 300}, {90, 120}}) {
    Click(to);
    ExpectScreenUpToDate("a vertex");
    Hover({30, 60});
    Hover(to + QPoint(20, 5));
    ExpectScreenUpToDate("the line to the mouse");
  }
  DoubleClick({120, 60});
  ExpectScreenUpToDate("a polygon");
  Click({30, 30});
  Hover({380, 380});
  window->RunCommand(kGetLevelTool);
  Click({5, 390});
  ExpectScreenUpToDate("giving a polygon up");
}

}  // namespace
}  // namespace plenovia
