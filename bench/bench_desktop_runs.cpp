// What the window adds to a stereogram of twelve megapixels, how soon it answers meanwhile, and
// whether closed pictures give their memory back.

#include <malloc.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>
#include <utility>

#include "app/command_table.h"
#include "app/plenovia_wnd.h"
#include "bench/desktop_program.h"
#include "bench/smooth_depth.h"
#include "bench/stopwatch.h"
#include "bench/table.h"
#include "engine/generation.h"
#include "engine/quiet_monitor.h"

namespace plenovia {
namespace {

void CompareGeneration(bench::DesktopProgram& program,
                       const std::shared_ptr<const IndexedImage>& picture) {
  TSirdsWnd* window = program.Show(picture);
  const auto pattern = program.Frame().Patterns()->GetCurrentBitmap();
  QuietMonitor quiet;
  const auto alone = [&] {
    const auto made =
        MakeSirdFromBitmap(*picture, 1.0, {*pattern, program.Frame().Settings(), quiet});
    bench::Keep(&made);
  };
  const auto inWindow = [&] {
    const auto made =
        MakeSirdFromBitmap(*window, program.Frame().Patterns(), program.Frame().Settings());
    bench::Keep(&made);
  };
  const auto [waited, core] = bench::SecondsInTurn(inWindow, alone);
  bench::PrintTimes("a run in the window, 4000 x 3000", waited, "generation alone, one thread",
                    core);
  program.Close(window);
}

void MeasureAnswers(bench::DesktopProgram& program,
                    const std::shared_ptr<const IndexedImage>& picture) {
  TSirdsWnd* window = program.Show(picture);
  QElapsedTimer sinceTurn;
  QElapsedTimer sinceStop;
  qint64 longest = 0;
  int turns = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    if (turns > 0) longest = std::max(longest, sinceTurn.nsecsElapsed());
    window->repaint();
    sinceTurn.start();
    if (++turns != 6) return;
    sinceStop.start();
    program.Frame().Commands().Run(kCmStopProcess);
  });
  timer.start(0);
  program.Frame().Commands().Run(kCmMakeSirds);
  const qint64 stopped = sinceStop.nsecsElapsed();
  bench::PrintTimes("longest wait for an answer in it", static_cast<double>(longest) * 1e-9,
                    "bound", 0.050);
  bench::PrintTimes("from Stop to its end", static_cast<double>(stopped) * 1e-9, "bound", 0.100);
  timer.stop();
  program.Close(window);
}

// Megabytes that the process holds.
double ResidentMegabytes() {
  malloc_trim(0);
  std::ifstream statm("/proc/self/statm");
  std::int64_t total = 0;
  std::int64_t resident = 0;
  statm >> total >> resident;
  return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / 1e6;
}

void OpenAndClose(bench::DesktopProgram& program, int times) {
  for (int i = 0; i < times; ++i) {
    auto picture = bench::SmoothDepth(2000, 1500);
    program.Close(program.Show(std::make_shared<const IndexedImage>(std::move(picture))));
  }
}

void MeasureMemory(bench::DesktopProgram& program) {
  OpenAndClose(program, 20);
  const double before = ResidentMegabytes();
  OpenAndClose(program, 100);
  const double after = ResidentMegabytes();
  bench::PrintRow("memory after 100 more pictures were open", bench::Number(after, 1, "MB"),
                  "before them", bench::Number(before, 1, "MB"),
                  bench::Number((after / before - 1) * 100, 1, "% more"));
}

}  // namespace
}  // namespace plenovia

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  plenovia::bench::DesktopProgram program;
  const auto picture =
      std::make_shared<const plenovia::IndexedImage>(plenovia::bench::SmoothDepth(4000, 3000));
  plenovia::CompareGeneration(program, picture);
  plenovia::MeasureAnswers(program, picture);
  plenovia::MeasureMemory(program);
  return 0;
}
