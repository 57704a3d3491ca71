// The depth found again in a large stereogram, on one core: seconds, and millions of separations of
// pixels a second, beside copying as many bytes.

#include <cstdio>
#include <cstring>
#include <vector>

#include "bench/stopwatch.h"
#include "engine/reveal.h"
#include "engine/scan_methods.h"
#include "platform/random.h"

namespace {

using namespace plenovia;  // NOLINT: a program of its own

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;
constexpr int kSmallest = 40;
constexpr int kLargest = 103;
constexpr double kMillions = 1e-6 * kWidth * kHeight * (kLargest - kSmallest + 1);

class NoMonitor : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return false; }
};

// Slopes over a background of random pixels.
IndexedImage Stereogram(const Palette& palette) {
  Random random(1);
  const TSirdsSettings settings;
  IndexedImage picture = IndexedImage::Create(kWidth, kHeight, palette).value();
  std::vector<std::int32_t> levels(kWidth);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      levels[static_cast<std::size_t>(x)] = (x / 8 + y / 8) % 64;
      picture.Row(y)[static_cast<std::size_t>(x)] = random.Byte();
    }
    ShiftRow(picture.Row(y), levels, settings.gapValue, SourceKind::kShape, settings);
  }
  return picture;
}

void Measure(const char* name, const Palette& palette) {
  const IndexedImage picture = Stereogram(palette);
  const RevealOptions options{.smallest = kSmallest, .largest = kLargest};
  NoMonitor monitor;
  const double seconds = bench::Seconds(
      [&] {
        const auto revealed = Reveal(picture, options, monitor);
        if (revealed) bench::Keep(revealed->separation.data());
      },
      3);
  std::printf("%-8s %8.2f s %8.0f\n", name, seconds, kMillions / seconds);
}

}  // namespace

int main() {
  std::printf("Reveal, one core, %d x %d, %d separations, and millions of them a second\n", kWidth,
              kHeight, kLargest - kSmallest + 1);
  const std::vector<std::uint8_t> from(std::size_t{kWidth} * kHeight, 1);
  std::vector<std::uint8_t> to(from.size());
  constexpr int kCopies = kLargest - kSmallest + 1;
  const double copy = bench::Seconds([&] {
    for (int i = 0; i < kCopies; ++i) {
      std::memcpy(to.data(), from.data(), to.size());
      bench::Keep(to.data());
    }
  });
  std::printf("%-8s %8.2f s %8.0f\n", "copying", copy, kMillions / copy);
  Random random(2);
  std::vector<Rgb> colours(256);
  for (Rgb& colour : colours) colour = {random.Byte(), random.Byte(), random.Byte()};
  Measure("gray", Palette::Grays());
  Measure("colour", Palette(colours));
}
