#include "depthmap/arranging.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "depthmap/map_clip.h"
#include "depthmap/picking.h"
#include "depthmap/selection_edits.h"
#include "platform/random.h"

namespace plenovia {
namespace {

class Arranging : public testing::Test {
 protected:
  Arranging() { list.KeepHistory(); }

  void Add(DepthObjKind kind, const DepthRect& rect, std::vector<DepthPoint> points = {}) {
    auto object = std::make_unique<TDepthObj>(nullptr, rect, kind, ++level);
    object->SetPoints(points);
    list.AddObject(std::move(object));
  }
  void SelectShapes() { list.SelectAll(ObjectsAboveBackground(list)); }
  // "x1,y1,x2,y2" or the vertices of the shapes, in the order in which they were added.
  std::string Shapes() const {
    std::string text;
    std::vector<const TDepthObj*> all = ObjectsAboveBackground(list);
    for (auto object = all.rbegin(); object != all.rend(); ++object) {
      const auto [rect, points] = (*object)->GetGeometry();
      std::vector<DepthPoint> corners{{rect.x1, rect.y1}, {rect.x2, rect.y2}};
      for (const auto& [x, y] : points.empty() ? corners : points) {
        text += std::to_string(x) + "," + std::to_string(y) + ",";
      }
      text.back() = ' ';
    }
    return text;
  }
  // The levels from the top down, of those selected with a star.
  std::string Stack() const {
    std::string text;
    for (auto* object = list.Head(); object != nullptr; object = TDepthList::Below(*object)) {
      text += std::to_string(object->GetLevel()) + (object->IsSelected() ? "* " : " ");
    }
    return text;
  }

