// Slopes and rounds, made of shapes in steps.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "depthmap/depth_list.h"

namespace plenovia {

enum class StepForm {
  kCone,  // a slope from all sides to the middle: pyramids of boxes, cones of ellipses
  kDome,  // round: half an ellipsoid
  kRampRight,
  kRampLeft,
  kRampDown,
  kRampUp,  // a slope to one side
};

struct StepPlan {
  StepForm form = StepForm::kCone;
  int steps = 8;  // shapes, the first included
  std::int32_t from = 0;
  std::int32_t to = 0;
};

inline constexpr int kMostSteps = 64;

// Boxes, ellipses and polygons can be made into steps.
bool CanMakeSteps(const TDepthObj& shape);

// The shapes in the order of their stack, the lowest first: the first has the form of `shape` and
// the level `from`, the last is the smallest and has the level `to`; levels between them go in even
// steps. There are no more shapes than levels, and none that covers nothing. Empty when steps
// cannot be made.
std::vector<std::unique_ptr<TDepthObj>> MakeSteps(const TDepthObj& shape, const StepPlan& plan);

// Makes them of the object selected last, which becomes the first of them, and selects them all;
// one step of the history. Nothing happens when steps cannot be made.
void MakeStepsOfSelected(TDepthList& list, const StepPlan& plan);

}  // namespace plenovia
