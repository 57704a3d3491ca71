#include "depthmap/map_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <tuple>
#include <vector>

#include "depthmap/level_choice.h"
#include "depthmap/object_painting.h"
#include "depthmap/tests/random_edit.h"
#include "platform/random.h"

namespace plenovia {
namespace {

constexpr int kWidth = 150;  // not whole words
constexpr int kHeight = 50;
constexpr PixelRect kAll{0, 0, kWidth, kHeight};

// The wider, the greater the level.
class TestLabels final : public LevelLabels {
 public:
  const LevelLabel& Label(std::int32_t level) override {
    auto& label = labels_[static_cast<std::size_t>(level % 3)];
    const std::int64_t half = 4 * (1 + level % 3);
    label = {-half, half, -6, std::vector<RowSpans>(7, RowSpans{{-half + 1, 0}, {1, half - 1}})};
    return label;
  }

 private:
  std::array<LevelLabel, 3> labels_;
};

bool InSquare(std::int64_t x, std::int64_t y, std::int64_t centreX, std::int64_t centreY) {
  return x >= centreX - 2 && x < centreX + 2 && y >= centreY - 2 && y < centreY + 2;
}

bool OnEdge(const Region& region, std::int64_t x, std::int64_t y) {
  return region.Contains(x, y) && !(region.Contains(x - 1, y) && region.Contains(x + 1, y) &&
                                    region.Contains(x, y - 1) && region.Contains(x, y + 1));
}

// What one object shows at a point, by the rules as they are written down; nothing where what is
// below it shows.
std::uint32_t PlainPixel(const TDepthObj& object, bool selected, LevelLabels& labels, int x,
                         int y) {
  const auto [x1, y1, x2, y2] = object.GetRect();
  if (selected && (InSquare(x, y, x1, y1) || InSquare(x, y, x2, y1) || InSquare(x, y, x2, y2) ||
                   InSquare(x, y, x1, y2))) {
    return kBlackPixel;
  }
  const LevelLabel& label = labels.Label(object.GetLevel());
  const std::int64_t column = x - std::min(x1, x2) - 6;
  const std::int64_t row = y - std::min(y1, y2) - 12 - label.top;
  if (row >= 0 && row < 7 && column >= label.left && column < label.right) {
    const bool digit = column != label.left && column != 0 && column != label.right - 1;
    return digit ? kBlackPixel : kWhitePixel;
  }
  switch (object.GetKind()) {
    case LineObj: {
      const Span drawn = LineRow({x1, y1}, {x2, y2}, y);
      return drawn.left <= x && x < drawn.right ? kBlackPixel : kNothingPixel;
    }
    case CurveObj: {
      const Region ellipse = Region::Ellipse(object.GetRect().Normalised());
      const int turn = (x1 - x2) * (2 * y + 1 - y1 - y2) - (y1 - y2) * (2 * x + 1 - x1 - x2);
      return turn <= 0 && OnEdge(ellipse, x, y) ? kBlackPixel : kNothingPixel;
    }
    case SquareBoxObj:
    case RoundBoxObj:
    case PolygonObj:
    case CircleObj:
      if (!object.ContainsPoint(x, y)) return kNothingPixel;
      return OnEdge(*object.GetRegion(), x, y) ? kBlackPixel : kWhitePixel;
    default:
      return kNothingPixel;
  }
}

std::uint32_t PlainPixel(const TDepthList& list, LevelLabels& labels, int x, int y) {
  for (auto* object = list.Head(); object != nullptr; object = TDepthList::Below(*object)) {
    const auto pixel = PlainPixel(*object, object == list.Selected(), labels, x, y);
    if (pixel != kNothingPixel) return pixel;
  }
  return kNothingPixel;
}

std::unique_ptr<TDepthObj> RandomObject(Random& random) {
  const auto point = [&] { return DepthPoint{random.Int(-20, 170), random.Int(-15, 65)}; };
  const auto [x1, y1] = point();
  const auto [x2, y2] = point();
  auto object =
      std::make_unique<TDepthObj>(nullptr, DepthRect{x1, y1, x2, y2},
                                  static_cast<DepthObjKind>(random.Int(0, 7)), random.Int(0, 255));
  std::vector<DepthPoint> vertices;
  for (int n = random.Int(0, 7); n > 0; --n) vertices.push_back(point());
  object->SetPoints(vertices);
  return object;
}

std::vector<std::uint32_t> Rendered(MapPicture& picture, const RubberBand& rubber = {}) {
  std::vector<std::uint32_t> pixels(std::size_t{kWidth} * kHeight);
  picture.Render(kAll, rubber, pixels);
  return pixels;
}

std::uint32_t At(const std::vector<std::uint32_t>& pixels, int x, int y) {
  return pixels[static_cast<std::size_t>(y * kWidth + x)];
}

TEST(MapPicture, FollowsEveryEditToThePixel) {
  Random random(7);
  TestLabels labels;
  TDepthList list(120, 40);
  for (int i = 0; i < 6; ++i) list.AddObject(RandomObject(random));
  MapPicture picture(list, labels);
  picture.SetView(kAll);
  for (int step = 0; step < 120; ++step) {
    list.SetCurrentLevel(step % 256);
    const TDepthObj* hit = list.ObjectAt(random.Int(0, 119), random.Int(0, 39));
    EditAtRandom(list, random, RandomObject(random), hit);
    const int left = random.Int(0, kWidth - 1);
    const int top = random.Int(0, kHeight - 1);
    const int right = random.Int(left + 1, kWidth);
    const int bottom = random.Int(top + 1, kHeight);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>((right - left) * (bottom - top)));
    picture.Render({left, top, right, bottom}, {}, pixels);
    auto pixel = pixels.begin();
    for (int y = top; y < bottom; ++y) {
      for (int x = left; x < right; ++x) {
        ASSERT_EQ(*pixel++, PlainPixel(list, labels, x, y))
            << "step " << step << " at " << x << "," << y;
      }
    }
  }
}

TEST(MapPicture, DrawnShapesAreSampledWhereTheyAreDrawn) {
  Random random(8);
  for (int round = 0; round < 200; ++round) {
    const auto object = RandomObject(random);
    if (object->GetKind() == CurveObj) continue;  // covers its whole box
    for (int y = 0; y < kHeight; ++y) {
      RowCanvas canvas(kWidth);
      PaintShapeRow(canvas, *object, y);
      std::vector<std::uint32_t> pixels(kWidth);
      canvas.Read(0, pixels);
      for (int x = 0; x < kWidth; ++x) {
        const bool drawn = pixels[static_cast<std::size_t>(x)] != kNothingPixel;
        const bool sampled = object->ContainsPoint(x, y);
        const bool filled = object->GetKind() >= SquareBoxObj && object->GetKind() <= CircleObj;
        ASSERT_TRUE(sampled || !drawn) << object->GetKind() << " " << x << "," << y;
        ASSERT_TRUE(drawn || !sampled || !filled) << object->GetKind() << " " << x << "," << y;
      }
    }
  }
}

TEST(MapPicture, CurveIsTheHalfCounterclockwiseOfItsDrag) {
  const auto shows = [](const DepthRect& rect, int x, int y) {
    RowCanvas canvas(kWidth);
    PaintShapeRow(canvas, TDepthObj(nullptr, rect, CurveObj, 0), y);
    std::array<std::uint32_t, 1> pixel{};
    canvas.Read(x, pixel);
    return pixel[0] == kBlackPixel;
  };
  const DepthRect downwards{20, 0, 100, 40};
  const DepthRect upwards{100, 40, 20, 0};
  for (const auto& [x, y, lowerLeft] :
       {std::tuple(20, 20, true), {60, 39, true}, {99, 20, false}, {60, 0, false}}) {
    EXPECT_EQ(shows(downwards, x, y), lowerLeft) << x << "," << y;
    EXPECT_EQ(shows(upwards, x, y), !lowerLeft) << x << "," << y;
  }
}

TEST(MapPicture, RubberBandLiesAboveAllAndInItsArea) {
  TestLabels labels;
  TDepthList list(kWidth, kHeight);
  MapPicture picture(list, labels);
  picture.SetView(kAll);
  const auto plain = Rendered(picture);

  RubberBand box;
  box.Start(SquareBoxObj, {70, 40, 70, 40});
  box.SetRect({70, 40, 30, 20});
  RubberBand polygon;
  polygon.Start(PolygonObj, {30, 20, 30, 20});
  for (const DepthPoint vertex : {DepthPoint{90, 20}, {90, 45}}) polygon.AddVertex(vertex);
  EXPECT_EQ(At(Rendered(picture, polygon), 60, 20), kBlackPixel);
  EXPECT_EQ(At(Rendered(picture, polygon), 90, 30), kBlackPixel);
  polygon.SetLine({90, 45}, {10, 45});
  EXPECT_EQ(At(Rendered(picture, polygon), 40, 45), kBlackPixel);
  polygon.AddVertex({40, 45});
  EXPECT_EQ(At(Rendered(picture, polygon), 20, 45), kWhitePixel) << "the line is gone";

  for (const RubberBand* rubber : {&box, &polygon}) {
    const auto pixels = Rendered(picture, *rubber);
    const PixelRect area = rubber->Area();
    EXPECT_EQ(At(pixels, 30, 20), kBlackPixel);
    EXPECT_EQ(At(pixels, 50, 30), kWhitePixel) << "an outline";
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        const bool inside = x >= area.left && x < area.right && y >= area.top && y < area.bottom;
        ASSERT_TRUE(inside || At(pixels, x, y) == At(plain, x, y)) << x << "," << y;
      }
    }
  }
  box.Stop();
  EXPECT_EQ(Rendered(picture, box), plain);
}

