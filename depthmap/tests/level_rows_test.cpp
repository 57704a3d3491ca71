#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <memory>
#include <thread>
#include <vector>

#include "depthmap/depth_list.h"
#include "depthmap/tests/random_edit.h"
#include "platform/random.h"

namespace plenovia {
namespace {

constexpr int kSide = 60;
constexpr std::int32_t kLow = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHigh = std::numeric_limits<std::int32_t>::max();

// Mostly in and around the map; sometimes far away.
std::int32_t Coordinate(Random& random) {
  constexpr std::array<std::int32_t, 6> kFar{kLow,       kLow + 1,  -1000000000,
                                             1000000000, kHigh - 1, kHigh};
  return random.Int(0, 7) == 0 ? kFar[static_cast<std::size_t>(random.Int(0, 5))]
                               : random.Int(-20, kSide + 20);
}

TDepthList RandomMap(Random& random) {
  TDepthList list(kSide, kSide);
  for (int n = random.Int(0, 12); n > 0; --n) {
    const DepthRect rect{Coordinate(random), Coordinate(random), Coordinate(random),
                         Coordinate(random)};
    const auto kind = static_cast<DepthObjKind>(random.Int(0, 7));
    auto object = std::make_unique<TDepthObj>(nullptr, rect, kind, random.Int(-300, 300));
    for (int v = random.Int(0, 9); v > 0; --v) {
      object->AddPoint({Coordinate(random), Coordinate(random)});
    }
    if (kind == PolygonObj) object->UpdateBounds();
    list.AddObject(std::move(object));
  }
  return list;
}

void ExpectRow(const TDepthList& list, int y, int width) {
  std::vector<std::int32_t> expected;
  for (int x = 0; x < width; ++x) expected.push_back(list.GetLevelAt(x, y));
  std::vector<std::int32_t> levels(static_cast<std::size_t>(width), -12345);
  list.LevelRow(y, levels);
  ASSERT_EQ(levels, expected) << "row " << y;
}

TEST(LevelRows, EqualTheLevelAtEachPoint) {
  Random random(4);
  for (int round = 0; round < 150; ++round) {
    SCOPED_TRACE(round);
    TDepthList list = RandomMap(random);
    for (int y = -2; y < kSide + 2; ++y) ExpectRow(list, y, kSide + random.Int(-kSide, 20));
    for (const int y : {kLow, kLow + 1, kHigh - 1, kHigh}) ExpectRow(list, y, kSide);
  }
}

TEST(LevelRows, FollowEveryEdit) {
  Random random(5);
  TDepthList list = RandomMap(random);
  for (int step = 0; step < 300; ++step) {
    list.SetCurrentLevel(step);
    const DepthRect rect{Coordinate(random), Coordinate(random), 30, 30};
    EditAtRandom(list, random, std::make_unique<TDepthObj>(nullptr, rect, CircleObj, step),
                 list.ObjectAt(random.Int(0, kSide), random.Int(0, kSide)));
    for (int y = 0; y < kSide; y += 7) ExpectRow(list, y, kSide);
  }
}

TEST(LevelRows, MayBeAskedForOnSeveralThreads) {
  Random random(6);
  const TDepthList list = RandomMap(random);
  std::vector<std::array<std::int32_t, kSide>> rows(kSide);
  std::vector<std::thread> threads;
  for (std::size_t t = 0; t < 4; ++t) {
    threads.emplace_back([&, t] {
      for (std::size_t y = t; y < kSide; y += 4) list.LevelRow(static_cast<int>(y), rows[y]);
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (int y = 0; y < kSide; ++y) {
    for (int x = 0; x < kSide; ++x) {
      ASSERT_EQ(rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)],
                list.GetLevelAt(x, y));
    }
  }
}

}  // namespace
}  // namespace plenovia
