#include "engine/scan_method.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <string>
#include <vector>

#include "engine/prepared_shift.h"
#include "engine/tests/plain_shift.h"
#include "platform/random.h"

namespace plenovia {
namespace {

using Row = std::vector<std::uint8_t>;
using Levels = std::vector<std::int32_t>;

// The row 0, 1, 2, ... after the shift: each value names the column that it came from.
Row Shifted(std::int32_t method, const Levels& depth, SourceKind kind,
            TSirdsSettings settings = {}) {
  settings.scanMethod = method;
  Row row(depth.size());
  std::iota(row.begin(), row.end(), std::uint8_t{0});
  ShiftRow(row, depth, 8, kind, settings);
  return row;
}

Levels Flat(std::size_t width, std::int32_t level) {
  return Levels(width, level);
}

Levels Step(std::int32_t level) {
  Levels depth = Flat(24, 0);
  std::fill_n(depth.begin() + 12, 4, level);
  return depth;
}

Row Repeated(const Row& part, std::size_t width) {
  Row row;
  for (std::size_t i = 0; i < width; ++i) row.push_back(part[i % part.size()]);
  return row;
}

TEST(ShiftRow, LeftToRight) {
  constexpr auto kImage = SourceKind::kImage;
  const Row strip = {0, 1, 2, 3, 4, 5, 6, 7};
  EXPECT_EQ(Shifted(1, Flat(24, 0), kImage), Repeated(strip, 24));
  Row ones = strip;
  for (int i = 0; i < 16; ++i) ones.push_back(static_cast<std::uint8_t>(4 + i % 4));
  EXPECT_EQ(Shifted(1, Flat(24, 1), kImage), ones);
  EXPECT_EQ(Shifted(1, Step(16), kImage),
            (Row{0, 1, 2, 3, 4, 5, 6, 7, 0, 1, 2, 3, 12, 13, 14, 15, 0, 1, 2, 3, 12, 13, 14, 15}));
  EXPECT_EQ(Shifted(1, Step(16), SourceKind::kShape),
            (Row{0, 1, 2, 3, 4, 5, 6, 7, 0, 1, 2, 3, 20, 21, 22, 23, 0, 1, 2, 3, 20, 21, 22, 23}));
}

TEST(ShiftRow, McMahon) {
  constexpr auto kImage = SourceKind::kImage;
  const Row flat = Repeated({8, 9, 10, 11, 4, 5, 6, 7}, 24);
  EXPECT_EQ(Shifted(2, Flat(24, 0), kImage), flat);
  EXPECT_EQ(Shifted(2, Flat(24, 10), kImage, {.zmax = 63, .zmin = 10}), flat);
  EXPECT_EQ(Shifted(2, Step(63), kImage), (Row{8, 9, 10, 11, 4,  5,  6,  7,  8, 9, 10, 11,
                                               8, 9, 10, 11, 11, 11, 11, 11, 8, 9, 10, 11}));
}

TEST(ShiftRow, Feucht) {
  constexpr auto kImage = SourceKind::kImage;
  EXPECT_EQ(Shifted(3, Flat(24, 0), kImage), Repeated({12, 13, 11}, 24));
  EXPECT_EQ(Shifted(3, Flat(40, 0), kImage), Repeated({20, 21, 22, 18, 19}, 40));
  EXPECT_EQ(Shifted(3, Flat(24, 63), kImage), Repeated({12, 11}, 24));
  Row same(24);
  std::iota(same.begin(), same.end(), std::uint8_t{0});
  EXPECT_EQ(Shifted(3, Flat(24, 63), SourceKind::kShape), same);
}

TEST(ShiftRow, UnknownMethodsAndEmptyRangesAreHarmless) {
  Row same(24);
  std::iota(same.begin(), same.end(), std::uint8_t{0});
  EXPECT_EQ(Shifted(0, Step(20), SourceKind::kImage), same);
  EXPECT_EQ(Shifted(5, Step(20), SourceKind::kImage), same);
  for (const std::int32_t method : {1, 2}) {
    EXPECT_EQ(Shifted(method, Step(3), SourceKind::kShape, {.zmax = 7, .zmin = 7}),
              Shifted(method, Step(3), SourceKind::kShape, {.zmax = 8, .zmin = 7}));
  }
  // Feucht's separation is then 0 at the one depth of the range and a quarter of the row elsewhere.
  EXPECT_EQ(Shifted(3, Flat(24, 7), SourceKind::kImage, {.zmax = 7, .zmin = 7}), same);
}

// Levels in runs, slopes and noise, of bytes or of anything.
Levels RandomLevels(Random& random, std::size_t width, bool wild) {
  Levels depth;
  while (depth.size() < width) {
    const int length = random.Int(1, random.Int(0, 3) == 0 ? 60 : 6);
    int level = random.Int(0, random.Int(0, 1) == 0 ? 40 : 255);
    if (wild && random.Int(0, 3) == 0) level = random.Int(-2147483647 - 1, 2147483647);
    const int slope = wild ? 0 : random.Int(-1, 1);
    for (int i = 0; i < length && depth.size() < width; ++i) {
      depth.push_back(slope == 0 ? level : std::clamp(level + slope * i / 2, 0, 255));
    }
  }
  return depth;
}

TSirdsSettings RandomSettings(Random& random, std::int32_t method) {
  TSirdsSettings settings;
  settings.scanMethod = method;
  switch (random.Int(0, 4)) {
    case 0:
      break;
    case 1:
      settings.zmax = 255;
      break;
    case 2:
      settings.zmin = random.Int(-300, 300);
      settings.zmax = random.Int(-300, 300);
      break;
    case 3:
      settings.zmin = settings.zmax = random.Int(0, 255);
      break;
    default:
      settings.zmin = random.Int(-2147483647 - 1, 2147483647);
      settings.zmax = random.Int(-2147483647 - 1, 2147483647);
  }
  return settings;
}

class PreparedForm : public testing::TestWithParam<std::int32_t> {};

TEST_P(PreparedForm, EqualsThePlainRule) {
  Random random(static_cast<std::uint64_t>(GetParam()));
  for (int round = 0; round < 6000; ++round) {
    const int width = random.Int(0, 9) == 0 ? random.Int(0, 20) : random.Int(20, 500);
    const std::int32_t gap = random.Int(0, 3) == 0 ? random.Int(-5, 600) : random.Int(2, 150);
    const SourceKind kind = random.Int(0, 1) == 0 ? SourceKind::kImage : SourceKind::kShape;
    const TSirdsSettings settings = RandomSettings(random, GetParam());
    const bool wild = random.Int(0, 4) == 0;
    const Levels depth = RandomLevels(random, static_cast<std::size_t>(width), wild);
    Row expected(depth.size());
    for (auto& pixel : expected) pixel = random.Byte();

    const auto shift = ScanMethodOf(settings.scanMethod).prepare({width, gap, kind, settings});
    ShiftBuffers row(width);
    for (int again = 0; again < 2; ++again) {  // a buffer carries nothing from row to row
      std::copy(expected.begin(), expected.end(), row.pixels().begin());
      std::copy(depth.begin(), depth.end(), row.levels().begin());
      shift->Shift(row);
    }
    ShiftRow(expected, depth, gap, kind, settings);
    const Row actual(row.pixels().begin(), row.pixels().end());
    ASSERT_EQ(actual, expected) << "round " << round << ", width " << width << ", gap " << gap
                                << ", zmin " << settings.zmin << ", zmax " << settings.zmax;
  }
}

INSTANTIATE_TEST_SUITE_P(Methods, PreparedForm, testing::Values(1, 2, 3),
                         [](const auto& param) { return "Method" + std::to_string(param.param); });

}  // namespace
}  // namespace plenovia
