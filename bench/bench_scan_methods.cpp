// The scan methods on one core at 4000 x 3000: the prepared form beside the plain rule and beside
// copying the rows.

#include <cstring>
#include <span>
#include <string>
#include <vector>

#include "bench/smooth_depth.h"
#include "bench/stopwatch.h"
#include "bench/table.h"
#include "engine/scan_method.h"
#include "engine/tests/plain_shift.h"
#include "platform/random.h"

namespace {

using namespace plenovia;  // NOLINT: a program of its own

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;
constexpr int kDistinctRows = 250;  // of depth; used again and again, as a picture's cache would

void Measure(std::int32_t number, std::span<const std::uint8_t> depth,
             const std::vector<std::uint8_t>& background) {
  TSirdsSettings settings;
  settings.scanMethod = number;
  settings.zmax = number == kLeftToRight ? 1020 : 255;  // shifts of up to 64 pixels
  const ScanMethod& method = ScanMethodOf(number);
  const auto shift = method.prepare({kWidth, settings.gapValue, SourceKind::kImage, settings});
  ShiftBuffers row(kWidth);
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
      shift->ShiftBytes(row);
      bench::Keep(row.pixels().data());
    }
  });
  const double mega = kWidth * 1e-6 * kHeight;
  const std::string what = std::string(method.title) + ", one thread";
  bench::PrintRates(what, mega / prepared, "pixels", "its plain rule", mega / plain);
  bench::PrintRates(what, mega / prepared, "pixels", "copying the rows", mega / copy);
}

}  // namespace

int main() {
  const IndexedImage depth = bench::SmoothDepth(kWidth, kDistinctRows);
  Random random(1);
  std::vector<std::uint8_t> background(kWidth);
  for (auto& pixel : background) pixel = random.Byte();
  for (const std::int32_t number : {kLeftToRight, kMcMahon, kFeucht}) {
    Measure(number, depth.pixels(), background);
  }
}
