// What the window adds to a stereogram of twelve megapixels, how soon it answers meanwhile, and
// whether closed pictures give their memory back.

#include <malloc.h>
#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <utility>

#include "app/command_table.h"
#include "app/plenovia_app.h"
#include "bench/smooth_depth.h"
#include "bench/stopwatch.h"
#include "engine/generation.h"
#include "engine/ui/sirds_wnd.h"

namespace plenovia {
namespace {

class Quiet final : public RunMonitor {
 public:
  void OnProgress(ProgressPhase, const ProgressInfo&) override {}
  bool StopRequested() override { return false; }
};

class Program {
 public:
  Program() { app_.InitMainWindow(); }

  TPlenoviaWnd& Frame() { return app_.Frame(); }
  TSirdsWnd* Show(const std::shared_ptr<const IndexedImage>& picture) {
    auto* window = new TSirdsWnd(Frame().Area(), QStringLiteral("bench"), &Frame(), nullptr,
                                 QSize(picture->width(), picture->height()), &Frame().Settings());
    Frame().Adopt(*window);
    window->SetImage(picture);
    window->SetSaved(true);
    Handle();
    return window;
  }
  static void Handle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

 private:
  TPlenoviaApp app_;
};

void CompareGeneration(Program& program, const std::shared_ptr<const IndexedImage>& picture) {
  TSirdsWnd* window = program.Show(picture);
  const auto pattern = program.Frame().Patterns()->GetCurrentBitmap();
  Quiet quiet;
  const double alone = bench::Seconds([&] {
    const auto made =
        MakeSirdFromBitmap(*picture, 1.0, {*pattern, program.Frame().Settings(), quiet});
    bench::Keep(&made);
  });
  const double inWindow = bench::Seconds([&] {
    const auto made = window->MakeSirdFromBitmap();
    bench::Keep(&made);
  });
  std::printf("  generation alone, one thread     %6.1f ms\n", alone * 1e3);
  std::printf("  the same run in the window       %6.1f ms, %.2f times\n", inWindow * 1e3,
              inWindow / alone);
  window->close();
  Program::Handle();
}

void MeasureAnswers(Program& program, const std::shared_ptr<const IndexedImage>& picture) {
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
  std::printf("  longest wait for an answer       %6.1f ms\n", static_cast<double>(longest) / 1e6);
  std::printf("  from Stop to the end of the run  %6.1f ms\n", static_cast<double>(stopped) / 1e6);
  timer.stop();
  window->close();
  Program::Handle();
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

void OpenAndClose(Program& program, int times) {
  for (int i = 0; i < times; ++i) {
    auto picture = bench::SmoothDepth(2000, 1500);
    program.Show(std::make_shared<const IndexedImage>(std::move(picture)))->close();
    Program::Handle();
  }
}

void MeasureMemory(Program& program) {
  OpenAndClose(program, 20);
  const double before = ResidentMegabytes();
  OpenAndClose(program, 100);
  const double after = ResidentMegabytes();
  std::printf(
      "  memory before and after 100 pictures opened and closed  %.1f and %.1f MB, %+.1f %%\n",
      before, after, (after / before - 1) * 100);
}

}  // namespace
}  // namespace plenovia

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  plenovia::Program program;
  std::printf("Stereograms in the window, 4000 x 3000\n");
  const auto picture =
      std::make_shared<const plenovia::IndexedImage>(plenovia::bench::SmoothDepth(4000, 3000));
  plenovia::CompareGeneration(program, picture);
  plenovia::MeasureAnswers(program, picture);
  plenovia::MeasureMemory(program);
  return 0;
}
