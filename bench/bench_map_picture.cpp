// What the editor of depth maps needs to show a map of many objects, and to drag one of them.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "bench/stopwatch.h"
#include "bench/table.h"
#include "depthmap/depth_list.h"
#include "depthmap/map_picture.h"
#include "platform/random.h"

namespace plenovia {
namespace {

constexpr int kSide = 1200;

// A black box for every number.
class BoxLabels final : public LevelLabels {
 public:
  const LevelLabel& Label(std::int32_t) override { return label_; }

 private:
  LevelLabel label_{-9, 9, -8, std::vector<RowSpans>(8, RowSpans{{-8, -2}, {2, 8}})};
};

// Objects of all kinds with sides of up to `greatest` pixels, anywhere on the map.
TDepthList MapOf(int objects, int greatest, int width = kSide, int height = kSide) {
  Random random(static_cast<std::uint64_t>(objects));
  TDepthList map(width, height);
  for (int i = 0; i < objects; ++i) {
    const int x = random.Int(-10, width);
    const int y = random.Int(-10, height);
    const DepthRect rect{x, y, x + random.Int(5, greatest), y + random.Int(5, greatest)};
    const auto kind = static_cast<DepthObjKind>(i % 7);
    auto object = std::make_unique<TDepthObj>(nullptr, rect, kind, i % 256);
    std::vector<DepthPoint> corners;
    for (int corner = 0; corner < 16; ++corner) {
      corners.push_back({x + random.Int(0, greatest), y + random.Int(0, greatest)});
    }
    object->SetPoints(corners);
    map.AddObject(std::move(object));
  }
  return map;
}

struct Times {
  double whole = 0;  // seconds for all in view from nothing
  double step = 0;   // for the slowest of the steps that drag one object across the map
};

Times Measure(TDepthList& map, const TDepthObj* dragged, const PixelRect& view,
              const MapLook& look) {
  BoxLabels labels;
  std::vector<std::uint32_t> pixels(
      static_cast<std::size_t>((view.right - view.left) * (view.bottom - view.top)));
  map.Select(dragged);
  Times times;
  times.whole = bench::Seconds([&] {
    MapPicture picture(map, labels);
    picture.SetView(view, look);
    picture.Render(view, {}, pixels);
    bench::Keep(pixels.data());
  });
  MapPicture picture(map, labels);
  picture.SetView(view, look);
  picture.Render(view, {}, pixels);
  for (int step = 0; step < 40; ++step) {
    const DepthRect to = dragged->GetRect().Shifted(step % 2 == 0 ? 3 : -3, 2);
    times.step = std::max(times.step, bench::Seconds(
                                          [&] {
                                            map.MoveSelectedTo(to);
                                            picture.Render(view, {}, pixels);
                                          },
                                          1));
  }
  return times;
}

void MeasureLooks() {
  constexpr PixelRect kFullHd{0, 0, 1920, 1080};
  TDepthList map = MapOf(1000, 200, 1920, 1080);
  for (const auto& [name, view] : {std::pair("outlines", MapView::kOutlines),
                                   {"shaded", MapView::kShaded},
                                   {"both", MapView::kBoth}}) {
    for (const int scale : {-4, 1, 8}) {
      const MapLook look{view, MapScale(scale)};
      const auto [whole, step] = Measure(map, map.Head(), kFullHd, look);
      const std::string what = std::string(name) + " at " + look.scale.Text();
      bench::PrintTimes("editor, full HD, all of 1000 shapes, " + what, whole, "bound", 0.050);
      bench::PrintTimes("editor, full HD, drag step, " + what, step, "bound", 0.016);
    }
  }
}

int Run() {
  for (const int greatest : {40, 200, 1200}) {
    for (const int objects : {1000, 100000}) {
      TDepthList map = MapOf(objects, greatest);
      const auto [whole, step] = Measure(map, map.Head(), {0, 0, kSide, kSide}, {});
      const std::string shapes =
          std::to_string(objects) + " shapes up to " + std::to_string(greatest);
      if (objects == 1000) bench::PrintTimes("editor, all of " + shapes, whole, "bound", 0.050);
      bench::PrintTimes("editor, drag step in " + shapes, step, "bound", 0.016);
    }
  }
  MeasureLooks();
  return 0;
}

}  // namespace
}  // namespace plenovia

int main() {
  return plenovia::Run();
}
