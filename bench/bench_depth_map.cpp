// How the time to sample a whole depth map grows with its number of objects.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <limits>
#include <memory>
#include <vector>

#include "bench/stopwatch.h"
#include "depthmap/depth_list.h"
#include "platform/random.h"

namespace plenovia {
namespace {

constexpr int kSide = 4000;
constexpr double kCovered = 0.6 * kSide * kSide;  // pixels, of all objects together

// Shapes of all kinds and of one area, anywhere on the map.
TDepthList MapOf(int objects) {
  Random random(static_cast<std::uint64_t>(objects));
  TDepthList map(kSide, kSide);
  const int side = static_cast<int>(std::sqrt(kCovered / objects));
  constexpr DepthObjKind kKinds[] = {SquareBoxObj, RoundBoxObj, CircleObj, PolygonObj};
  for (int i = 0; i < objects; ++i) {
    const int x = random.Int(0, kSide - side);
    const int y = random.Int(0, kSide - side);
    auto object = std::make_unique<TDepthObj>(nullptr, DepthRect{x, y, x + side, y + side},
                                              kKinds[i % 4], 1 + i % 255);
    if (object->GetKind() == PolygonObj) {  // a star
      std::vector<DepthPoint> points;
      for (int corner = 0; corner < 32; ++corner) {
        const double angle = corner * 3.14159265358979 / 16;
        const double reach = side * (corner % 2 == 0 ? 0.7 : 0.4);
        points.push_back({x + static_cast<std::int32_t>(side * 0.5 + reach * std::cos(angle)),
                          y + static_cast<std::int32_t>(side * 0.5 + reach * std::sin(angle))});
      }
      object->SetPoints(points);
    }
    map.AddObject(std::move(object));
  }
  return map;
}

// Processor time, which other programs on the machine disturb less; the shortest of several runs.
double SampleSeconds(const TDepthList& map) {
  std::vector<std::int32_t> levels(kSide);
  std::clock_t best = std::numeric_limits<std::clock_t>::max();
  for (int run = 0; run < 10; ++run) {
    const std::clock_t start = std::clock();
    for (int y = 0; y < kSide; ++y) {
      map.LevelRow(y, levels);
      bench::Keep(levels.data());
    }
    best = std::min(best, std::clock() - start);
  }
  return static_cast<double>(best) / CLOCKS_PER_SEC;
}

int Run() {
  std::printf("Depth map of %d x %d, sampled whole, one thread\n", kSide, kSide);
  double first = 0;
  for (const int objects : {10, 100, 1000, 10000}) {
    const TDepthList map = MapOf(objects);
    const double seconds = SampleSeconds(map);
    if (first == 0) first = seconds;
    std::printf("%6d objects: %7.1f ms, %6.0f megapixels/s, %5.1f times the first\n", objects,
                seconds * 1e3, kSide * kSide / seconds * 1e-6, seconds / first);
  }
  return 0;
}

}  // namespace
}  // namespace plenovia

int main() {
  return plenovia::Run();
}
