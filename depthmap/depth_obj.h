// One shape of a depth map: the points it covers and the level it gives them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "depthmap/int32_reader.h"
#include "platform/link_obj.h"
#include "platform/pixel_buffer.h"
#include "platform/region.h"

namespace plenovia {

// A file may hold other values; such an object covers nothing.
enum DepthObjKind : std::int32_t {
  TextObj = 0,   // covers its whole rectangle
  LineObj = 1,   // a sliver one pixel wide from (x1, y1) to (x2, y2), Region::Line
  CurveObj = 2,  // drawn as half an ellipse, covers its whole rectangle
  SquareBoxObj = 3,
  RoundBoxObj = 4,  // the corners are quarter circles, a quarter of the shorter side across
  PolygonObj = 5,   // filled by the even-odd rule; covers nothing below 3 vertices
  CircleObj = 6,    // the ellipse in the rectangle
};

// Two opposite corners in map pixels, in any order: where a drag began and where it ended. The
// greater column and row of the two are excluded from what the rectangle covers.
struct DepthRect {
  std::int32_t x1 = 0;
  std::int32_t y1 = 0;
  std::int32_t x2 = 0;
  std::int32_t y2 = 0;
  bool operator==(const DepthRect&) const = default;

  PixelRect Normalised() const;
  // The same size elsewhere. Stops at the ends of the 32-bit numbers.
  DepthRect Shifted(std::int64_t right, std::int64_t down) const;
};

struct DepthPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const DepthPoint&) const = default;
};

struct DepthSize {
  std::int64_t width = 0;
  std::int64_t height = 0;
  bool operator==(const DepthSize&) const = default;
};

// What an object covers: its corners, and the vertices of a polygon, whose corners follow from
// them.
struct DepthGeometry {
  DepthRect rect;
  std::vector<DepthPoint> points;
  bool operator==(const DepthGeometry&) const = default;
};

// Shows depth objects, and repaints the places where they changed.
class DepthObjOwner {
 public:
  virtual ~DepthObjOwner() = default;
  // Show `area` anew.
  virtual void Repaint(const PixelRect& area) = 0;
};

// Coordinates and levels are any 32-bit numbers. The region is kept from its first use until the
// geometry changes; objects are therefore used from one thread.
class TDepthObj : public TLinkObj {
 public:
  static constexpr std::size_t kMaxVertices = 64;  // of a finished polygon

  // `owner` is borrowed and may be absent: then nothing is repainted.
  TDepthObj(DepthObjOwner* owner, const DepthRect& rect, DepthObjKind kind, std::int32_t level);

  void SetOwner(DepthObjOwner* owner) { owner_ = owner; }
  DepthObjKind GetKind() const { return kind_; }
  std::int32_t GetLevel() const { return level_; }
  void SetLevel(std::int32_t level) { level_ = level; }

  // Whether it is one of the selected objects of its list.
  bool IsSelected() const { return selected_; }

  // The corners as given; of a polygon the box around its vertices. SetRect keeps a region that was
  // built before: it is meant for objects without one, or to be followed by DropRegion.
  const DepthRect& GetRect() const { return rect_; }
  void SetRect(const DepthRect& rect) { rect_ = rect; }
  DepthSize GetSize() const;
  std::span<const DepthPoint> GetPoints() const { return points_; }

  // The points covered, or null when the object has none. Valid until the geometry changes.
  const Region* GetRegion() const;
  void DropRegion();
  bool ContainsPoint(std::int32_t x, std::int32_t y) const;

  // Sets the rectangle to the region's bounds. A polygon without a region gets an empty rectangle
  // at its first vertex.
  void UpdateBounds();

  // A polygon moves by the way of the first corner, any other object takes the rectangle as it is.
  // Vertices stop at the ends of the 32-bit numbers.
  void MoveTo(const DepthRect& rect);

  DepthGeometry GetGeometry() const { return {rect_, points_}; }
  // Takes this geometry as it is, and hands out the one before.
  void ExchangeGeometry(DepthGeometry& geometry);

  // For polygons; other kinds ignore both. AddPoint has no limit, SetPoints keeps the first
  // kMaxVertices.
  void AddPoint(const DepthPoint& point);
  void SetPoints(std::span<const DepthPoint> points);

  // Has the owner repaint the rectangle, which the region lies in, with room around it for marks.
  void Invalidate();

  // One record of a depth-map file: kind, level, then the vertices of a polygon or else the
  // rectangle. ReadFrom is false when the bytes end early or a polygon's vertex count is below 0:
  // vertices keep what was read, other fields that were not read keep what they had.
  void WriteTo(ByteBuffer& out) const;
  [[nodiscard]] bool ReadFrom(Int32Reader& in);

 private:
  std::optional<Region> BuildRegion() const;
  bool ReadPoints(Int32Reader& in);

  DepthRect rect_;
  mutable std::optional<Region> region_;
  DepthObjKind kind_;
  std::int32_t level_;
  std::vector<DepthPoint> points_;
  DepthObjOwner* owner_;

  friend class TDepthList;
  const void* home_ = nullptr;  // what tells its list from others
  bool selected_ = false;
};

}  // namespace plenovia
