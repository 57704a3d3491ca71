#include "depthmap/shape_steps.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <utility>

namespace plenovia {

namespace {

// The place that stays and the directions that shrink.
struct FormRow {
  StepForm form;
  double anchorX;  // 0 is the left or upper edge, 1 the right or lower one
  double anchorY;
  bool alongX;
  bool alongY;
};

constexpr FormRow kForms[] = {
    {StepForm::kCone, 0.5, 0.5, true, true},       {StepForm::kDome, 0.5, 0.5, true, true},
    {StepForm::kRampRight, 1.0, 0.5, true, false}, {StepForm::kRampLeft, 0.0, 0.5, true, false},
    {StepForm::kRampDown, 0.5, 1.0, false, true},  {StepForm::kRampUp, 0.5, 0.0, false, true},
};

// Moves places on the map towards the anchor.
class Shrinking {
 public:
  Shrinking(const PixelRect& box, const FormRow& row, double size)
      : anchorX_(Between(box.left, box.right, row.anchorX)),
        anchorY_(Between(box.top, box.bottom, row.anchorY)),
        sizeX_(row.alongX ? size : 1),
        sizeY_(row.alongY ? size : 1) {}

  DepthPoint operator()(const DepthPoint& point) const {
    return {Moved(point.x, anchorX_, sizeX_), Moved(point.y, anchorY_, sizeY_)};
  }

 private:
  static double Between(std::int64_t a, std::int64_t b, double part) {
    return static_cast<double>(a) + static_cast<double>(b - a) * part;
  }
  static std::int32_t Moved(std::int32_t place, double anchor, double size) {
    return static_cast<std::int32_t>(std::lround(anchor + (place - anchor) * size));
  }

  double anchorX_;
  double anchorY_;
  double sizeX_;
  double sizeY_;
};

// Of a step at `height`, 0 at the ground and below 1 at the top.
double SizeAt(StepForm form, double height) {
  return form == StepForm::kDome ? std::sqrt(1 - height * height) : 1 - height;
}

bool IsEmpty(const TDepthObj& shape) {
  const Region* region = shape.GetRegion();
  if (region == nullptr) return true;
  const PixelRect& box = region->Bounds();
  return box.left >= box.right || box.top >= box.bottom;
}

std::unique_ptr<TDepthObj> Shrunk(const TDepthObj& shape, const Shrinking& shrinking,
                                  std::int32_t level) {
  const DepthRect& rect = shape.GetRect();
  const DepthPoint a = shrinking({rect.x1, rect.y1});
  const DepthPoint b = shrinking({rect.x2, rect.y2});
  auto step =
      std::make_unique<TDepthObj>(nullptr, DepthRect{a.x, a.y, b.x, b.y}, shape.GetKind(), level);
  if (shape.GetKind() == PolygonObj) {
    std::vector<DepthPoint> points;
    for (const DepthPoint& point : shape.GetPoints()) points.push_back(shrinking(point));
    step->SetPoints(points);
  }
  return step;
}

}  // namespace

bool CanMakeSteps(const TDepthObj& shape) {
  return shape.GetKind() >= SquareBoxObj && shape.GetKind() <= CircleObj && !IsEmpty(shape);
}

std::vector<std::unique_ptr<TDepthObj>> MakeSteps(const TDepthObj& shape, const StepPlan& plan) {
  std::vector<std::unique_ptr<TDepthObj>> steps;
  if (!CanMakeSteps(shape)) return steps;
  const auto* form = std::ranges::find(kForms, plan.form, &FormRow::form);
  const std::int64_t levels = std::int64_t{plan.to} - plan.from;
  const std::int64_t count = std::clamp<std::int64_t>(
      std::min<std::int64_t>(plan.steps, std::abs(levels) + 1), 1, kMostSteps);
  const PixelRect box = shape.GetRect().Normalised();
  for (std::int64_t i = 0; i < count; ++i) {
    const double done = count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0;
    const auto level =
        static_cast<std::int32_t>(plan.from + std::llround(static_cast<double>(levels) * done));
    const double height = static_cast<double>(i) / static_cast<double>(count);
    auto step = Shrunk(shape, {box, *form, SizeAt(plan.form, height)}, level);
    if (!IsEmpty(*step)) steps.push_back(std::move(step));
  }
  return steps;
}

void MakeStepsOfSelected(TDepthList& list, const StepPlan& plan) {
  const TDepthObj* shape = list.Selected();
  if (shape == nullptr) return;
  auto steps = MakeSteps(*shape, plan);
  if (steps.empty()) return;
  std::vector<const TDepthObj*> all{shape};
  const MapEdit edit(list, EditKind::kRamp);
  list.SetObjectLevel(shape, plan.from);
  for (auto& step : std::span(steps).subspan(1)) {
    const TDepthObj* below = all.back();
    all.push_back(step.get());
    list.InsertAbove(below, std::move(step));
  }
  list.SelectAll(all);
}

}  // namespace plenovia
