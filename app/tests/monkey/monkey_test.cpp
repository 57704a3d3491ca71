// Anything at any time: the program takes what users do to it, however senseless.
//
// PLENOVIA_MONKEY_SEED and PLENOVIA_MONKEY_STEPS choose another run.

#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "app/live_host.h"
#include "app/tests/monkey/monkey.h"
#include "app/tests/monkey/monkey_files.h"
#include "app/tests/monkey/order.h"
#include "app/tests/monkey/step_log.h"
#include "app/tests/monkey/watchdog.h"
#include "app/tests/program.h"
#include "depthmap/ui/map_window.h"
#include "images/pattern_files.h"

namespace plenovia {
namespace {

constexpr std::chrono::seconds kLongestStep(90);
constexpr int kStepsBetweenReports = 1000;
constexpr int kMostDocuments = 10;
constexpr std::int64_t kLargePicture = 700'000;
constexpr int kMoreObjects = 100;  // that a frame may keep when its documents are closed

std::uint64_t NumberFrom(const char* variable, std::uint64_t otherwise) {
  const QByteArray text = qgetenv(variable);
  return text.isEmpty() ? otherwise : text.toULongLong();
}

int MegabytesInUse() {
  std::int64_t total = 0;
  std::int64_t resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return static_cast<int>(resident / 256);
}

class MonkeyTest : public ProgramTest {
 protected:
  MonkeyTest() {
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString((folder_ / "data").string()));
    qputenv("HOME", QByteArray::fromStdString(folder_.path().string()));
    // Nothing comes out of a real printer.
    qputenv("CUPS_SERVER", QByteArray::fromStdString((folder_ / "no-printers").string()));
    std::filesystem::current_path(folder_.path());
  }
  ~MonkeyTest() override { std::filesystem::current_path(before_); }

  void StartAnew(Chance& chance) {
    app_.reset();
    Settle();
    for (const QWidget* widget : QApplication::allWidgets()) {
      if (widget->windowType() == Qt::Desktop) continue;  // Qt's own
      if (widget->objectName() == QStringLiteral("otherProgram")) continue;
      ADD_FAILURE() << "outlives the program: " << widget->metaObject()->className();
    }
    ResetPatterns(chance);
    Start();
    Frame().Live().Dock().Fill();
    objects_ = ObjectsOf(Frame());
  }

  // The program adds to the folder beside itself. Many patterns make each start slower. Now and
  // then some are damaged, or all.
  static void ResetPatterns(Chance& chance) {
    const std::filesystem::path folder = ProgramFile().parent_path() / "sirdspat";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    const bool none = chance.OneIn(6);
    for (int i = 0; i < kShippedPatterns; ++i) {
      const std::filesystem::path file = folder / PatternFileName(i);
      std::filesystem::copy_file(std::filesystem::path(SHIPPED_TILES) / file.filename(), file);
      if (none || chance.OneIn(20)) std::filesystem::resize_file(file, 20);
    }
  }

  // Keeps the steps that follow quick: few documents, none of them large.
  void TidyUp(Chance& chance) {
    auto windows = Frame().Area()->subWindowList();
    for (QMdiSubWindow* window : windows) {
      const auto* picture = qobject_cast<TSirdsWnd*>(window);
      const auto* map = qobject_cast<TMapWindow*>(window);
      const auto bytes = picture != nullptr ? picture->ImageBytes()
                         : map != nullptr   ? static_cast<std::int64_t>(map->GetImageSize())
                                            : 0;
      if (bytes > kLargePicture && !chance.OneIn(5))
        static_cast<TMouseWnd*>(window)->CloseUnasked();
    }
    Settle();
    windows = Frame().Area()->subWindowList();
    while (windows.size() > kMostDocuments) {
      static_cast<TMouseWnd*>(windows.takeAt(chance.Int(0, kMostDocuments)))->CloseUnasked();
    }
    Settle();
    if (Frame().Area()->subWindowList().isEmpty()) {
      EXPECT_LT(ObjectsOf(Frame()), objects_ + kMoreObjects) << "objects that nobody deleted";
    }
    TSirdsSettings& settings = Frame().Settings();
    if (settings.w > 400 || settings.h > 400) {
      settings.w = 200;
      settings.h = 100;
    }
  }

  std::filesystem::path before_ = std::filesystem::current_path();
  int objects_ = 0;
};

TEST_F(MonkeyTest, AnythingMayHappen) {
  const std::uint64_t seed = NumberFrom("PLENOVIA_MONKEY_SEED", 1);
  const int steps = static_cast<int>(NumberFrom("PLENOVIA_MONKEY_STEPS", 2000));
  std::printf("%d steps with seed %llu\n", steps, static_cast<unsigned long long>(seed));
  Chance chance(seed);
  MonkeyFiles files(folder_ / "files", chance);
  StepLog log(seed);
  Watchdog watchdog(kLongestStep);
  Monkey monkey(files, log);
  QElapsedTimer clock;
  clock.start();
  StartAnew(chance);
  for (int step = 1; step <= steps && !HasFailure(); ++step) {
    watchdog.Pat();
    monkey.SetFrame(Frame());
    monkey.Step(step, seed);
    if (!Frame().isVisible()) {
      log.Add("a new frame");
      StartAnew(chance);
    }
    ExpectOrder(Frame());
    TidyUp(chance);
    if (step % kStepsBetweenReports == 0) {
      std::printf("step %d, %lld s, %d MB\n", step, static_cast<long long>(clock.elapsed() / 1000),
                  MegabytesInUse());
      std::fflush(stdout);
    }
  }
  if (HasFailure()) log.Print();
}

}  // namespace
}  // namespace plenovia
