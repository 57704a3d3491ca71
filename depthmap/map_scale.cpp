#include "depthmap/map_scale.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>

namespace plenovia {

namespace {

constexpr std::array kSteps{-8, -6, -4, -3, -2, 1, 2, 3, 4, 6, 8, 12, 16};

std::int64_t FloorDivide(std::int64_t value, std::int64_t by) {
  return value / by - (value % by < 0 ? 1 : 0);
}

}  // namespace

MapScale::MapScale(int times)
    : times_(times == 0 || times == -1 || std::abs(times) > kGreatest ? 1 : times) {}

std::string MapScale::Text() const {
  if (times_ > 0) return std::to_string(100 * times_) + " %";
  return "1/" + std::to_string(-times_);
}

MapScale MapScale::Larger() const {
  const auto* next = std::upper_bound(kSteps.begin(), kSteps.end(), times_);
  return next == kSteps.end() ? *this : MapScale(*next);
}

MapScale MapScale::Smaller() const {
  const auto* at = std::lower_bound(kSteps.begin(), kSteps.end(), times_);
  return at == kSteps.begin() ? *this : MapScale(*std::prev(at));
}

MapScale MapScale::Fitting(std::int64_t mapWidth, std::int64_t mapHeight, int width, int height) {
  MapScale fitting(kSteps.front());
  for (const int step : kSteps) {
    const MapScale scale(step);
    if (scale.ShownEdge(mapWidth) <= width && scale.ShownEdge(mapHeight) <= height) fitting = scale;
  }
  return fitting;
}

std::int64_t MapScale::MapPixel(std::int64_t shown) const {
  return times_ > 0 ? FloorDivide(shown, times_) : shown * -times_ + -times_ / 2;
}

std::int64_t MapScale::ShownEdge(std::int64_t pixel) const {
  if (times_ > 0) return pixel * times_;
  const std::int64_t by = -times_;
  return FloorDivide(pixel - by / 2 + by - 1, by);
}

std::int64_t MapScale::ShownMiddle(std::int64_t pixel) const {
  return times_ > 0 ? pixel * times_ + times_ / 2 : FloorDivide(pixel, -times_);
}

PixelPoint MapScale::ShownMiddle(const DepthPoint& point) const {
  return {ShownMiddle(point.x), ShownMiddle(point.y)};
}

Span MapScale::Shown(const Span& columns) const {
  return {ShownEdge(columns.left), ShownEdge(columns.right)};
}

PixelRect MapScale::Shown(const PixelRect& area) const {
  return {ShownEdge(area.left), ShownEdge(area.top), ShownEdge(area.right), ShownEdge(area.bottom)};
}

}  // namespace plenovia
