// The depth found again in a large stereogram, on one core: separations tried at all pixels, beside
// copying as many bytes.

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "bench/stopwatch.h"
#include "bench/table.h"
#include "engine/prepared_shift.h"
#include "engine/quiet_monitor.h"
#include "engine/reveal.h"
#include "engine/scan_method.h"
#include "platform/random.h"

namespace {

using namespace plenovia;  // NOLINT: a program of its own

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;
constexpr int kSmallest = 40;
constexpr int kLargest = 103;
constexpr double kMillions = 1e-6 * kWidth * kHeight * (kLargest - kSmallest + 1);

// Slopes over a background of random pixels.
IndexedImage Stereogram(const Palette& palette) {
  Random random(1);
  const TSirdsSettings settings;
  const auto shift = ScanMethodOf(settings.scanMethod)
                         .prepare({kWidth, settings.gapValue, SourceKind::kShape, settings});
  ShiftBuffers row(kWidth);
  IndexedImage picture = IndexedImage::Create(kWidth, kHeight, palette).value();
  std::vector<std::int32_t> levels(kWidth);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      levels[static_cast<std::size_t>(x)] = (x / 8 + y / 8) % 64;
      picture.Row(y)[static_cast<std::size_t>(x)] = random.Byte();
    }
    std::copy_n(picture.Row(y).begin(), kWidth, row.pixels().begin());
    std::copy_n(levels.begin(), kWidth, row.levels().begin());
    shift->Shift(row);
    std::copy_n(row.pixels().begin(), kWidth, picture.Row(y).begin());
  }
  return picture;
}

void Measure(const std::string& name, const Palette& palette, double copy) {
  const IndexedImage picture = Stereogram(palette);
  const RevealOptions options{.smallest = kSmallest, .largest = kLargest};
  QuietMonitor monitor;
  const double seconds = bench::Seconds(
      [&] {
        const auto revealed = Reveal(picture, options, monitor);
        if (revealed) bench::Keep(revealed->separation.data());
      },
      3);
  bench::PrintRates("Reveal, " + name + ", 64 separations", kMillions / seconds, "tries",
                    "copying as many bytes", kMillions / copy);
}

}  // namespace

int main() {
  const std::vector<std::uint8_t> from(std::size_t{kWidth} * kHeight, 1);
  std::vector<std::uint8_t> to(from.size());
  constexpr int kCopies = kLargest - kSmallest + 1;
  const double copy = bench::Seconds([&] {
    for (int i = 0; i < kCopies; ++i) {
      std::memcpy(to.data(), from.data(), to.size());
      bench::Keep(to.data());
    }
  });
  Random random(2);
  std::vector<Rgb> colours(256);
  for (Rgb& colour : colours) colour = {random.Byte(), random.Byte(), random.Byte()};
  Measure("gray", Palette::Grays(), copy);
  Measure("colours", Palette(colours), copy);
}