// No labels at all.
class NoLabels final : public LevelLabels {
 public:
  const LevelLabel& Label(std::int32_t) override { return label_; }

 private:
  LevelLabel label_;
};

TEST(MapPicture, ShadedShowsTheLevelOfEveryPixelAtEachScale) {
  Random random(9);
  NoLabels labels;
  TDepthList list(120, 40);
  for (int i = 0; i < 12; ++i) {
    auto object = RandomObject(random);
    // A line is drawn whole where the map is reduced, not by its pixels.
    if (object->GetKind() != LineObj) list.AddObject(std::move(object));
  }
  std::int32_t highest = 8;
  for (auto* object = list.Head(); object != nullptr; object = TDepthList::Below(*object)) {
    highest = std::max(highest, object->GetLevel());
  }
  MapPicture picture(list, labels);
  for (MapScale scale(-8); scale != scale.Larger(); scale = scale.Larger()) {
    const PixelRect shown = scale.Shown(PixelRect{0, 0, 120, 40});
    const PixelRect view{shown.right / 3, shown.bottom / 4, shown.right + 5, shown.bottom};
    const auto width = static_cast<std::size_t>(view.right - view.left);
    const auto size = width * static_cast<std::size_t>(view.bottom - view.top);
    std::vector<std::uint32_t> shaded(size);
    std::vector<std::uint32_t> both(size);
    picture.SetView(view, {MapView::kShaded, scale});
    picture.Render(view, {}, shaded);
    picture.SetView(view, {MapView::kBoth, scale});
    picture.Render(view, {}, both);
    std::size_t edges = 0;
    auto shade = shaded.begin();
    auto edged = both.begin();
    for (std::int64_t row = view.top; row < view.bottom; ++row) {
      for (std::int64_t column = view.left; column < view.right; ++column, ++shade, ++edged) {
        if (*shade != *edged) ++edges;
        const int cell = scale.Times();
        if (cell >= 8 && (row % cell == 0 || column % cell == 0)) continue;  // the grid
        const auto x = static_cast<std::int32_t>(scale.MapPixel(column));
        const auto y = static_cast<std::int32_t>(scale.MapPixel(row));
        const TDepthObj* seen = list.ObjectAt(x, y);
        const auto expected = seen != nullptr ? ShadeOf(seen->GetLevel(), highest) : kNothingPixel;
        ASSERT_EQ(*shade, expected) << x << "," << y << " at " << scale.Text();
      }
    }
    EXPECT_GT(edges, size / 100) << scale.Text();
    EXPECT_LT(edges, size * 2 / 3) << scale.Text();
  }
}

