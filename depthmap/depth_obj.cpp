#include "depthmap/depth_obj.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

namespace plenovia {

namespace {

constexpr int kRoomAround = 4;  // pixels that selection marks need

std::int32_t Saturate(std::int64_t value) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(
      value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

}  // namespace

PixelRect DepthRect::Normalised() const {
  return {std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2)};
}

DepthRect DepthRect::Shifted(std::int64_t right, std::int64_t down) const {
  constexpr std::int64_t kLow = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kHigh = std::numeric_limits<std::int32_t>::max();
  const PixelRect box = Normalised();
  right = std::clamp(right, kLow - box.left, kHigh - box.right);
  down = std::clamp(down, kLow - box.top, kHigh - box.bottom);
  return {Saturate(x1 + right), Saturate(y1 + down), Saturate(x2 + right), Saturate(y2 + down)};
}

TDepthObj::TDepthObj(DepthObjOwner* owner, const DepthRect& rect, DepthObjKind kind,
                     std::int32_t level)
    : rect_(rect), kind_(kind), level_(level), owner_(owner) {}

DepthSize TDepthObj::GetSize() const {
  const PixelRect box = rect_.Normalised();
  return {box.right - box.left, box.bottom - box.top};
}

const Region* TDepthObj::GetRegion() const {
  if (!region_) region_ = BuildRegion();
  return region_ ? &*region_ : nullptr;
}

void TDepthObj::DropRegion() {
  region_.reset();
}

bool TDepthObj::ContainsPoint(std::int32_t x, std::int32_t y) const {
  const Region* region = GetRegion();
  return region != nullptr && region->Contains(x, y);
}

std::optional<Region> TDepthObj::BuildRegion() const {
  const PixelRect box = rect_.Normalised();
  switch (kind_) {
    case TextObj:
    case CurveObj:
    case SquareBoxObj:
      return Region::Rectangle(box);
    case LineObj:
      return Region::Line({rect_.x1, rect_.y1}, {rect_.x2, rect_.y2});
    case RoundBoxObj: {
      const DepthSize size = GetSize();
      const std::int64_t corner = std::min(size.width, size.height) / 4;
      return Region::RoundRectangle(box, corner, corner);
    }
    case PolygonObj: {
      if (points_.size() < 3) return std::nullopt;
      std::vector<PixelPoint> vertices;
      vertices.reserve(points_.size());
      for (const DepthPoint& p : points_) vertices.push_back({p.x, p.y});
      return Region::Polygon(vertices);
    }
    case CircleObj:
      return Region::Ellipse(box);
  }
  return std::nullopt;
}

void TDepthObj::UpdateBounds() {
  if (const Region* region = GetRegion()) {
    const PixelRect& box = region->Bounds();
    rect_ = {Saturate(box.left), Saturate(box.top), Saturate(box.right), Saturate(box.bottom)};
  } else if (kind_ == PolygonObj) {
    const DepthPoint at = points_.empty() ? DepthPoint{} : points_.front();
    rect_ = {at.x, at.y, at.x, at.y};
  }
}

void TDepthObj::MoveTo(const DepthRect& rect) {
  DropRegion();
  if (kind_ != PolygonObj) {
    SetRect(rect);
    return;
  }
  const std::int64_t right = std::int64_t{rect.x1} - rect_.x1;
  const std::int64_t down = std::int64_t{rect.y1} - rect_.y1;
  for (DepthPoint& p : points_) p = {Saturate(p.x + right), Saturate(p.y + down)};
  UpdateBounds();
}

void TDepthObj::ExchangeGeometry(DepthGeometry& geometry) {
  DropRegion();
  std::swap(rect_, geometry.rect);
  std::swap(points_, geometry.points);
}

void TDepthObj::AddPoint(const DepthPoint& point) {
  if (kind_ != PolygonObj) return;
  points_.push_back(point);
  DropRegion();
}

void TDepthObj::SetPoints(std::span<const DepthPoint> points) {
  if (kind_ != PolygonObj) return;
  points = points.first(std::min(points.size(), kMaxVertices));
  points_ = std::vector<DepthPoint>(points.begin(), points.end());
  DropRegion();
  UpdateBounds();
}

void TDepthObj::Invalidate() {
  if (kind_ == PolygonObj) UpdateBounds();
  if (owner_ == nullptr) return;
  const PixelRect box = rect_.Normalised();
  owner_->Repaint({box.left - kRoomAround, box.top - kRoomAround, box.right + kRoomAround,
                   box.bottom + kRoomAround});
}

void TDepthObj::WriteTo(ByteBuffer& out) const {
  Put32(out, static_cast<std::uint32_t>(kind_));
  Put32(out, static_cast<std::uint32_t>(level_));
  if (kind_ == PolygonObj) {
    Put32(out, static_cast<std::uint32_t>(points_.size()));
    for (const DepthPoint& p : points_) {
      Put32(out, static_cast<std::uint32_t>(p.x));
      Put32(out, static_cast<std::uint32_t>(p.y));
    }
    return;
  }
  for (const std::int32_t value : {rect_.x1, rect_.y1, rect_.x2, rect_.y2})
    Put32(out, static_cast<std::uint32_t>(value));
}

bool TDepthObj::ReadFrom(Int32Reader& in) {
  DropRegion();
  std::int32_t kind = 0;
  if (!in.Read(kind)) return false;
  kind_ = static_cast<DepthObjKind>(kind);
  points_.clear();
  if (!in.Read(level_)) return false;
  if (kind_ == PolygonObj) {
    const bool whole = ReadPoints(in);
    UpdateBounds();
    return whole;
  }
  DepthRect rect;
  if (!in.Read(rect.x1) || !in.Read(rect.y1) || !in.Read(rect.x2) || !in.Read(rect.y2)) {
    return false;
  }
  SetRect(rect);
  return true;
}

bool TDepthObj::ReadPoints(Int32Reader& in) {
  std::int32_t count = 0;
  if (!in.Read(count) || count < 0) return false;
  for (std::int32_t i = 0; i < count; ++i) {
    DepthPoint p;
    if (!in.Read(p.x) || !in.Read(p.y)) return false;
    points_.push_back(p);
  }
  return true;
}

}  // namespace plenovia
