#include "viewing/relief.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <span>
#include <utility>
#include <vector>

namespace plenovia {

namespace {

constexpr int kMostPoints = 256;  // of the grid, a side
constexpr double kDepth = 0.3;    // of the shorter side

struct Vector {
  double x = 0;
  double y = 0;
  double z = 0;
};

double Dot(const Vector& a, const Vector& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vector Unit(const Vector& v) {
  const double length = std::sqrt(Dot(v, v));
  return {v.x / length, v.y / length, v.z / length};
}

// Heights 0..1 on a grid.
struct Heights {
  int columns = 0;
  int rows = 0;
  std::vector<double> values;
  double At(int x, int y) const {
    const auto column = static_cast<std::size_t>(std::clamp(x, 0, columns - 1));
    const auto row = static_cast<std::size_t>(std::clamp(y, 0, rows - 1));
    return values[row * static_cast<std::size_t>(columns) + column];
  }
};

Heights HeightsOf(const LevelField& field, LevelRange range) {
  Heights heights{std::min(field.width(), kMostPoints), std::min(field.height(), kMostPoints), {}};
  const auto levels = static_cast<double>(std::max<std::int64_t>(1, range.highest - range.lowest));
  const auto edge = [](int cell, int cells, int size) {
    return static_cast<int>(std::int64_t{cell} * size / cells);
  };
  for (int y = 0; y < heights.rows; ++y) {
    const int top = edge(y, heights.rows, field.height());
    const int bottom = edge(y + 1, heights.rows, field.height());
    for (int x = 0; x < heights.columns; ++x) {
      const int left = edge(x, heights.columns, field.width());
      const int right = edge(x + 1, heights.columns, field.width());
      double sum = 0;
      for (int v = top; v < bottom; ++v) {
        for (const std::int32_t level : field.Row(v).subspan(
                 static_cast<std::size_t>(left), static_cast<std::size_t>(right - left))) {
          sum += static_cast<double>(std::clamp<std::int64_t>(level, range.lowest, range.highest) -
                                     range.lowest);
        }
      }
      heights.values.push_back(sum / (levels * (bottom - top) * (right - left)));
    }
  }
  return heights;
}

// A corner of a triangle on the screen: pixels, nearness, and how bright it is.
struct Corner {
  double x = 0;
  double y = 0;
  double near = 0;
  double light = 0;
};

std::uint32_t Clay(double light) {
  const double glow = std::clamp(light, 0.0, 1.25);
  const auto part = [glow](double colour) {
    return static_cast<int>(std::min(255.0, colour * glow));
  };
  return OpaqueColour(part(222), part(213), part(197));
}

// Fills triangles, the nearest in front. Method: half-plane tests with a depth buffer (J. Pineda, A
// Parallel Algorithm for Polygon Rasterization, 1988).
class Canvas {
 public:
  Canvas(int width, int height)
      : picture_(width, height),
        near_(picture_.pixels.size(), -std::numeric_limits<float>::infinity()) {
    for (int y = 0; y < height; ++y) {
      const int fade = y * 24 / std::max(1, height);
      std::ranges::fill(picture_.Row(y), OpaqueColour(56 - fade, 62 - fade, 74 - fade));
    }
  }

  void Triangle(const Corner& a, const Corner& b, const Corner& c) {
    const double area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    if (std::abs(area) < 1e-9) return;
    const auto [left, right] = std::minmax({a.x, b.x, c.x});
    const auto [top, bottom] = std::minmax({a.y, b.y, c.y});
    const int firstX = static_cast<int>(std::ceil(std::clamp(left, 0.0, Last(picture_.width))));
    const int lastX = static_cast<int>(std::floor(std::clamp(right, -1.0, Last(picture_.width))));
    const int firstY = static_cast<int>(std::ceil(std::clamp(top, 0.0, Last(picture_.height))));
    const int lastY = static_cast<int>(std::floor(std::clamp(bottom, -1.0, Last(picture_.height))));
    for (int y = firstY; y <= lastY; ++y) {
      const auto row = picture_.Row(y);
      const auto near = std::span(near_).subspan(static_cast<std::size_t>(y) * row.size());
      for (int x = firstX; x <= lastX; ++x) {
        const double v = ((x - a.x) * (c.y - a.y) - (y - a.y) * (c.x - a.x)) / area;
        const double w = ((b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x)) / area;
        const double u = 1 - v - w;
        if (u < -kSeam || v < -kSeam || w < -kSeam) continue;
        const auto nearness = static_cast<float>(u * a.near + v * b.near + w * c.near);
        const auto column = static_cast<std::size_t>(x);
        if (near[column] >= nearness) continue;
        near[column] = nearness;
        row[column] = Clay(u * a.light + v * b.light + w * c.light);
      }
    }
  }

  RgbPicture Take() { return std::move(picture_); }

 private:
  static constexpr double kSeam = 1e-6;  // so that no pixel falls between two triangles
  static double Last(int size) { return size - 1.0; }

  RgbPicture picture_;
  std::vector<float> near_;
};

// Turns points of the surface and puts them on the screen.
class Camera {
 public:
  Camera(const ReliefView& view, double width, double height, int screenWidth, int screenHeight)
      : turn_(Radians(view.turn)), tilt_(Radians(std::clamp(view.tilt, -89.0, 89.0))) {
    // Corners of the box around the surface, each on the screen.
    double reachX = 0;
    double reachY = 0;
    for (const double x : {-width / 2, width / 2}) {
      for (const double y : {-height / 2, height / 2}) {
        for (const double z : {-kDepth / 2, kDepth / 2}) {
          const Vector seen = Turned({x, y, z});
          reachX = std::max(reachX, std::abs(seen.x));
          reachY = std::max(reachY, std::abs(seen.y));
        }
      }
    }
    constexpr double kRoom = 0.94;
    scale_ = kRoom * std::clamp(view.zoom, 0.2, 20.0) *
             std::min(screenWidth / (2 * reachX), screenHeight / (2 * reachY));
    middle_ = {screenWidth / 2.0, screenHeight / 2.0, 0};
  }

  Vector Turned(const Vector& p) const {
    const double x = p.x * std::cos(turn_) + p.z * std::sin(turn_);
    const double z = p.z * std::cos(turn_) - p.x * std::sin(turn_);
    return {x, p.y * std::cos(tilt_) - z * std::sin(tilt_),
            p.y * std::sin(tilt_) + z * std::cos(tilt_)};
  }
  Corner OnScreen(const Vector& p, double light) const {
    const Vector seen = Turned(p);
    return {middle_.x + seen.x * scale_, middle_.y + seen.y * scale_, seen.z, light};
  }

 private:
  static double Radians(double degrees) {
    return std::fmod(degrees, 360.0) * std::numbers::pi / 180;
  }

  double turn_;
  double tilt_;
  double scale_ = 1;
  Vector middle_;
};

// How bright a place is: light from the upper left, some from everywhere, and a soft shine.
double LightAt(const Vector& normal) {
  static const Vector kLight = Unit({-0.5, -0.62, 0.75});
  static const Vector kHalf = Unit({kLight.x, kLight.y, kLight.z + 1});
  const double lit = std::max(0.0, Dot(normal, kLight));
  return 0.32 + 0.70 * lit + 0.25 * std::pow(std::max(0.0, Dot(normal, kHalf)), 24.0);
}

}  // namespace

RgbPicture Relief(const LevelField& field, LevelRange range, ReliefView view, int width,
                  int height) {
  if (width < 1 || height < 1) return {};
  Canvas canvas(width, height);
  if (field.width() < 2 || field.height() < 2) return canvas.Take();
  const Heights heights = HeightsOf(field, range);
  // The shorter side is 1.
  const double shorter = std::min(field.width(), field.height());
  const double surfaceWidth = field.width() / shorter;
  const double surfaceHeight = field.height() / shorter;
  const double stepX = surfaceWidth / (heights.columns - 1);
  const double stepY = surfaceHeight / (heights.rows - 1);
  const Camera camera(view, surfaceWidth, surfaceHeight, width, height);

  std::vector<Corner> corners;
  corners.reserve(heights.values.size());
  for (int y = 0; y < heights.rows; ++y) {
    for (int x = 0; x < heights.columns; ++x) {
      const double slopeX = (heights.At(x + 1, y) - heights.At(x - 1, y)) * kDepth / (2 * stepX);
      const double slopeY = (heights.At(x, y + 1) - heights.At(x, y - 1)) * kDepth / (2 * stepY);
      const Vector place = {x * stepX - surfaceWidth / 2, y * stepY - surfaceHeight / 2,
                            (heights.At(x, y) - 0.5) * kDepth};
      corners.push_back(camera.OnScreen(place, LightAt(Unit({-slopeX, -slopeY, 1}))));
    }
  }
  const auto columns = static_cast<std::size_t>(heights.columns);
  for (std::size_t y = 0; y + 1 < static_cast<std::size_t>(heights.rows); ++y) {
    for (std::size_t x = 0; x + 1 < columns; ++x) {
      const std::size_t at = y * columns + x;
      canvas.Triangle(corners[at], corners[at + 1], corners[at + columns]);
      canvas.Triangle(corners[at + 1], corners[at + columns + 1], corners[at + columns]);
    }
  }
  return canvas.Take();
}

}  // namespace plenovia
