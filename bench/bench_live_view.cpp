// How soon Live View shows what an event changes: from the event to the painted pane, as a
// distribution.

#include <QAbstractScrollArea>
#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/file_commands.h"
#include "app/live_host.h"
#include "app/plenovia_wnd.h"
#include "bench/crowded_map.h"
#include "bench/desktop_program.h"
#include "bench/smooth_depth.h"
#include "bench/table.h"
#include "depthmap/depth_map_file.h"
#include "documents/ui/commands.h"
#include "live/ui/live_panel.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

constexpr int kEvents = 300;
constexpr int kSide = 1000;

class Watch {
 public:
  explicit Watch(bench::DesktopProgram& program) : program_(program) {
    LiveHost& live = program.Frame().Live();
    program.Frame().resize(1600, 1000);
    if (live.Dock().isHidden()) live.Toggle();
    live.Dock().Fill();
    QObject::connect(&live.Model(), &LiveModel::PictureMade, &live.Model(),
                     [this](const std::shared_ptr<const LivePicture>& picture) {
                       arrived_ = arrived_ || picture->isWhole;
                     });
    QObject::connect(&live.Dock().Panel()->Pane(), &LivePane::Painted, &live.Model(),
                     [this] { painted_ = painted_ || arrived_; });
  }

  // Seconds that each event takes until it is painted, the shortest first.
  std::vector<double> Measure(const std::function<void(int)>& act) {
    std::vector<double> seconds;
    for (int i = 0; i < kEvents; ++i) {
      arrived_ = painted_ = false;
      QElapsedTimer clock;
      clock.start();
      act(i);
      while (!painted_ && clock.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      }
      if (!painted_) std::exit(1);
      seconds.push_back(static_cast<double>(clock.nsecsElapsed()) * 1e-9);
    }
    std::ranges::sort(seconds);
    return seconds;
  }

  void Print(const std::string& what, double median, double most,
             const std::function<void(int)>& act) {
    const std::vector<double> seconds = Measure(act);
    const auto bound = [](double limit) { return "bound of " + bench::Milliseconds(limit); };
    bench::PrintTimes("Live View, " + what + ", median", seconds[kEvents / 2], bound(median),
                      median);
    bench::PrintTimes("the same, 99th percentile", seconds[kEvents * 99 / 100], bound(most), most);
  }

  LiveModel& Model() { return program_.Frame().Live().Model(); }

 private:
  bench::DesktopProgram& program_;
  bool arrived_ = false;
  bool painted_ = false;
};

void ChangeSettings(Watch& watch) {
  const auto edit = [&watch](const auto& change) {
    return [&watch, change](int i) {
      watch.Model().Edit([&](TSirdsSettings& record) { change(record, i); });
    };
  };
  watch.Print("pattern changed", 0.008, 0.016,
              [&watch](int i) { watch.Model().ChoosePattern(i % 5 + 1); });
  watch.Print("range changed", 0.008, 0.016,
              edit([](TSirdsSettings& record, int i) { record.zmax = 260 + i % 50; }));
  watch.Print("gap changed", 0.008, 0.016,
              edit([](TSirdsSettings& record, int i) { record.gapValue = 80 + i % 50; }));
  watch.Print("method changed", 0.008, 0.016, edit([](TSirdsSettings& record, int i) {
                record.scanMethod = i % 2 == 0 ? kLeftToRight : kMcMahon;
              }));
  watch.Model().SetView(LiveView::kFound);
  watch.Print("Found", 0.100, 0.200,
              edit([](TSirdsSettings& record, int i) { record.gapValue = 80 + i % 50; }));
  watch.Model().SetView(LiveView::kStereogram);
}

void DragShape(bench::DesktopProgram& program, Watch& watch) {
  const fs::path path =
      fs::temp_directory_path() / ("plenovia-live-" + std::to_string(getpid()) + ".rds");
  TDepthList crowd = bench::CrowdedMap(kSide, 1000);
  if (!WriteDepthMap(crowd, path)) std::exit(1);
  OpenByName(program.Frame().Context(), QString::fromStdString(path.string()));
  fs::remove(path);
  Document* map = program.Frame().GetActiveChild();
  map->showMaximized();
  program.HandleEvents();
  QWidget* view = map->findChild<QAbstractScrollArea*>(QStringLiteral("client"))->viewport();
  program.Frame().Commands().Run(kMoveTool);
  const auto mouse = [view](QEvent::Type type, QPointF at, Qt::MouseButton button) {
    QMouseEvent event(type, at, view->mapToGlobal(at), button, Qt::LeftButton, {});
    QCoreApplication::sendEvent(view, &event);
  };
  mouse(QEvent::MouseButtonPress, {300, 300}, Qt::LeftButton);
  watch.Print("a shape dragged in a map of 1000", 0.016, 0.033, [&](int i) {
    mouse(QEvent::MouseMove, {301.0 + i % 200, 300.0 + i % 90}, Qt::NoButton);
  });
  mouse(QEvent::MouseButtonRelease, {300, 300}, Qt::LeftButton);
  map->CloseUnasked();
  program.HandleEvents();
}

int Run() {
  bench::DesktopProgram program;
  Watch watch(program);
  watch.Model().SetFit(false);
  const auto depth = std::make_shared<const IndexedImage>(bench::SmoothDepth(kSide, kSide));
  program.Show(depth);
  ChangeSettings(watch);
  DragShape(program, watch);
  watch.Model().Edit([](TSirdsSettings& record) { record.w = record.h = kSide; });
  watch.Model().ShowFigure(15);
  watch.Print("a figure turned", 0.033, 0.066, [&watch](int i) {
    watch.Model().Edit([i](TSirdsSettings& record) { record.da = i % 179 + 1; });
  });
  return 0;
}

}  // namespace
}  // namespace plenovia

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  return plenovia::Run();
}
