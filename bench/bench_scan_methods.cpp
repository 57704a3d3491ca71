// The scan methods on one core: megapixels a second of the plain rule and of the prepared form,
// beside copying the rows.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <numbers>
#include <vector>

#include "bench/stopwatch.h"
#include "engine/prepared_shift.h"
#include "platform/random.h"

namespace {

using namespace plenovia;  // NOLINT: a program of its own

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;
constexpr int kDistinctRows = 250;  // of depth; used again and again, as a picture's cache would

// Hills and a ball over a slope: levels 0..255.
std::vector<std::uint8_t> SmoothDepth() {
  std::vector<std::uint8_t> depth;
  for (int y = 0; y < kDistinctRows; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const double u = static_cast<double>(x) / kWidth;
      const double v = static_cast<double>(y) / kDistinctRows;
      double level = 60 + 50 * std::sin(3 * std::numbers::pi * u) * std::cos(2 * v) + 40 * v;
      const double r2 = std::pow((u - 0.6) * 4, 2) + std::pow((v - 0.5) * 3, 2);
      if (r2 < 1) level = std::max(level, 130 + 120 * std::sqrt(1 - r2));
      depth.push_back(static_cast<std::uint8_t>(std::clamp(level, 0.0, 255.0)));
    }
  }
  return depth;
}

void Measure(const char* name, std::int32_t method, const std::vector<std::uint8_t>& depth,
             const std::vector<std::uint8_t>& background) {
  TSirdsSettings settings;
  settings.scanMethod = method;
  settings.zmax = method == kLeftToRight ? 1020 : 255;  // shifts of up to 64 pixels
  const PreparedShift shift(kWidth, settings.gapValue, SourceKind::kImage, settings);
  ShiftBuffers row = shift.MakeRow();
  std::vector<std::int32_t> levels(depth.begin(), depth.end());

  const auto fill = [&] { std::memcpy(row.pixels().data(), background.data(), kWidth); };
  const double copy = bench::Seconds([&] {
    for (int y = 0; y < kHeight; ++y) {
      std::memcpy(row.byteLevels().data(), depth.data() + (y % kDistinctRows) * kWidth, kWidth);
      fill();
      bench::Keep(row.pixels().data());
    }
  });
  const double plain = bench::Seconds([&] {
    for (int y = 0; y < kHeight; ++y) {
      const auto at = static_cast<std::size_t>(y % kDistinctRows) * kWidth;
      fill();
      ShiftRow(row.pixels(), {levels.data() + at, kWidth}, settings.gapValue, SourceKind::kImage,
               settings);
      bench::Keep(row.pixels().data());
    }
  });
  const double prepared = bench::Seconds([&] {
    for (int y = 0; y < kHeight; ++y) {
      std::memcpy(row.byteLevels().data(), depth.data() + (y % kDistinctRows) * kWidth, kWidth);
      fill();
      shift.ShiftBytes(row);
      bench::Keep(row.pixels().data());
    }
  });
  const double mega = kWidth * 1e-6 * kHeight;
  std::printf("%-14s %10.0f %10.0f %10.0f %9.1fx\n", name, mega / copy, mega / plain,
              mega / prepared, plain / prepared);
}

}  // namespace

int main() {
  const auto depth = SmoothDepth();
  Random random(1);
  std::vector<std::uint8_t> background(kWidth);
  for (auto& pixel : background) pixel = random.Byte();
  std::printf("Scan methods, one core, %d x %d, megapixels a second\n", kWidth, kHeight);
  std::printf("%-14s %10s %10s %10s %10s\n", "", "copying", "plain", "prepared", "ratio");
  Measure("Left-To-Right", kLeftToRight, depth, background);
  Measure("McMahon", kMcMahon, depth, background);
  Measure("Feucht", kFeucht, depth, background);
}
