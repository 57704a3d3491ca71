#include "depthmap/depth_obj.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace plenovia {
namespace {

constexpr std::int32_t kLow = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHigh = std::numeric_limits<std::int32_t>::max();

TDepthObj Object(DepthObjKind kind, const DepthRect& rect) {
  return {nullptr, rect, kind, 80};
}

TEST(DepthObj, EachKindCoversItsPoints) {
  struct Case {
    DepthObjKind kind;
    DepthRect rect;
    DepthPoint point;
    bool covered;
  };
  const DepthRect box{10, 10, 110, 50};
  const DepthRect back{110, 50, 10, 10};
  for (const Case& c : std::vector<Case>{
           {TextObj, box, {10, 10}, true},
           {CurveObj, box, {109, 49}, true},
           {SquareBoxObj, box, {109, 49}, true},
           {SquareBoxObj, box, {110, 30}, false},
           {SquareBoxObj, box, {30, 50}, false},
           {SquareBoxObj, back, {10, 10}, true},
           {SquareBoxObj, back, {110, 49}, false},
           {RoundBoxObj, box, {10, 10}, false},
           {RoundBoxObj, box, {15, 10}, true},  // corners are 10 wide and high
           {RoundBoxObj, box, {12, 10}, false},
           {RoundBoxObj, back, {109, 15}, true},
           {CircleObj, box, {12, 12}, false},
           {CircleObj, box, {60, 10}, true},
           {CircleObj, back, {10, 30}, true},
           {LineObj, {10, 10, 10, 10}, {10, 10}, false},
           {LineObj, {10, 10, 50, 50}, {30, 30}, true},
           {LineObj, {50, 10, 10, 50}, {30, 30}, true},
           {LineObj, {50, 10, 10, 50}, {33, 30}, false},
           {LineObj, {10, 10, 50, 10}, {49, 10}, true},
           {static_cast<DepthObjKind>(7), box, {30, 30}, false},
           {SquareBoxObj, {10, 10, 10, 50}, {10, 20}, false},
           {SquareBoxObj, {kLow, kLow, kHigh, kHigh}, {kHigh - 1, kLow}, true},
           {CircleObj, {kHigh, kLow, kLow, kHigh}, {-1, kLow}, true},
       }) {
    EXPECT_EQ(Object(c.kind, c.rect).ContainsPoint(c.point.x, c.point.y), c.covered)
        << "kind " << c.kind << " at " << c.point.x << ", " << c.point.y;
  }
}

TEST(DepthObj, APolygonFollowsItsVertices) {
  TDepthObj polygon = Object(PolygonObj, {});
  polygon.AddPoint({20, 10});
  polygon.AddPoint({60, 10});
  polygon.UpdateBounds();
  EXPECT_EQ(polygon.GetRect(), (DepthRect{20, 10, 20, 10}));
  EXPECT_FALSE(polygon.ContainsPoint(30, 10));
  polygon.AddPoint({60, 50});
  polygon.UpdateBounds();
  EXPECT_EQ(polygon.GetRect(), (DepthRect{20, 10, 60, 50}));
  EXPECT_TRUE(polygon.ContainsPoint(50, 20));

  polygon.MoveTo({25, 7, 65, 47});
  EXPECT_EQ(polygon.GetRect(), (DepthRect{25, 7, 65, 47}));
  EXPECT_EQ(polygon.GetPoints()[2], (DepthPoint{65, 47}));
  EXPECT_TRUE(polygon.ContainsPoint(55, 17));
  EXPECT_FALSE(polygon.ContainsPoint(50, 45));
  polygon.MoveTo({kHigh, kLow, 0, 0});
  EXPECT_EQ(polygon.GetPoints()[2], (DepthPoint{kHigh, kLow + 40}));

  polygon.SetPoints(std::vector<DepthPoint>(70, DepthPoint{1, 2}));
  EXPECT_EQ(polygon.GetPoints().size(), 64u);
  EXPECT_EQ(polygon.GetRect(), (DepthRect{1, 2, 1, 2}));

  TDepthObj box = Object(SquareBoxObj, {0, 0, 5, 5});
  box.AddPoint({9, 9});
  box.SetPoints(std::vector<DepthPoint>(3));
  EXPECT_TRUE(box.GetPoints().empty());
  EXPECT_TRUE(box.ContainsPoint(4, 4));
  box.MoveTo({20, 20, 30, 10});
  EXPECT_EQ(box.GetRect(), (DepthRect{20, 20, 30, 10}));
  EXPECT_FALSE(box.ContainsPoint(4, 4));
  EXPECT_TRUE(box.ContainsPoint(29, 19));
}

TEST(DepthRect, ShiftKeepsTheSizeAndTheCornersAtTheEndsOfTheNumbers) {
  const DepthRect rect{30, 10, 20, 40};
  EXPECT_EQ(rect.Shifted(5, -3), (DepthRect{35, 7, 25, 37}));
  EXPECT_EQ(rect.Shifted(std::int64_t{1} << 40, -(std::int64_t{1} << 40)),
            (DepthRect{kHigh, kLow, kHigh - 10, kLow + 30}));
  EXPECT_EQ((DepthRect{kLow, kLow, kHigh, kHigh}.Shifted(9, -9)),
            (DepthRect{kLow, kLow, kHigh, kHigh}));
}

}  // namespace
}  // namespace plenovia
