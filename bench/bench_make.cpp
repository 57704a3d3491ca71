// `sirds make` as a whole process, BMP to BMP at 4000 x 3000, beside copying both files; the memory
// that it takes; and the generation alone.

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/smooth_depth.h"
#include "bench/stopwatch.h"
#include "codec/bmp.h"
#include "engine/generation.h"
#include "platform/file_io.h"
#include "platform/random.h"

extern char** environ;

namespace {

using namespace plenovia;  // NOLINT: a program of its own

constexpr int kWidth = 4000;
constexpr int kHeight = 3000;

// Runs a program to its end and returns the most memory that it held, in KiB; -1 when it failed.
long Run(const std::vector<std::string>& words) {
  std::vector<char*> arguments;
  for (const std::string& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
  arguments.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
    return -1;
  }
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) < 0 || status != 0) return -1;
  return usage.ru_maxrss;
}

class Silent : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return false; }
};

// Seconds of a generation run on one thread, without files.
double GenerationAlone(const IndexedImage& depth) {
  Random random(1);
  auto tile = IndexedImage::Create(128, 128, Palette::Grays());
  if (!tile) std::exit(1);
  for (auto& pixel : tile->pixels()) pixel = random.Byte();
  TSirdsSettings settings;
  settings.zmax = 255;
  Silent monitor;
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
          memory = Run({SIRDS_PROGRAM, "make", source, "-o", result, "--zmax", "255", "--threads",
                        threads, "-q"});
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
        Run({"cp", source, copies[0]});
        Run({"cp", result, copies[1]});
      },
      15);

  const double alone = GenerationAlone(depth);

  const double mega = kWidth * 1e-6 * kHeight;
  std::printf("sirds make, the whole process, BMP to BMP, %d x %d\n", kWidth, kHeight);
  std::printf("%-24s %8.1f ms %8.0f megapixels a second\n", "one thread", single * 1e3,
              mega / single);
  std::printf("%-24s %8.1f ms %8.0f megapixels a second\n", "two threads", both * 1e3, mega / both);
  std::printf("%-24s %8.1f ms %8.0f megapixels a second\n", "generation, one thread", alone * 1e3,
              mega / alone);
  std::printf("%-24s %8.1f ms\n", "cp of both files", copy * 1e3);
  std::printf("%-24s %8.2f (bound 1)\n", "of 6 x cp + 30 ms", single / (6 * copy + 0.030));
  const double perPixel = (static_cast<double>(singleMemory) * 1024 - 20e6) / (mega * 1e6);
  std::printf("%-24s %8.2f bytes a pixel and 20 MB (bound 3)\n", "most memory held", perPixel);
  std::filesystem::remove_all(folder);
}
