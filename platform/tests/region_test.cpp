#include "platform/region.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <limits>
#include <vector>

#include "platform/random.h"

namespace plenovia {
namespace {

constexpr std::int64_t kLow = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kHigh = std::numeric_limits<std::int32_t>::max();

// Holds the spans, the hit test, the bounds and the frame of a region against a plain rule for one
// pixel, on all pixels from -margin to size + margin.
void ExpectPixels(const Region& region, int size, const std::function<bool(int, int)>& covers) {
  const int margin = 4;
  const PixelRect& bounds = region.Bounds();
  for (int y = -margin; y < size + margin; ++y) {
    RowSpans expected;
    RowSpans frame;
    for (int x = -margin; x < size + margin; ++x) {
      ASSERT_EQ(region.Contains(x, y), covers(x, y)) << x << ", " << y;
      if (!covers(x, y)) continue;
      ASSERT_TRUE(bounds.left <= x && x < bounds.right && bounds.top <= y && y < bounds.bottom);
      AppendSpan(expected, x, x + 1);
      const bool inner =
          covers(x - 1, y) && covers(x + 1, y) && covers(x, y - 1) && covers(x, y + 1);
      if (!inner) AppendSpan(frame, x, x + 1);
    }
    ASSERT_EQ(region.Spans(y), expected) << "row " << y;
    ASSERT_EQ(region.FrameSpans(y), frame) << "row " << y;
  }
}

TEST(Region, CurvedShapesCoverThePixelsWhoseCentresTheyHold) {
  for (int width = 0; width <= 13; ++width) {
    for (int height = 0; height <= 13; ++height) {
      SCOPED_TRACE(testing::Message() << width << " x " << height);
      // In half pixels from the middle, multiplied out: whole numbers only.
      const auto inEllipse = [](int x, int y, int w, int h) {
        const int u = (2 * x + 1 - w) * h;
        const int v = (2 * y + 1 - h) * w;
        return x >= 0 && x < w && y >= 0 && y < h && u * u + v * v <= w * w * h * h;
      };
      ExpectPixels(Region::Ellipse({1, 2, 1 + width, 2 + height}), 16,
                   [&](int x, int y) { return inEllipse(x - 1, y - 2, width, height); });
      const int corner = std::min(width, height) / 2;
      ExpectPixels(
          Region::RoundRectangle({0, 0, width, height}, corner, corner), 16, [&](int x, int y) {
            if (x < 0 || x >= width || y < 0 || y >= height) return false;
            const int u = std::min(x, width - 1 - x);
            const int v = std::min(y, height - 1 - y);
            return 2 * u + 1 >= corner || 2 * v + 1 >= corner || inEllipse(u, v, corner, corner);
          });
    }
  }
}

// Crossing number of a ray to the left of the pixel's centre, in exact arithmetic.
bool InPolygon(const std::vector<PixelPoint>& vertices, int x, int y) {
  bool inside = false;
  for (std::size_t i = 0; i < vertices.size(); ++i) {
    PixelPoint a = vertices[i];
    PixelPoint b = vertices[(i + 1) % vertices.size()];
    if (a.y > b.y) std::swap(a, b);
    if (y < a.y || y >= b.y) continue;
    const std::int64_t left = (2 * (y - a.y) + 1) * (b.x - a.x);
    if (left <= (2 * (x - a.x) + 1) * (b.y - a.y)) inside = !inside;
  }
  return inside;
}

TEST(Region, PolygonsAreFilledByTheEvenOddRule) {
  Random random(1);
  for (int round = 0; round < 300; ++round) {
    SCOPED_TRACE(round);
    std::vector<PixelPoint> vertices(static_cast<std::size_t>(random.Int(0, 12)));
    for (PixelPoint& p : vertices) p = {random.Int(0, 24), random.Int(0, 24)};
    ExpectPixels(Region::Polygon(vertices), 24,
                 [&](int x, int y) { return InPolygon(vertices, x, y); });
  }
  const std::vector<PixelPoint> box{{2, 3}, {9, 3}, {9, 7}, {2, 7}};
  for (int y = 0; y < 12; ++y) {
    EXPECT_EQ(Region::Polygon(box).Spans(y), Region::Rectangle({2, 3, 9, 7}).Spans(y));
  }
}

TEST(Region, LinesCoverTheirSliverAndThePixelsTheyAreDrawnWith) {
  for (int bx = 0; bx <= 20; ++bx) {
    for (int by = 0; by <= 20; ++by) {
      SCOPED_TRACE(testing::Message() << "to " << bx << ", " << by);
      const int ax = 9;
      const int ay = 11;
      const std::vector<PixelPoint> sliver{{ax, ay}, {ax + 1, ay + 1}, {bx, by}, {bx + 1, by + 1}};
      const int width = std::abs(bx - ax);
      const int height = std::abs(by - ay);
      const auto drawn = [&](int x, int y) {
        const int t = width > height ? std::abs(x - ax) : std::abs(y - ay);
        const int steps = std::max(width, height);
        if (t >= steps) return false;
        const double fraction = static_cast<double>(t) / steps;  // halves come out exactly
        const auto nearest = [](double v) { return static_cast<int>(std::floor(v + 0.5)); };
        const int px =
            width > height ? ax + (bx < ax ? -t : t) : nearest(ax + fraction * (bx - ax));
        const int py =
            width > height ? nearest(ay + fraction * (by - ay)) : ay + (by < ay ? -t : t);
        return x == px && y == py;
      };
      ExpectPixels(Region::Line({ax, ay}, {bx, by}), 22,
                   [&](int x, int y) { return InPolygon(sliver, x, y) || drawn(x, y); });
    }
  }
}

TEST(Region, ShapesAsWideAsTheNumbersAreExact) {
  const PixelRect all{kLow, kLow, kHigh, kHigh};
  EXPECT_EQ(Region::Rectangle(all).Spans(-7), (RowSpans{{kLow, kHigh}}));
  EXPECT_FALSE(Region::Rectangle(all).Contains(kHigh, 0));
  // The middle row of an ellipse reaches from side to side; its outermost rows do not.
  EXPECT_EQ(Region::Ellipse(all).Spans(-1), (RowSpans{{kLow, kHigh}}));
  EXPECT_TRUE(Region::Ellipse(all).Spans(kHigh).empty());
  const RowSpans top = Region::Ellipse(all).Spans(kLow);
  ASSERT_EQ(top.size(), 1u);
  EXPECT_EQ(top[0].right - top[0].left, 92681);  // sqrt(2^33), odd as the width is
  // Columns along the diagonal equal the row.
  for (const std::int64_t y : {kLow, kLow + 1, std::int64_t{-1}, std::int64_t{12345}, kHigh - 1}) {
    EXPECT_TRUE(Region::Line({kLow, kLow}, {kHigh, kHigh}).Contains(y, y));
    EXPECT_TRUE(Region::Line({kHigh, kHigh}, {kLow, kLow}).Contains(y + 1, y + 1));
    const std::vector<PixelPoint> half{{kLow, kLow}, {kHigh, kHigh}, {kLow, kHigh}};
    EXPECT_EQ(Region::Polygon(half).Spans(y), y == kLow ? RowSpans{} : (RowSpans{{kLow, y}}));
  }
  // A flat line sinks by one row in every four billion columns or so.
  EXPECT_EQ(Region::Line({kLow, 5}, {kHigh, 5}).Spans(5), (RowSpans{{kLow, kHigh}}));
  EXPECT_TRUE(Region::Line({kLow, 5}, {kHigh, 6}).Contains(-2, 5));
  EXPECT_TRUE(Region::Line({kLow, 5}, {kHigh, 6}).Contains(0, 6));
}

TEST(Region, APolygonOfAMillionVerticesAnswersRowsFast) {
  Random random(2);
  std::vector<PixelPoint> vertices;  // steps of at most 10 rows, up and down over 200000
  for (int i = 0; i < 1000000; ++i) {
    const int climb = i < 500000 ? i * 2 / 5 : (1000000 - i) * 2 / 5;
    vertices.push_back({random.Int(0, 1000), climb + random.Int(0, 10)});
  }
  const Region region = Region::Polygon(vertices);
  std::size_t spans = 0;
  for (int y = 0; y < 200000; ++y) spans += region.Spans(y).size();
  EXPECT_GT(spans, 200000u);  // the suite's time limit fails a search through all edges
}

}  // namespace
}  // namespace plenovia
