// Formulas: what is taken has levels or no value anywhere, the same for any number of threads.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "engine/quiet_monitor.h"
#include "sources/formula.h"

namespace plenovia {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void Try(const Formula& formula) {
  QuietMonitor monitor;
  const auto checked = CheckFormula(formula);
  const auto image = DrawFormula(formula, 24, 16, 1, monitor);
  if (!checked) Require(!image && !checked.error().message.empty());
  if (!image) return;
  Require(image->width() == 24 && image->height() == 16);
  const auto again = DrawFormula(formula, 24, 16, 2, monitor);
  Require(again && std::ranges::equal(image->pixels(), again->pixels()));
}

}  // namespace
}  // namespace plenovia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plenovia::Try({std::string(data, data + size), 5});
  return 0;
}
