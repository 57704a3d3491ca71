// Formulas: whatever is taken has levels or no value anywhere, the same for any number of threads.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "sources/formula.h"

namespace plenovia {
namespace {

class NoMonitor : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return false; }
};

void Require(bool condition) {
  if (!condition) std::abort();
}

void Try(const Formula& formula) {
  NoMonitor monitor;
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
