// Shapes that are made by the program: steps, and polygons from outlines.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>
#include <vector>

#include "depthmap/level_choice.h"
#include "depthmap/outline_polygons.h"
#include "depthmap/shape_steps.h"

namespace plenovia {
namespace {

std::vector<std::int32_t> LevelsAlong(const TDepthList& list, DepthPoint from, DepthPoint step,
                                      int count) {
  std::vector<std::int32_t> levels;
  for (int i = 0; i < count; ++i, from = {from.x + step.x, from.y + step.y}) {
    levels.push_back(list.GetLevelAt(from.x, from.y));
  }
  return levels;
}

struct StepCase {
  StepForm form;
  DepthObjKind kind;
  DepthPoint from;  // a walk uphill from the edge to the highest place
  DepthPoint step;
};

TEST(ShapeSteps, RiseEvenlyFromTheShapeToItsTopInOneStepOfTheHistory) {
  // All in a box from (20, 10) to (120, 90), its corners in an order of their own.
  for (const auto& [form, kind, from, step] :
       {StepCase{StepForm::kCone, CircleObj, {20, 50}, {1, 0}},
        {StepForm::kDome, CircleObj, {70, 89}, {0, -1}},
        {StepForm::kCone, SquareBoxObj, {70, 10}, {0, 1}},
        {StepForm::kRampRight, RoundBoxObj, {20, 50}, {1, 0}},
        {StepForm::kRampLeft, SquareBoxObj, {119, 12}, {-1, 0}},
        {StepForm::kRampDown, SquareBoxObj, {25, 10}, {0, 1}},
        {StepForm::kRampUp, PolygonObj, {70, 89}, {0, -1}},
        {StepForm::kCone, PolygonObj, {70, 89}, {0, -1}}}) {
    TDepthList list(200, 100);
    auto shape = std::make_unique<TDepthObj>(nullptr, DepthRect{120, 10, 20, 90}, kind, 3);
    const std::vector<DepthPoint> corners{{20, 10}, {120, 10}, {120, 90}, {20, 90}};
    shape->SetPoints(corners);
    list.AddObject(std::move(shape));
    list.Select(list.Head());
    list.KeepHistory();
    MakeStepsOfSelected(list, {form, 10, 20, 110});
    ASSERT_EQ(list.CountObjects(), 11);
    EXPECT_EQ(list.Selection().size(), 10u);
    const bool alongX = step.x != 0;
    const bool ramp = form >= StepForm::kRampRight;
    const int way = (alongX ? 100 : 80) / (ramp ? 1 : 2);
    const auto levels = LevelsAlong(list, from, step, way);
    EXPECT_TRUE(std::ranges::is_sorted(levels)) << static_cast<int>(form);
    EXPECT_LE(levels.front(), 30);
    EXPECT_EQ(levels.back(), 110);
    for (int i = 0; i < way; ++i) {
      const double outwards = 1 - (i + 0.5) / way;
      const double height =
          form == StepForm::kDome ? std::sqrt(1 - outwards * outwards) : 1 - outwards;
      EXPECT_NEAR(levels[static_cast<std::size_t>(i)], 20 + 90 * height, 22) << i;
    }
    list.Undo();
    EXPECT_EQ(list.CountObjects(), 2);
    EXPECT_EQ(list.GetLevelAt(70, 50), 3);
  }
}

TEST(ShapeSteps, AreNoMoreThanLevelsAndNoneIsEmpty) {
  const TDepthObj box(nullptr, {0, 0, 2, 1}, SquareBoxObj, 0);
  EXPECT_EQ(MakeSteps(box, {StepForm::kCone, 64, 9, 7}).size(), 2u) << "the third has no width";
  EXPECT_EQ(MakeSteps(box, {StepForm::kRampUp, 64, 5, 5}).size(), 1u);
  EXPECT_LE(MakeSteps(box, {StepForm::kDome, 64, 0, 255}).size(), 64u);
  for (const DepthObjKind kind : {LineObj, CurveObj, TextObj, PolygonObj}) {
    EXPECT_TRUE(MakeSteps(TDepthObj(nullptr, {0, 0, 50, 50}, kind, 0), {}).empty());
  }
}

Outline Ring(double x, double y, double radius, int points) {
  Outline ring;
  for (int i = 0; i < points; ++i) {
    const double angle = 2 * std::numbers::pi * i / points;
    ring.push_back({x + radius * std::cos(angle), y + radius * std::sin(angle)});
  }
  return ring;
}

TEST(OutlinePolygons, CoverWhatTheOutlinesFillAndLeaveHolesOpen) {
  // A ring with an island in its hole, a plate with two holes, a star too fine for one polygon.
  std::vector<Outline> outlines{
      Ring(60, 60, 50.3, 200), Ring(60, 60, 30.2, 150),
      Ring(60, 60, 10, 40),    {{130, 5}, {190, 5}, {190, 115}, {130, 115}},
      Ring(160, 30, 15, 33),   Ring(160, 80, 20, 77)};
  Outline star = Ring(260, 60, 50, 160);
  for (std::size_t i = 0; i < star.size(); i += 2) {
    star[i] = {260 + (star[i].x - 260) / 2, 60 + (star[i].y - 60) / 2};
  }
  outlines.push_back(star);
  const auto polygons = OutlinePolygons(outlines, 40);
  TDepthList list(320, 120);
  const auto distance = [&](double x, double y) {
    double least = 1e9;
    for (const Outline& outline : outlines) {
      for (std::size_t i = 0; i < outline.size(); ++i) {
        const OutlinePoint& a = outline[i];
        const OutlinePoint& b = outline[(i + 1) % outline.size()];
        const double length = std::pow(b.x - a.x, 2) + std::pow(b.y - a.y, 2);
        const double place =
            std::clamp(((x - a.x) * (b.x - a.x) + (y - a.y) * (b.y - a.y)) / length, 0.0, 1.0);
        least = std::min(least,
                         std::hypot(x - a.x - place * (b.x - a.x), y - a.y - place * (b.y - a.y)));
      }
    }
    return least;
  };
  const auto fills = [&](double x, double y) {
    int crossings = 0;
    for (const Outline& outline : outlines) {
      for (std::size_t i = 0; i < outline.size(); ++i) {
        const OutlinePoint& a = outline[i];
        const OutlinePoint& b = outline[(i + 1) % outline.size()];
        if ((a.y > y) == (b.y > y)) continue;
        if (x < a.x + (y - a.y) / (b.y - a.y) * (b.x - a.x)) ++crossings;
      }
    }
    return crossings % 2 != 0;
  };
  int covered = 0;
  int unsure = 0;
  for (int y = 0; y < 120; ++y) {
    for (int x = 0; x < 320; ++x) {
      const auto count = std::ranges::count_if(
          polygons, [&](const auto& polygon) { return polygon->ContainsPoint(x, y); });
      ASSERT_LE(count, 1) << x << "," << y;
      covered += static_cast<int>(count);
      // Half a pixel by rounding along each axis, half a pixel by leaving out.
      if (distance(x + 0.5, y + 0.5) < 1.25) {
        ++unsure;
      } else {
        ASSERT_EQ(count == 1, fills(x + 0.5, y + 0.5)) << x << "," << y;
      }
    }
  }
  EXPECT_GT(covered, 8000);
  EXPECT_LT(unsure, 9000);
  for (const auto& polygon : polygons) EXPECT_LE(polygon->GetPoints().size(), 64u);
  EXPECT_LT(polygons.size(), 20u);
}

TEST(OutlinePolygons, TakeWhatIsNoOutline) {
  const std::vector<Outline> odd{{}, {{1, 1}}, {{1, 1}, {5, 5}}, {{1, 1}, {1.2, 1.1}, {0.9, 1.3}}};
  EXPECT_TRUE(OutlinePolygons(odd, 1).empty());
  const std::vector<Outline> far{{{-1e300, 0}, {1e300, 0}, {0, 1e300}}};
  EXPECT_EQ(OutlinePolygons(far, 1).size(), 1u);
}

TEST(LevelChoice, OnlyWhatChangesALevelStandsOut) {
  TDepthList list(50, 40);
  list.AddObject(std::make_unique<TDepthObj>(nullptr, DepthRect{10, 10, 30, 30}, CircleObj, 9));
  const auto standsOut = [&](const DepthRect& rect, std::int32_t level) {
    return StandsOut(TDepthObj(nullptr, rect, SquareBoxObj, level), list);
  };
  EXPECT_FALSE(standsOut({18, 18, 22, 22}, 9));
  EXPECT_TRUE(standsOut({18, 18, 22, 35}, 9)) << "in part";
  EXPECT_FALSE(standsOut({40, 0, 99, 99}, 0)) << "what lies off the map does not count";
  EXPECT_FALSE(standsOut({60, 0, 99, 99}, 7));
  EXPECT_TRUE(standsOut({0, 0, 1, 1}, LevelThatStandsOut(0)));
  for (const std::int32_t ground : {0, 100, 239, 240, 255}) {
    EXPECT_TRUE(IsLevel(LevelThatStandsOut(ground)));
    EXPECT_NE(LevelThatStandsOut(ground), ground);
  }
}

}  // namespace
}  // namespace plenovia
