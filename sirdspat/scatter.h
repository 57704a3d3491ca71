// Things strewn over a tile: points at a distance from each other, the cells about them, and shapes
// that overlap.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "sirdspat/colour.h"
#include "sirdspat/noise.h"

namespace plenovia {

struct Point {
  double x = 0;
  double y = 0;
};

// Random points no two of which are nearer than `distance` pixels, filling the torus densely.
std::vector<Point> ScatterPoints(Torus torus, double distance, std::uint64_t seed);

// The cells of the points (Voronoi).
class Cells {
 public:
  Cells(Torus torus, std::vector<Point> centres);

  struct Place {
    std::size_t cell = 0;  // the nearest centre
    double toCentre = 0;   // pixels
    double toBorder = 0;   // pixels to the border with the nearest other cell
    Point offset;          // from the centre
  };
  Place At(double x, double y) const;
  std::size_t size() const { return centres_.size(); }

 private:
  Torus torus_;
  std::vector<Point> centres_;
};

// Shapes painted one over the other.
class Stamps {
 public:
  struct Stamp {
    std::size_t number = 0;
    Point centre;
    double radius = 0;  // pixels; the shape stays within it
    double angle = 0;
  };

  Stamps(Torus torus, std::vector<Stamp> stamps);

  // The colour at (x, y): asks paint(stamp, u, v) of the topmost stamp first, and of the ones below
  // as long as nothing comes back; u and v are the stamp's own axes in units of its radius.
  template <class Paint>
  Tint At(double x, double y, const Tint& ground, const Paint& paint) const {
    for (auto stamp = stamps_.rbegin(); stamp != stamps_.rend(); ++stamp) {
      const Point at = Own(*stamp, x, y);
      if (at.x * at.x + at.y * at.y > 1) continue;
      if (const std::optional<Tint> colour = paint(*stamp, at.x, at.y)) return *colour;
    }
    return ground;
  }

 private:
  Point Own(const Stamp& stamp, double x, double y) const;

  Torus torus_;
  std::vector<Stamp> stamps_;
};

}  // namespace plenovia
