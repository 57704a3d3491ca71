// Depth from a formula z = f(x, y).
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "engine/run_monitor.h"
#include "platform/fine_image.h"
#include "platform/result.h"

namespace plenovia {

inline constexpr std::size_t kLongestFormula = 1000;  // characters
inline constexpr double kSmallestReach = 0.001;
inline constexpr double kLargestReach = 1000;

// x grows to the right, y upwards, both from 0 in the middle of the picture; along the shorter side
// they go from -reach to reach. A formula may also use r, the distance from the middle, and a, the
// angle of (x, y) in radians; the constants pi and e; and beside the functions of muParser floor,
// ceil, mod and hypot. The highest z is the nearest.
struct Formula {
  std::string text;
  double reach = 5;
};

// What is wrong with a formula, as kInvalid: a mistake in writing, more than kLongestFormula
// characters, brackets or conditions nested too deep, or a reach out of its limits. Quick, so that
// it may be asked for each letter typed.
[[nodiscard]] Result<void> CheckFormula(const Formula& formula);

// The levels, 0..65535, of the formula's values as LevelsFromHeights() has them: where there is no
// value, such as at the root of a number below 0, it is as far as the farthest. Fails as
// CheckFormula() and FineImage::Create() do, with kInvalid when there is no value anywhere, and
// with kCancelled when the monitor stopped it. The result is the same for any number of threads.
[[nodiscard]] Result<FineImage> DrawFormula(const Formula& formula, int width, int height,
                                            int threads, RunMonitor& monitor);

struct FormulaExample {
  const char* name;
  Formula formula;
};

// Twelve of them.
std::span<const FormulaExample> FormulaExamples();

}  // namespace plenovia