  TDepthList list{300, 200};
  int level = 0;
};

TEST_F(Arranging, TurnsAndMirrorsAreExactAndComeBack) {
  Random random(5);
  for (int round = 0; round < 200; ++round) {
    TDepthList map(300, 200);
    std::swap(list, map);
    const auto at = [&] { return random.Int(-50, 250); };
    for (const DepthObjKind kind : {SquareBoxObj, LineObj, CircleObj}) {
      Add(kind, {at(), at(), at(), at()});
    }
    Add(PolygonObj, {}, {{at(), at()}, {at(), at()}, {at(), at()}});
    SelectShapes();
    const std::string start = Shapes();
    for (int n = 0; n < 4; ++n) TurnSelection(list, Turn::kRight);
    ASSERT_EQ(Shapes(), start);
    TurnSelection(list, Turn::kRight);
    TurnSelection(list, Turn::kLeft);
    ASSERT_EQ(Shapes(), start);
    for (const MirrorAxis axis : {MirrorAxis::kLeftRight, MirrorAxis::kUpDown}) {
      MirrorSelection(list, axis);
      MirrorSelection(list, axis);
    }
    ASSERT_EQ(Shapes(), start);
  }
}

TEST_F(Arranging, TurnedShapesCoverTheTurnedPixels) {
  Add(SquareBoxObj, {100, 50, 140, 60});
  Add(CircleObj, {110, 20, 130, 50});
  SelectShapes();  // the box around them: 100..140 by 20..60
  const auto samples = [&](auto place) {
    std::string levels;
    for (int y = 20; y < 60; y += 3) {
      for (int x = 100; x < 140; x += 3) {
        const auto [atX, atY] = place(x, y);
        levels += std::to_string(list.GetLevelAt(atX, atY));
      }
    }
    return levels;
  };
  const auto same = [](int x, int y) { return std::pair(x, y); };
  const std::string start = samples(same);
  TurnSelection(list, Turn::kRight);
  EXPECT_EQ(samples([](int x, int y) { return std::pair(100 + 59 - y, 20 + x - 100); }), start);
  TurnSelection(list, Turn::kLeft);
  MirrorSelection(list, MirrorAxis::kUpDown);
  EXPECT_EQ(samples([](int x, int y) { return std::pair(x, 79 - y); }), start);
  list.Undo();
  list.Undo();
  list.Undo();
  EXPECT_EQ(samples(same), start);
}

TEST_F(Arranging, AMirroredCurveIsTheMirroredHalf) {
  Add(CurveObj, {20, 10, 60, 30});  // the lower left half
  SelectShapes();
  MirrorSelection(list, MirrorAxis::kLeftRight);
  EXPECT_EQ(Shapes(), "20,30,60,10 ") << "the lower right half";
}

TEST_F(Arranging, PolygonsAndLinesTurnByAnyAngle) {
  Add(SquareBoxObj, {0, 0, 10, 10});
  SelectShapes();
  EXPECT_FALSE(RotateSelection(list, 30));
  Add(PolygonObj, {}, {{100, 100}, {200, 100}, {200, 140}, {100, 140}});
  SelectShapes();
  EXPECT_TRUE(RotateSelection(list, 30));
  EXPECT_EQ(Shapes(), "0,0,10,10 117,78,203,128,183,162,97,112 ");
  EXPECT_EQ(list.UndoKind(), EditKind::kRotate);
  EXPECT_TRUE(RotateSelection(list, -30));
  EXPECT_EQ(Shapes(), "0,0,10,10 100,100,200,100,200,140,100,140 ");
}

TEST_F(Arranging, ShapesLineUpAndSpreadOut) {
  Add(SquareBoxObj, {10, 20, 30, 40});
  Add(CircleObj, {100, 60, 50, 50});
  Add(SquareBoxObj, {200, 100, 245, 130});
  const std::string start = Shapes();
  const std::vector<std::pair<Alignment, const char*>> cases{
      {Alignment::kLeft, "10,20,30,40 60,60,10,50 10,100,55,130 "},
      {Alignment::kCentre, "117,20,137,40 152,60,102,50 105,100,150,130 "},
      {Alignment::kRight, "225,20,245,40 245,60,195,50 200,100,245,130 "},
      {Alignment::kTop, "10,20,30,40 100,30,50,20 200,20,245,50 "},
      {Alignment::kMiddle, "10,65,30,85 100,80,50,70 200,60,245,90 "},
      {Alignment::kBottom, "10,110,30,130 100,130,50,120 200,100,245,130 "}};
  for (const auto& [alignment, expected] : cases) {
    SelectShapes();
    AlignSelection(list, alignment);
    EXPECT_EQ(Shapes(), expected);
    list.Undo();
    EXPECT_EQ(Shapes(), start);
  }
  SelectShapes();
  SpreadSelection(list, Spread::kAcross);
  EXPECT_EQ(Shapes(), "10,20,30,40 140,60,90,50 200,100,245,130 ");
  SpreadSelection(list, Spread::kDown);
  EXPECT_EQ(Shapes(), "10,20,30,40 140,75,90,65 200,100,245,130 ");
  list.Select(list.Head());
  AlignSelection(list, Alignment::kCentre);
  AlignSelection(list, Alignment::kBottom);
  EXPECT_EQ(list.Head()->GetRect(), (DepthRect{128, 170, 173, 200})) << "one alone goes by the map";
}

TEST_F(Arranging, OrderIsKeptOnTheWayToTheTopAndTheBottom) {
  for (int i = 0; i < 5; ++i) Add(SquareBoxObj, {0, 0, 10, 10});
  const std::vector<const TDepthObj*> all = ObjectsAboveBackground(list);
  list.SelectAll(std::vector{all[3], all[1], list.Background()});
  PutSelectionOnTop(list);
  EXPECT_EQ(Stack(), "4* 2* 5 3 1 0* ");
  PutSelectionAtBottom(list);
  EXPECT_EQ(Stack(), "5 3 1 4* 2* 0* ");
  list.Undo();
  list.Undo();
  EXPECT_EQ(Stack(), "5 4* 3 2* 1 0 ");
  PutSelectionAbove(list, all[4]);
  EXPECT_EQ(Stack(), "5 3 4* 2* 1 0 ");
  PutSelectionAbove(list, all[3]);
  EXPECT_EQ(Stack(), "5 3 4* 2* 1 0 ") << "it lies there already";
}

TEST_F(Arranging, CopiesLieOnTopBesideTheirShapes) {
  Add(SquareBoxObj, {10, 10, 20, 20});
  Add(PolygonObj, {}, {{50, 50}, {80, 50}, {80, 80}});
  SelectShapes();
  DuplicateSelection(list);
  EXPECT_EQ(Stack(), "2* 1* 2 1 0 ");
  EXPECT_EQ(Shapes(), "10,10,20,20 50,50,80,50,80,80 20,20,30,30 60,60,90,60,90,90 ");
  list.Undo();
  EXPECT_EQ(Stack(), "2 1 0 ");

  SelectShapes();
  const auto bytes = EncodeObjects(CopiedSelection(list)).value();
  PasteObjects(list, DecodeObjects(bytes).value());
  PasteObjects(list, DecodeObjects(bytes).value());
  EXPECT_EQ(Stack(), "2* 1* 2 1 2 1 0 ");
  EXPECT_TRUE(Shapes().ends_with(" 30,30,40,40 70,70,100,70,100,100 ")) << Shapes();
  TDepthList other(50, 50);
  PasteObjects(other, DecodeObjects(bytes).value());
  EXPECT_EQ(other.Head()->GetPoints()[0], (DepthPoint{50, 50})) << "its own place in another map";
  list.Select(list.Background());
  EXPECT_FALSE(EncodeObjects(CopiedSelection(list)));
  EXPECT_FALSE(DecodeObjects(std::span(bytes).first(bytes.size() - 1)));
}

}  // namespace
}  // namespace plenovia
