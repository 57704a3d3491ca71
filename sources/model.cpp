#include "sources/model.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <numbers>
#include <span>

#include "platform/parallel_for.h"
#include "platform/pixel_buffer.h"

namespace plenovia {

namespace {

constexpr double kMargin = 0.04;   // of each side
constexpr double kFarthest = 0.1;  // of the highest level
constexpr double kNearest = 1e-3;  // of the model's size, between the viewer and the model

struct Point {
  double x;
  double y;
  double z;
};

// Rows of a rotation.
struct Rotation {
  Point right;
  Point up;
  Point towards;

  explicit Rotation(const ModelView& view) {
    const double turn = view.turn * std::numbers::pi / 180;
    const double tilt = view.tilt * std::numbers::pi / 180;
    const double c = std::cos(turn);
    const double s = std::sin(turn);
    const double ct = std::cos(tilt);
    const double st = std::sin(tilt);
    right = {c, 0, s};
    up = {st * s, ct, -st * c};
    towards = {-ct * s, st, ct * c};
  }
  Point operator()(const Point& p) const {
    const auto dot = [&](const Point& row) { return row.x * p.x + row.y * p.y + row.z * p.z; };
    return {dot(right), dot(up), dot(towards)};
  }
};

struct Box {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();
  void Include(double value) {
    low = std::min(low, value);
    high = std::max(high, value);
  }
  double Middle() const { return (low + high) / 2; }
  double Length() const { return high - low; }
};

// Where a corner is in the picture, in pixels from its upper left corner, and how near: a number
// that is linear along any straight line of the picture. Greater is nearer.
struct Seen {
  float x;
  float y;
  float nearness;
};

// Brings corners into the picture.
class Camera {
 public:
  Camera(const Mesh& mesh, const ModelView& view, int width, int height)
      : rotation_(view), width_(width), height_(height) {
    Box x, y, z;
    for (const Corner& corner : mesh.corners) {
      x.Include(corner.x);
      y.Include(corner.y);
      z.Include(corner.z);
    }
    middle_ = {x.Middle(), y.Middle(), z.Middle()};
    for (const Corner& corner : mesh.corners) {
      const Point p = Turned(corner);
      x_.Include(p.x);
      y_.Include(p.y);
      z_.Include(p.z);
    }
    const double roomAcross = width * (1 - 2 * kMargin);
    const double roomDown = height * (1 - 2 * kMargin);
    if (view.perspective > 0) {
      // Pixels for each unit at distance 1, and the least distance at which all corners fit.
      const double half = std::tan(view.perspective * std::numbers::pi / 360);
      scale_ = std::max(width, height) / 2.0 / half;
      const double across = roomAcross / 2 / scale_;
      const double down = roomDown / 2 / scale_;
      const double size = x_.Length() + y_.Length() + z_.Length();
      if (size == 0) scale_ = 0;
      eye_ = z_.high + kNearest * size;
      for (const Corner& corner : mesh.corners) {
        const Point p = Turned(corner);
        eye_ = std::max({eye_, p.z + std::abs(p.x - x_.Middle()) / across,
                         p.z + std::abs(p.y - y_.Middle()) / down});
      }
    } else {
      const auto fit = [](double room, double length) {
        return length > 0 ? room / length : std::numeric_limits<double>::infinity();
      };
      scale_ = std::min(fit(roomAcross, x_.Length()), fit(roomDown, y_.Length()));
    }
    perspective_ = view.perspective > 0;
  }

  // Whether there is anything to see.
  bool Works() const { return std::isfinite(scale_) && scale_ > 0; }

  Seen operator()(const Corner& corner) const {
    const Point p = Turned(corner);
    const double zoom = perspective_ ? scale_ / (eye_ - p.z) : scale_;
    return {static_cast<float>(width_ / 2.0 + (p.x - x_.Middle()) * zoom),
            static_cast<float>(height_ / 2.0 - (p.y - y_.Middle()) * zoom),
            static_cast<float>(perspective_ ? (eye_ - z_.high) / (eye_ - p.z)
                                            : -(z_.high - p.z) / Depth())};
  }

  std::uint16_t LevelOf(float nearness) const {
    const double behind =
        perspective_ ? (eye_ - z_.high) * (1.0 / nearness - 1) / Depth() : -double{nearness};
    const double part = 1 - (1 - kFarthest) * std::clamp(behind, 0.0, 1.0);
    return static_cast<std::uint16_t>(std::lround(part * FineImage::kHighest));
  }

 private:
  // Turned about the middle of the model, so that no place is too far away to be exact.
  Point Turned(const Corner& p) const {
    return rotation_({p.x - middle_.x, p.y - middle_.y, p.z - middle_.z});
  }
  double Depth() const { return z_.Length() > 0 ? z_.Length() : 1; }

