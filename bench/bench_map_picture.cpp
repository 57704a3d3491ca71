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
TDepthList MapOf(int objects, int greatest) {
  Random random(static_cast<std::uint64_t>(objects));
  TDepthList map(kSide, kSide);
  for (int i = 0; i < objects; ++i) {
    const int x = random.Int(-10, kSide);
    const int y = random.Int(-10, kSide);
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

// Seconds for the whole picture from nothing, and for the slowest of the steps that drag one
// object, once it is being dragged, across the map.
std::pair<double, double> Measure(TDepthList& map, const TDepthObj* dragged) {
  BoxLabels labels;
  std::vector<std::uint32_t> pixels(std::size_t{kSide} * kSide);
  const PixelRect all{0, 0, kSide, kSide};
  map.Select(dragged);
  const double whole = bench::Seconds([&] {
    MapPicture picture(map, labels);
    picture.SetView(all);
    picture.Render(all, {}, pixels);
    bench::Keep(pixels.data());
  });
  MapPicture picture(map, labels);
  picture.SetView(all);
  picture.Render(all, {}, pixels);
  double slowest = 0;
  for (int step = 0; step < 40; ++step) {
    const DepthRect to = dragged->GetRect().Shifted(step % 2 == 0 ? 3 : -3, 2);
    slowest = std::max(slowest, bench::Seconds(
                                    [&] {
                                      map.MoveSelectedTo(to);
                                      picture.Render(all, {}, pixels);
                                    },
                                    1));
  }
  return {whole, slowest};
}

int Run() {
  for (const int greatest : {40, 200, 1200}) {
    for (const int objects : {1000, 100000}) {
      TDepthList map = MapOf(objects, greatest);
      const auto [whole, step] = Measure(map, map.Head());
      const std::string shapes =
          std::to_string(objects) + " shapes up to " + std::to_string(greatest);
      if (objects == 1000) bench::PrintTimes("editor, all of " + shapes, whole, "bound", 0.050);
      bench::PrintTimes("editor, drag step in " + shapes, step, "bound", 0.016);
    }
  }
  return 0;
}

}  // namespace
}  // namespace plenovia

int main() {
  return plenovia::Run();
}
