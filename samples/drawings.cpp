#include <array>
#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

#include "samples/scenes.h"

namespace plenovia {

namespace {

// Lays shapes over each other, the farthest first.
class Drawing {
 public:
  Drawing(int width, int height) : list_(width, height) {}

  void Box(int x, int y, int width, int height, int level, DepthObjKind kind = SquareBoxObj) {
    list_.AddObject(
        std::make_unique<TDepthObj>(nullptr, DepthRect{x, y, x + width, y + height}, kind, level));
  }
  void RoundBox(int x, int y, int width, int height, int level) {
    Box(x, y, width, height, level, RoundBoxObj);
  }
  // By its middle and its two radii.
  void Ellipse(int x, int y, int rx, int ry, int level) {
    Box(x - rx, y - ry, 2 * rx, 2 * ry, level, CircleObj);
  }
  void Polygon(std::initializer_list<DepthPoint> points, int level) {
    auto polygon = std::make_unique<TDepthObj>(nullptr, DepthRect{}, PolygonObj, level);
    polygon->SetPoints(std::vector<DepthPoint>(points));
    list_.AddObject(std::move(polygon));
  }
  TDepthList Finished() { return std::move(list_); }

 private:
  TDepthList list_;
};

void DrawTree(Drawing& drawing, int x, int foot, int size, int level) {
  drawing.Box(x - size / 8, foot - size, size / 4, size, level);
  drawing.Ellipse(x - size / 3, foot - size, size / 2, size / 2, level + 1);
  drawing.Ellipse(x + size / 3, foot - size, size / 2, size / 2, level + 1);
  drawing.Ellipse(x, foot - size * 3 / 2, size * 3 / 5, size * 3 / 5, level + 2);
  drawing.Ellipse(x, foot - size * 5 / 4, size / 3, size / 3, level + 3);
}

void DrawWindow(Drawing& drawing, int x, int y, int level) {
  drawing.Box(x - 6, y - 6, 72, 72, level + 2);
  for (const int dx : {0, 32}) {
    for (const int dy : {0, 32}) drawing.Box(x + dx, y + dy, 28, 28, level - 3);
  }
  drawing.Box(x - 12, y + 66, 84, 10, level + 4);
}

}  // namespace

TDepthList House() {
  Drawing drawing(800, 600);
  drawing.Box(0, 0, 800, 600, 4);
  drawing.Ellipse(690, 100, 52, 52, 5);
  drawing.Ellipse(180, 560, 330, 190, 5);
  drawing.Ellipse(640, 580, 360, 170, 6);
  drawing.Polygon({{0, 470}, {200, 452}, {420, 460}, {640, 450}, {800, 466}, {800, 600}, {0, 600}},
                  8);
  for (const auto& [y, level] : {std::array{500, 10}, {530, 13}, {560, 17}}) {
    drawing.Box(0, y, 800, 600 - y, level);
  }
  DrawTree(drawing, 660, 480, 110, 8);
  for (const auto& [x, y, r] : {std::array{526, 128, 16}, {548, 98, 22}, {580, 64, 28}}) {
    drawing.Ellipse(x, y, r, r * 4 / 5, 9);
  }
  drawing.Box(498, 148, 44, 110, 11);
  drawing.Box(492, 142, 56, 18, 12);
  drawing.Box(230, 280, 350, 220, 12);
  drawing.Polygon({{190, 290}, {290, 165}, {520, 165}, {620, 290}}, 15);
  drawing.Polygon({{330, 250}, {405, 180}, {480, 250}}, 17);
  drawing.Box(345, 250, 120, 34, 16);
  drawing.Ellipse(405, 234, 20, 20, 12);
  DrawWindow(drawing, 262, 330, 13);
  DrawWindow(drawing, 486, 330, 13);
  drawing.RoundBox(358, 340, 94, 160, 15);
  drawing.RoundBox(368, 350, 74, 150, 13);
  drawing.Ellipse(430, 428, 6, 6, 16);
  drawing.Box(346, 500, 118, 16, 17);
  drawing.Box(334, 516, 142, 16, 18);
  drawing.Polygon({{340, 532}, {470, 532}, {560, 600}, {250, 600}}, 19);
  DrawTree(drawing, 110, 540, 150, 18);
  for (int x = 8; x < 250; x += 40) {
    drawing.Polygon({{x, 600}, {x, 528}, {x + 12, 512}, {x + 24, 528}, {x + 24, 600}}, 23);
  }
  drawing.Box(0, 545, 250, 14, 22);
  for (int x = 568; x < 800; x += 40) {
    drawing.Polygon({{x, 600}, {x, 528}, {x + 12, 512}, {x + 24, 528}, {x + 24, 600}}, 23);
  }
  drawing.Box(562, 545, 238, 14, 22);
  return drawing.Finished();
}

TDepthList SailingBoat() {
  Drawing drawing(800, 600);
  drawing.Box(0, 0, 800, 600, 4);
  drawing.Ellipse(130, 110, 58, 58, 5);
  for (const auto& [x, y] : {std::array{560, 90}, {620, 76}, {675, 92}, {600, 104}, {640, 106}}) {
    drawing.Ellipse(x, y, 56, 26, 7);
  }
  drawing.Polygon({{0, 420}, {70, 372}, {150, 396}, {230, 350}, {330, 420}}, 6);
  // The sea comes nearer in rows of waves.
  const auto waves = [&](int y, int level, int shift) {
    drawing.Box(0, y + 16, 800, 600 - y - 16, level);
    for (int x = shift - 60; x < 860; x += 96) drawing.Ellipse(x, y + 20, 50, 18, level);
  };
  waves(400, 7, 10);
  waves(428, 9, 56);
  waves(456, 11, 24);
  drawing.Box(392, 96, 14, 360, 12);
  drawing.Polygon({{406, 84}, {470, 98}, {406, 116}}, 13);
  drawing.Polygon({{412, 126}, {452, 190}, {490, 270}, {524, 366}, {412, 392}}, 13);
  drawing.Polygon({{386, 140}, {352, 220}, {306, 300}, {236, 380}, {386, 400}}, 11);
  drawing.RoundBox(330, 398, 120, 46, 14);
  for (const int x : {346, 384, 422}) drawing.Ellipse(x, 420, 11, 11, 12);
  drawing.Polygon({{216, 436}, {590, 424}, {560, 470}, {516, 512}, {280, 512}, {238, 476}}, 15);
  drawing.Polygon({{214, 432}, {594, 418}, {586, 436}, {222, 450}}, 17);
  waves(492, 18, 70);
  waves(526, 20, 16);
  waves(562, 22, 60);
  for (const auto& [x, y] : {std::array{250, 200}, {90, 250}, {650, 230}}) {
    drawing.Polygon({{x, y},
                     {x + 26, y - 22},
                     {x + 52, y - 4},
                     {x + 78, y - 24},
                     {x + 104, y},
                     {x + 76, y - 8},
                     {x + 52, y + 16},
                     {x + 28, y - 6}},
                    x == 90 ? 7 : 10);
  }
  return drawing.Finished();
}

}  // namespace plenovia
