// How the time to sample a whole depth map, on one thread, grows with its number of objects.
#include <algorithm>
#include <cstdint>
#include <ctime>
#include <limits>
#include <string>
#include <vector>

#include "bench/crowded_map.h"
#include "bench/stopwatch.h"
#include "bench/table.h"

namespace plenovia {
namespace {

constexpr int kSide = 4000;

// Processor time, which other programs on the machine disturb less; the shortest of several runs.
double SampleSeconds(const TDepthList& map) {
  std::vector<std::int32_t> levels(kSide);
  std::clock_t best = std::numeric_limits<std::clock_t>::max();
  for (int run = 0; run < 10; ++run) {
    const std::clock_t start = std::clock();
    for (int y = 0; y < kSide; ++y) {
      map.LevelRow(y, levels);
      bench::Keep(levels.data());
    }
    best = std::min(best, std::clock() - start);
  }
  return static_cast<double>(best) / CLOCKS_PER_SEC;
}

int Run() {
  const double few = SampleSeconds(bench::CrowdedMap(kSide, 10));
  for (const int objects : {100, 1000, 10000}) {
    bench::PrintTimes("depth map, 4000 x 4000, " + std::to_string(objects) + " objects",
                      SampleSeconds(bench::CrowdedMap(kSide, objects)),
                      "10 objects, as much covered", few);
  }
  return 0;
}

}  // namespace
}  // namespace plenovia

int main() {
  return plenovia::Run();
}
