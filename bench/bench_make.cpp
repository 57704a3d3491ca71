// `sirds make` as a whole process, BMP to BMP at 4000 x 3000, beside copying both files; the memory
// that it takes; and the generation alone.

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/child_process.h"
#include "bench/smooth_depth.h"
#include "bench/stopwatch.h"
#include "bench/table.h"
#include "codec/bmp.h"
#include "engine/generation.h"
#include "engine/quiet_monitor.h"
#include "platform/file_io.h"
#include "platform/random.h"

namespace {

using namespace plenovia;  // NOLINT: a program of its own

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;

// Seconds of a generation run on one thread, without files.
double GenerationAlone(const IndexedImage& depth) {
  Random random(1);
  auto tile = IndexedImage::Create(128, 128, Palette::Grays());
  if (!tile) std::exit(1);
  for (auto& pixel : tile->pixels()) pixel = random.Byte();
  TSirdsSettings settings;
  settings.zmax = 255;
  QuietMonitor monitor;
  return bench::Seconds([&] {
    if (!MakeSirdFromBitmap(depth, 1.0, {*tile, settings, monitor})) std::exit(1);
  });
}

}  // namespace

int main() {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("plenovia-bench-" + std::to_string(getpid()));
  std::filesystem::create_directory(folder);
  const std::string source = (folder / "depth.bmp").string();
  const std::string result = (folder / "stereogram.bmp").string();
  const std::string copies[] = {(folder / "copy1").string(), (folder / "copy2").string()};
  const IndexedImage depth = bench::SmoothDepth(kWidth, kHeight);
  const auto encoded = EncodeBmp(depth);
  if (!encoded || !WriteFile(source, encoded->pieces())) return 1;

  long memory = 0;
  const auto make = [&](const std::string& threads) {
    return bench::Seconds(
        [&] {
          std::filesystem::remove(result);
          memory = bench::RunProgram({SIRDS_PROGRAM, "make", source, "-o", result, "--zmax", "255",
                                      "--threads", threads, "-q"});
          if (memory < 0) std::exit(1);
        },
        15);
  };
  const double single = make("1");
  const long singleMemory = memory;
  const double both = make("2");
  const double copy = bench::Seconds(
      [&] {
        for (const std::string& name : copies) std::filesystem::remove(name);
        bench::RunProgram({"cp", source, copies[0]});
        bench::RunProgram({"cp", result, copies[1]});
      },
      15);

  const double alone = GenerationAlone(depth);

  bench::PrintTimes("sirds make, BMP to BMP, 4000 x 3000, one thread", single,
                    "6 x cp of both files + 30 ms", 6 * copy + 0.030);
  bench::PrintTimes("sirds make, two threads", both, "one thread", single);
  bench::PrintTimes("generation alone, one thread", alone, "sirds make, one thread", single);
  const double perPixel = (static_cast<double>(singleMemory) * 1024 - 20e6) / (kWidth * kHeight);
  bench::PrintRow("sirds make, bytes a pixel beside 20 MB", bench::Number(perPixel, 2, "bytes"),
                  "bound", "3 bytes", "");
  std::filesystem::remove_all(folder);
}
