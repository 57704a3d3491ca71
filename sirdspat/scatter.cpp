#include "sirdspat/scatter.h"

#include <utility>

#include "platform/random.h"

namespace plenovia {

namespace {

// The shorter way round.
double Around(double difference, int period) {
  return difference - period * std::floor(difference / period + 0.5);
}

Point Offset(Torus torus, Point from, double x, double y) {
  return {Around(x - from.x, torus.width), Around(y - from.y, torus.height)};
}

double Square(Point p) {
  return p.x * p.x + p.y * p.y;
}

}  // namespace

std::vector<Point> ScatterPoints(Torus torus, double distance, std::uint64_t seed) {
  Random random(seed);
  std::vector<Point> points;
  const int tries = static_cast<int>(30.0 * torus.width * torus.height / (distance * distance));
  for (int i = 0; i < tries; ++i) {
    const Point point{random.Unit() * torus.width, random.Unit() * torus.height};
    const bool free = std::all_of(points.begin(), points.end(), [&](Point other) {
      return Square(Offset(torus, other, point.x, point.y)) >= distance * distance;
    });
    if (free) points.push_back(point);
  }
  return points;
}

Cells::Cells(Torus torus, std::vector<Point> centres)
    : torus_(torus), centres_(std::move(centres)) {}

Cells::Place Cells::At(double x, double y) const {
  Place place;
  double nearest = 1e300;
  for (std::size_t i = 0; i < centres_.size(); ++i) {
    const Point offset = Offset(torus_, centres_[i], x, y);
    if (const double square = Square(offset); square < nearest) {
      nearest = square;
      place.cell = i;
      place.offset = offset;
    }
  }
  place.toCentre = std::sqrt(nearest);
  place.toBorder = 1e300;
  for (std::size_t i = 0; i < centres_.size(); ++i) {
    if (i == place.cell) continue;
    const Point other = Offset(torus_, centres_[i], x, y);
    const Point between{place.offset.x - other.x, place.offset.y - other.y};
    const double border = (Square(other) - nearest) / (2 * std::sqrt(Square(between)));
    place.toBorder = std::min(place.toBorder, border);
  }
  return place;
}

Stamps::Stamps(Torus torus, std::vector<Stamp> stamps) : torus_(torus), stamps_(std::move(stamps)) {
  for (std::size_t i = 0; i < stamps_.size(); ++i) stamps_[i].number = i;
}

Point Stamps::Own(const Stamp& stamp, double x, double y) const {
  const Point offset = Offset(torus_, stamp.centre, x, y);
  if (Square(offset) > stamp.radius * stamp.radius) return {2, 2};
  const double c = ExactCos(stamp.angle);
  const double s = ExactSin(stamp.angle);
  return {(offset.x * c + offset.y * s) / stamp.radius,
          (offset.y * c - offset.x * s) / stamp.radius};
}

}  // namespace plenovia
