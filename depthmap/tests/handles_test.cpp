#include "depthmap/handles.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace plenovia {
namespace {

constexpr GestureKeys kShift{true, false, false};
constexpr GestureKeys kControl{false, true, false};
constexpr GestureKeys kAlt{false, false, true};
constexpr GestureKeys kShiftAlt{true, false, true};

class Handles : public testing::Test {
 protected:
  Handles() { list.KeepHistory(); }

  void Put(DepthObjKind kind, const DepthRect& rect, const std::vector<DepthPoint>& points = {}) {
    auto object = std::make_unique<TDepthObj>(nullptr, rect, kind, 1);
    object->SetPoints(points);
    list.AddObject(std::move(object));
    list.Select(list.Head());
    list.MarkSaved();
  }
  // Whether there was a handle.
  bool Drag(DepthPoint from, DepthPoint to, GestureKeys keys = {}) {
    const auto gesture = PressOnHandle(list, {from, keys, 4});
    if (!gesture) return false;
    gesture->MoveTo({from.x + 1, from.y - 17}, {});
    gesture->MoveTo(to, keys);
    gesture->Finish();
    return true;
  }
  std::string Shape() const {
    const auto [rect, points] = list.Head()->GetGeometry();
    std::vector<DepthPoint> corners{{rect.x1, rect.y1}, {rect.x2, rect.y2}};
    std::string text;
    for (const auto& [x, y] : points.empty() ? corners : points) {
      text += std::to_string(x) + "," + std::to_string(y) + " ";
    }
    return text;
  }

  TDepthList list{200, 200};
};

TEST_F(Handles, BoxesAreResizedByCornersAndSides) {
  struct Case {
    DepthPoint from;
    DepthPoint to;
    GestureKeys keys;
    const char* shape;
  };
  const std::vector<Case> cases{
      {{40, 60}, {31, 52}, {}, "100,100 31,52 "},  // dragged from its lower right corner
      {{42, 58}, {33, 50}, {}, "100,100 31,52 "},  // held beside the corner
      {{100, 60}, {110, 52}, {}, "110,100 40,52 "},
      {{100, 60}, {30, 130}, {}, "30,100 40,130 "},  // over the opposite corner
      {{70, 60}, {99, 50}, {}, "100,100 40,50 "},
      {{100, 80}, {120, 99}, {}, "120,100 40,60 "},
      {{100, 80}, {120, 99}, kAlt, "120,100 20,60 "},
      {{40, 60}, {31, 52}, kAlt, "109,108 31,52 "},
      {{40, 60}, {10, 59}, kShift, "100,100 10,40 "},
      {{40, 60}, {160, 120}, kShift, "100,100 160,140 "},  // mirrored
      {{40, 60}, {25, 60}, kShiftAlt, "115,110 25,50 "},
  };
  for (const auto& [from, to, keys, shape] : cases) {
    Put(CircleObj, {100, 100, 40, 60});
    EXPECT_TRUE(Drag(from, to, keys));
    EXPECT_EQ(Shape(), shape);
    EXPECT_EQ(list.UndoKind(), EditKind::kResize);
    list.Undo();
    EXPECT_EQ(Shape(), "100,100 40,60 ");
    EXPECT_TRUE(list.IsSaved());
  }
  EXPECT_FALSE(Drag({70, 80}, {0, 0}));
  EXPECT_FALSE(Drag({47, 60}, {0, 0})) << "too far away";
}

TEST_F(Handles, SmallShapesCanBeHeldBetweenThem) {
  Put(SquareBoxObj, {10, 10, 18, 18});
  EXPECT_FALSE(Drag({14, 14}, {20, 20}));
  EXPECT_FALSE(Drag({13, 10}, {20, 20})) << "no handle in the middle of a short side";
  EXPECT_TRUE(Drag({12, 11}, {22, 21}));
  EXPECT_EQ(Shape(), "20,20 18,18 ");
}

TEST_F(Handles, EndsOfLinesAndVerticesMoveAlone) {
  Put(LineObj, {100, 100, 40, 60});
  EXPECT_TRUE(Drag({40, 60}, {95, 20}, kShift));
  EXPECT_EQ(Shape(), "100,100 100,20 ");
  EXPECT_TRUE(Drag({100, 100}, {130, 52}, kShift));
  EXPECT_EQ(Shape(), "131,51 100,20 ");

  const std::vector<DepthPoint> triangle{{20, 20}, {80, 20}, {80, 70}};
  Put(PolygonObj, {}, triangle);
  EXPECT_TRUE(Drag({80, 70}, {30, 90}));
  EXPECT_EQ(Shape(), "20,20 80,20 30,90 ");
  EXPECT_EQ(list.Head()->GetRect(), (DepthRect{20, 20, 80, 90}));
  EXPECT_EQ(list.UndoKind(), EditKind::kMovePoint);
  EXPECT_TRUE(Drag({30, 90}, {85, 60}, kShift)) << "straight below the vertex before it";
  EXPECT_EQ(Shape(), "20,20 80,20 80,60 ");
  EXPECT_TRUE(Drag({20, 60}, {50, 40})) << "a corner of the rectangle takes all with it";
  EXPECT_EQ(Shape(), "50,20 80,20 80,40 ");
}

TEST_F(Handles, PointsAreAddedAndDeleted) {
  Put(PolygonObj, {}, {{20, 20}, {80, 20}, {80, 70}});
  EXPECT_EQ(AddPointAt(list, {50, 50}, 4), AddedPoint::kAdded);
  EXPECT_EQ(Shape(), "20,20 80,20 80,70 50,50 ");
  EXPECT_EQ(AddPointAt(list, {30, 60}, 4), AddedPoint::kNone);
  const auto gesture = PressOnHandle(list, {{80, 20}, kControl, 4});
  gesture->MoveTo({0, 0}, {});
  gesture->Finish();
  EXPECT_EQ(Shape(), "20,20 80,70 50,50 ");
  PressOnHandle(list, {{80, 70}, kControl, 4});
  EXPECT_EQ(Shape(), "20,20 80,70 50,50 ") << "three are left";
  list.Undo();
  list.Undo();
  EXPECT_TRUE(list.IsSaved());

  std::vector<DepthPoint> many;
  for (int i = 0; i < 64; ++i) many.push_back({3 * i, 10 + i % 2});
  Put(PolygonObj, {}, many);
  EXPECT_EQ(AddPointAt(list, {100, 10}, 4), AddedPoint::kTooMany);
}

TEST_F(Handles, OnlyOneSelectedShapeHasThemAndNotTheBackground) {
  Put(SquareBoxObj, {10, 10, 60, 60});
  Put(SquareBoxObj, {10, 10, 60, 60});
  list.SelectAll(std::vector<const TDepthObj*>{list.Head(), TDepthList::Below(*list.Head())});
  EXPECT_FALSE(Drag({10, 10}, {0, 0}));
  list.Select(list.Background());
  EXPECT_FALSE(Drag({0, 0}, {10, 10}));
}

}  // namespace
}  // namespace plenovia
