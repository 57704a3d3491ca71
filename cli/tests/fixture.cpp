#include "cli/tests/fixture.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <memory>
#include <utility>

#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {

namespace {

// Slopes and a step, in colours whose brightness says nothing about their place in the palette.
IndexedImage DepthPicture() {
  std::array<Rgb, 64> colours{};
  Random random(7);
  for (Rgb& colour : colours) colour = {random.Byte(), random.Byte(), random.Byte()};
  IndexedImage picture = IndexedImage::Create(300, 150, Palette(colours)).value();
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const int level = x < 180 ? x / 6 : 50 - y / 10;
      picture.Row(y)[static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(level);
    }
  }
  return picture;
}

std::unique_ptr<TDepthObj> Shape(const DepthRect& rect, DepthObjKind kind, std::int32_t level) {
  return std::make_unique<TDepthObj>(nullptr, rect, kind, level);
}

}  // namespace

SirdsTest::SirdsTest() : picture_(DepthPicture()) {
  Random random(11);
  pattern_ = RandomPicture(random, 70, 50, 200);
  TDepthList map(240, 130);
  map.AddObject(Shape({100, 20, 220, 110}, CircleObj, 40));
  TGraphIO codec;
  bool written = codec.Write_File(scene_, picture_).has_value();
  codec.SetGraphicFormat(static_cast<int>(GraphicFormat::kGif));
  written = written && codec.Write_File(tile_, pattern_) && WriteDepthMap(map, map_);
  EXPECT_TRUE(written) << "cannot write into " << folder_.path();
}

void SirdsTest::Write(const std::string& name, std::string_view bytes) const {
  std::ofstream(folder_ / name, std::ios::binary) << bytes;
}

std::string SirdsTest::Contents(const std::string& name) const {
  std::ifstream file(folder_ / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

IndexedImage SirdsTest::Read(const std::string& file) {
  auto picture = TGraphIO().Read_File(file);
  EXPECT_TRUE(picture.has_value()) << file << ": " << picture.error().message;
  return picture ? std::move(*picture) : IndexedImage();
}

}  // namespace plenovia