  Rotation rotation_;
  Point middle_{};
  int width_;
  int height_;
  Box x_, y_, z_;
  double scale_ = 0;
  double eye_ = 0;  // of the viewer, on the z axis
  bool perspective_ = false;
};

constexpr float kNothing = -std::numeric_limits<float>::infinity();

// The rows first..end-1 of the nearest surfaces.
class DepthRows {
 public:
  DepthRows(std::span<float> rows, int width, int first, int end)
      : rows_(rows), width_(width), first_(first), end_(end) {
    std::ranges::fill(rows_, kNothing);
  }

  void Draw(const Seen& a, const Seen& b, const Seen& c) {
    const int top = FirstInside(std::min({a.y, b.y, c.y}), first_);
    const int bottom = LastInside(std::max({a.y, b.y, c.y}), end_ - 1);
    if (top > bottom) return;
    const int left = FirstInside(std::min({a.x, b.x, c.x}), 0);
    const int right = LastInside(std::max({a.x, b.x, c.x}), width_ - 1);
    if (left > right) return;
    const double abx = double{b.x} - a.x;
    const double aby = double{b.y} - a.y;
    const double acx = double{c.x} - a.x;
    const double acy = double{c.y} - a.y;
    const double area = abx * acy - acx * aby;
    if (area == 0) return;
    for (int y = top; y <= bottom; ++y) {
      float* const row =
          rows_.data() + static_cast<std::size_t>(y - first_) * static_cast<std::size_t>(width_);
      const double py = y + 0.5 - a.y;
      // The shares of b and c at the first pixel's middle, and what they grow by the pixel.
      const double px = left + 0.5 - a.x;
      double ofB = (px * acy - py * acx) / area;
      double ofC = (py * abx - px * aby) / area;
      const double growB = acy / area;
      const double growC = -aby / area;
      for (int x = left; x <= right; ++x, ofB += growB, ofC += growC) {
        if (ofB < 0 || ofC < 0 || ofB + ofC > 1) continue;
        const double nearness = a.nearness + ofB * (double{b.nearness} - a.nearness) +
                                ofC * (double{c.nearness} - a.nearness);
        row[x] = std::max(row[x], static_cast<float>(nearness));
      }
    }
  }

 private:
  // The pixels whose middles lie behind a place, and before it.
  static int FirstInside(float from, int least) {
    return std::max(least, static_cast<int>(std::ceil(std::clamp(from, -1e6F, 1e6F) - 0.5F)));
  }
  static int LastInside(float to, int most) {
    return std::min(most, static_cast<int>(std::floor(std::clamp(to, -1e6F, 1e6F) - 0.5F)));
  }

  std::span<float> rows_;
  int width_;
  int first_;
  int end_;
};

Result<FineImage> Draw(const Mesh& mesh, const ModelView& view, int width, int height,
                       int threads) {
  auto image = FineImage::Create(width, height);
  if (!image) return image;
  const Camera camera(mesh, view, width, height);
  if (!camera.Works()) return Failure(ErrorCode::kInvalid, "The model has no extent.");
  PixelVector<Seen> seen(mesh.corners.size());
  std::ranges::transform(mesh.corners, seen.begin(), camera);
  // A band of rows each; all look through all triangles.
  const int bands = std::clamp(threads, 1, height);
  const auto draw = [&](std::size_t, int band) {
    const auto rowAt = [&](int index) {
      return static_cast<int>(std::int64_t{height} * index / bands);
    };
    const int first = rowAt(band);
    const int end = rowAt(band + 1);
    PixelVector<float> nearness(static_cast<std::size_t>(end - first) *
                                static_cast<std::size_t>(width));
    DepthRows rows(nearness, width, first, end);
    for (const auto& [a, b, c] : mesh.triangles) rows.Draw(seen[a], seen[b], seen[c]);
    const auto to = image->pixels().subspan(
        static_cast<std::size_t>(first) * static_cast<std::size_t>(width), nearness.size());
    std::ranges::transform(nearness, to.begin(), [&](float near) {
      return near == kNothing ? std::uint16_t{0} : camera.LevelOf(near);
    });
  };
  if (!ParallelFor(bands, static_cast<std::size_t>(bands), draw, [](int) { return true; })) {
    return Failure(ErrorCode::kCancelled, "The run was stopped.");
  }
  return image;
}

}  // namespace

Result<FineImage> DrawModel(const Mesh& mesh, const ModelView& view, int width, int height,
                            int threads) {
  const bool inside = std::abs(view.turn) <= 360 && std::abs(view.tilt) <= 360 &&
                      view.perspective >= 0 && view.perspective <= kWidestPerspective;
  if (!inside) return Failure(ErrorCode::kInvalid, "The angles of the view make no sense.");
  if (mesh.corners.empty()) return Failure(ErrorCode::kInvalid, "The model has no surface.");
  try {
    return Draw(mesh, view, width, height, threads);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory for the model.");
  }
}

}  // namespace plenovia
