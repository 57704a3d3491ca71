#include "depthmap/outline_polygons.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <utility>

#include "platform/region.h"

namespace plenovia {

namespace {

constexpr double kTolerance = 0.5;  // pixels
constexpr std::int32_t kFurthest = 32767;

using Line = std::vector<DepthPoint>;

// An outline with the holes in it.
struct Part {
  Line outside;
  std::vector<Line> holes;
};

double DistanceToSegment(const DepthPoint& p, const DepthPoint& a, const DepthPoint& b) {
  const double alongX = static_cast<double>(b.x) - a.x;
  const double alongY = static_cast<double>(b.y) - a.y;
  const double fromX = static_cast<double>(p.x) - a.x;
  const double fromY = static_cast<double>(p.y) - a.y;
  const double length = alongX * alongX + alongY * alongY;
  const double place =
      length > 0 ? std::clamp((fromX * alongX + fromY * alongY) / length, 0.0, 1.0) : 0;
  return std::hypot(fromX - place * alongX, fromY - place * alongY);
}

// Adds the points to keep after `first` and before the last one.
void KeepBetween(std::span<const DepthPoint> points, double tolerance, Line& kept) {
  if (points.size() < 3) return;
  std::size_t furthest = 0;
  double most = tolerance;
  for (std::size_t i = 1; i + 1 < points.size(); ++i) {
    const double distance = DistanceToSegment(points[i], points.front(), points.back());
    if (distance > most) {
      most = distance;
      furthest = i;
    }
  }
  if (furthest == 0) return;
  KeepBetween(points.first(furthest + 1), tolerance, kept);
  kept.push_back(points[furthest]);
  KeepBetween(points.subspan(furthest), tolerance, kept);
}

Line Rounded(const Outline& outline) {
  Line line;
  const auto round = [](double place) {
    return static_cast<std::int32_t>(std::lround(std::clamp<double>(place, -kFurthest, kFurthest)));
  };
  for (const OutlinePoint& point : outline) {
    const DepthPoint rounded{round(point.x), round(point.y)};
    if (line.empty() || !(line.back() == rounded)) line.push_back(rounded);
  }
  while (line.size() > 1 && line.front() == line.back()) line.pop_back();
  return line;
}

bool Contains(const Outline& outline, const OutlinePoint& point) {
  bool inside = false;
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const OutlinePoint& a = outline[i];
    const OutlinePoint& b = outline[(i + 1) % outline.size()];
    if ((a.y > point.y) == (b.y > point.y)) continue;
    if (point.x < a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x)) inside = !inside;
  }
  return inside;
}

// Outlines in an even number of others are the outside of a part; those in one more are its holes.
std::vector<Part> PartsOf(std::span<const Outline> outlines) {
  const auto depthOf = [&](const Outline& inner) {
    return std::ranges::count_if(outlines, [&](const Outline& outer) {
      return &outer != &inner && Contains(outer, inner.front());
    });
  };
  std::vector<std::ptrdiff_t> depths;
  for (const Outline& outline : outlines) depths.push_back(outline.empty() ? -1 : depthOf(outline));
  std::vector<Part> parts;
  for (std::size_t i = 0; i < outlines.size(); ++i) {
    if (depths[i] < 0 || depths[i] % 2 != 0) continue;
    Part part{SimplifiedOutline(Rounded(outlines[i]), kTolerance), {}};
    if (part.outside.size() < 3) continue;
    for (std::size_t j = 0; j < outlines.size(); ++j) {
      if (depths[j] != depths[i] + 1 || !Contains(outlines[i], outlines[j].front())) continue;
      Line hole = SimplifiedOutline(Rounded(outlines[j]), kTolerance);
      if (hole.size() >= 3) part.holes.push_back(std::move(hole));
    }
    parts.push_back(std::move(part));
  }
  return parts;
}

// The whole part as one line: each hole is reached from the start and left on the same way, which
// by the even-odd rule covers nothing.
Line OneLine(const Part& part) {
  Line line = part.outside;
  for (const Line& hole : part.holes) {
    line.push_back(part.outside.front());
    line.insert(line.end(), hole.begin(), hole.end());
    line.push_back(hole.front());
  }
  return line;
}

using Axis = std::int32_t DepthPoint::*;
enum class Side { kBefore, kBehind };