TEST(MapPicture, LabelsOfAShadedViewLieAboveAllAndApart) {
  TestLabels labels;
  TDepthList list(kWidth, kHeight);
  for (const DepthRect& box : {DepthRect{10, 2, 60, 40}, {12, 4, 90, 45}, {70, 2, 140, 40}}) {
    list.AddObject(std::make_unique<TDepthObj>(nullptr, box, SquareBoxObj, 100));
  }
  MapPicture picture(list, labels);
  picture.SetView(kAll, {MapView::kShaded, {}});
  const auto pixels = Rendered(picture);
  EXPECT_EQ(At(pixels, 70 + 6 - 8, 2 + 12), kWhitePixel);
  EXPECT_EQ(At(pixels, 12 + 6 - 8, 4 + 12), kWhitePixel) << "above what covers it";
  EXPECT_EQ(At(pixels, 12 + 6 + 8, 4 + 12), ShadeOf(100, 100)) << "where its right edge ends";
  EXPECT_EQ(At(pixels, 10 + 6, 2 + 12 - 6), ShadeOf(100, 100)) << "no place for the lowest label";
}

TEST(MapScale, EachShownPixelIsOneOfTheMap) {
  int steps = 0;
  for (MapScale scale(-8);; scale = scale.Larger(), ++steps) {
    for (std::int64_t pixel = -40; pixel <= 40; ++pixel) {
      const std::int64_t edge = scale.ShownEdge(pixel);
      EXPECT_GE(scale.MapPixel(edge), pixel) << scale.Text();
      EXPECT_LT(scale.MapPixel(edge - 1), pixel) << scale.Text();
      EXPECT_TRUE(scale.IsReduced() || scale.MapPixel(scale.ShownMiddle(pixel)) == pixel);
    }
    if (scale == scale.Larger()) break;
    EXPECT_EQ(scale.Larger().Smaller(), scale);
  }
  EXPECT_EQ(steps, 12);
  EXPECT_EQ(MapScale::Fitting(400, 300, 1000, 1000), MapScale(2));
  EXPECT_EQ(MapScale::Fitting(4000, 300, 1000, 1000), MapScale(-4));
  EXPECT_EQ(MapScale::Fitting(100000, 1, 10, 10), MapScale(-8));
  EXPECT_EQ(MapScale(16).Text() + MapScale(-3).Text(), "1600 %1/3");
}

TEST(LevelChoice, StepsWrapAtBothEndsAndFromBeyond) {
  constexpr std::int32_t kLow = std::numeric_limits<std::int32_t>::min();
  constexpr std::int32_t kHigh = std::numeric_limits<std::int32_t>::max();
  const std::vector<std::array<std::int32_t, 3>> cases{
      {0, 1, 255},   {1, 2, 0},     {254, 255, 253},       {255, 0, 254},
      {300, 0, 299}, {-5, -4, 255}, {kHigh, 0, kHigh - 1}, {kLow, kLow + 1, 255}};
  for (const auto& [value, up, down] : cases) {
    EXPECT_EQ(StepLevelUp(value), up) << value;
    EXPECT_EQ(StepLevelDown(value), down) << value;
    EXPECT_EQ(IsLevel(value), value >= 0 && value <= 255) << value;
  }
}

}  // namespace
}  // namespace plenovia
