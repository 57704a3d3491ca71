// How fast the figures give their levels, called pixel by pixel.
#include <algorithm>
#include <cstdint>
#include <ctime>
#include <string>

#include "bench/table.h"
#include "figures/sirdmath.h"

namespace {

constexpr std::int32_t kSide = 400;  // pixels
constexpr int kRounds = 7;           // the best one counts

volatile std::int64_t sink;

double MillionLevelsPerSecond(std::int32_t code) {
  double best = 0;
  for (int round = 0; round < kRounds; ++round) {
    const std::clock_t start = std::clock();
    std::int64_t sum = 0;
    for (std::int32_t y = 0; y < kSide; ++y) {
      for (std::int32_t x = 0; x < kSide; ++x) {
        sum += _GetFigureLevel(x, y, kSide / 2, kSide / 2, 10, code);
      }
    }
    sink = sum;
    const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    best = std::max(best, kSide * kSide / seconds / 1e6);
  }
  return best;
}

}  // namespace

int main() {
  _InitFigureTitles();
  double slowest = 1e9;
  double fastest = 0;
  std::string slowestTitle;
  std::string fastestTitle;
  for (std::int32_t number = 0; number < _GetFigureCount(); ++number) {
    char title[40];
    _GetFigureTitle(number, title, sizeof title);
    const double rate = MillionLevelsPerSecond(-(number + 1));
    if (rate < slowest) slowestTitle = title;
    if (rate > fastest) fastestTitle = title;
    slowest = std::min(slowest, rate);
    fastest = std::max(fastest, rate);
  }
  plenovia::bench::PrintRates("levels of the slowest figure: " + slowestTitle, slowest, "pixels",
                              "the fastest: " + fastestTitle, fastest);
  _UnloadFigureTitles();
}