// What of a closed line lies on one side of the edge before a row or a column, closed along that
// edge, where it covers no pixel (Sutherland and Hodgman, Communications of the ACM, 1974).
Line Cut(const Line& line, Axis across, std::int32_t edge, Side side) {
  const Axis along = across == &DepthPoint::x ? &DepthPoint::y : &DepthPoint::x;
  const auto isInside = [&](const DepthPoint& p) {
    return side == Side::kBefore ? p.*across <= edge : p.*across >= edge;
  };
  Line cut;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const DepthPoint& a = line[i];
    const DepthPoint& b = line[(i + 1) % line.size()];
    if (isInside(a)) cut.push_back(a);
    if (isInside(a) == isInside(b) || a.*across == edge || b.*across == edge) continue;
    const double place =
        (static_cast<double>(edge) - a.*across) / (static_cast<double>(b.*across) - a.*across);
    DepthPoint crossing;
    crossing.*across = edge;
    crossing.*along = static_cast<std::int32_t>(
        std::lround(a.*along + place * (static_cast<double>(b.*along) - a.*along)));
    cut.push_back(crossing);
  }
  // What only runs along the edge covers nothing.
  const auto onEdge = [&](const DepthPoint& p) { return p.*across == edge; };
  return std::ranges::all_of(cut, onEdge) ? Line() : cut;
}

Part Cut(const Part& part, Axis across, std::int32_t edge, Side side) {
  Part cut{Cut(part.outside, across, edge, side), {}};
  for (const Line& hole : part.holes) {
    Line rest = Cut(hole, across, edge, side);
    if (rest.size() >= 3) cut.holes.push_back(std::move(rest));
  }
  return cut;
}

class PolygonMaker {
 public:
  explicit PolygonMaker(std::int32_t level) : level_(level) {}

  void Add(const Part& part) {
    if (part.outside.size() < 3) return;
    const Line line = OneLine(part);
    if (line.size() <= TDepthObj::kMaxVertices) {
      AddPolygon(line);
      return;
    }
    const auto [left, right] = std::ranges::minmax(part.outside, {}, &DepthPoint::x);
    const auto [top, bottom] = std::ranges::minmax(part.outside, {}, &DepthPoint::y);
    const std::int32_t width = right.x - left.x;
    const std::int32_t height = bottom.y - top.y;
    if (height <= 1) {
      AddRow(line, top.y);
      return;
    }
    const Axis across = width > height ? &DepthPoint::x : &DepthPoint::y;
    const std::int32_t middle = width > height ? left.x + width / 2 : top.y + height / 2;
    Add(Cut(part, across, middle, Side::kBefore));
    Add(Cut(part, across, middle, Side::kBehind));
  }

  std::vector<std::unique_ptr<TDepthObj>> Take() { return std::move(polygons_); }

 private:
  void AddPolygon(const Line& line) {
    auto polygon = std::make_unique<TDepthObj>(nullptr, DepthRect{}, PolygonObj, level_);
    polygon->SetPoints(line);
    polygons_.push_back(std::move(polygon));
  }

  void AddRow(const Line& line, std::int32_t y) {
    std::vector<PixelPoint> corners;
    for (const DepthPoint& point : line) corners.push_back({point.x, point.y});
    for (const Span& span : Region::Polygon(corners).Spans(y)) {
      const auto left = static_cast<std::int32_t>(span.left);
      const auto right = static_cast<std::int32_t>(span.right);
      AddPolygon({{left, y}, {right, y}, {right, y + 1}, {left, y + 1}});
    }
  }

  std::int32_t level_;
  std::vector<std::unique_ptr<TDepthObj>> polygons_;
};

}  // namespace

std::vector<DepthPoint> SimplifiedOutline(std::span<const DepthPoint> points, double tolerance) {
  if (points.size() < 4) return {points.begin(), points.end()};
  // Two points that certainly stay: the first, and the one furthest from it.
  const auto distance = [&](const DepthPoint& p) {
    return std::hypot(static_cast<double>(p.x) - points[0].x,
                      static_cast<double>(p.y) - points[0].y);
  };
  const auto furthest =
      static_cast<std::size_t>(std::ranges::max_element(points, {}, distance) - points.begin());
  Line second(points.begin() + static_cast<std::ptrdiff_t>(furthest), points.end());
  second.push_back(points.front());
  Line kept{points.front()};
  KeepBetween(points.first(furthest + 1), tolerance, kept);
  kept.push_back(points[furthest]);
  KeepBetween(second, tolerance, kept);
  return kept;
}

std::vector<std::unique_ptr<TDepthObj>> OutlinePolygons(std::span<const Outline> outlines,
                                                        std::int32_t level) {
  PolygonMaker maker(level);
  for (const Part& part : PartsOf(outlines)) maker.Add(part);
  return maker.Take();
}

}  // namespace plenovia
