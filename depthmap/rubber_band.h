// The shape that is being drawn with the mouse.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>

#include "depthmap/depth_obj.h"
#include "depthmap/map_look.h"
#include "depthmap/row_canvas.h"

namespace plenovia {

// An outline that follows the drag, or the vertices of a polygon so far with a line from the last
// one to the mouse. Shown above all objects; never one of them.
class RubberBand {
 public:
  bool IsActive() const { return shape_ != nullptr; }
  bool IsPolygon() const { return IsActive() && shape_->GetKind() == PolygonObj; }

  // A polygon begins with the first corner as its first vertex.
  void Start(DepthObjKind kind, const DepthRect& rect);
  void Stop();

  // The rectangle of anything but a polygon.
  void SetRect(const DepthRect& rect);

  // The rectangle of anything but a polygon; nothing else is asked for it.
  const DepthRect& Rect() const { return shape_->GetRect(); }

  // The vertices of a polygon, without a limit. A new one takes the line away.
  void AddVertex(const DepthPoint& point);
  std::span<const DepthPoint> Vertices() const;
  // Whether a vertex here, up to `tolerance` pixels from the first one, would only close the
  // polygon.
  bool IsClosedBy(const DepthPoint& point, std::int64_t tolerance) const;
  void SetLine(const DepthPoint& from, const DepthPoint& to);
  // Shows a polygon as it would be if it were finished now.
  void SetClosed(bool closed) { closed_ = closed; }

  // Where on the map everything lies that is shown; empty when nothing is.
  PixelRect Area() const;
  // Row `y` of the map as it is shown.
  void PaintRow(RowCanvas& canvas, std::int64_t y, const MapLook& look = {}) const;

 private:
  struct Line {
    DepthPoint from;
    DepthPoint to;
  };

  std::unique_ptr<TDepthObj> shape_;
  std::optional<Line> line_;
  bool closed_ = false;
};

}  // namespace plenovia
