#include "bench/crowded_map.h"

#include <cmath>
#include <cstdint>
#include <memory>
#include <numbers>
#include <utility>
#include <vector>

#include "platform/random.h"

namespace plenovia::bench {

TDepthList CrowdedMap(int side, int objects) {
  constexpr double kCovered = 0.6;  // of the map, by all objects together, as if none overlapped
  Random random(static_cast<std::uint64_t>(objects));
  TDepthList map(side, side);
  const int length = static_cast<int>(side * std::sqrt(kCovered / objects));
  constexpr DepthObjKind kKinds[] = {SquareBoxObj, RoundBoxObj, CircleObj, PolygonObj};
  for (int i = 0; i < objects; ++i) {
    const int x = random.Int(0, side - length);
    const int y = random.Int(0, side - length);
    auto object = std::make_unique<TDepthObj>(nullptr, DepthRect{x, y, x + length, y + length},
                                              kKinds[i % 4], 1 + i % 255);
    if (object->GetKind() == PolygonObj) {  // a star
      std::vector<DepthPoint> points;
      for (int corner = 0; corner < 32; ++corner) {
        const double angle = corner * std::numbers::pi / 16;
        const double reach = length * (corner % 2 == 0 ? 0.7 : 0.4);
        points.push_back({x + static_cast<std::int32_t>(length * 0.5 + reach * std::cos(angle)),
                          y + static_cast<std::int32_t>(length * 0.5 + reach * std::sin(angle))});
      }
      object->SetPoints(points);
    }
    map.AddObject(std::move(object));
  }
  return map;
}

}  // namespace plenovia::bench
