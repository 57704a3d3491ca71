// How close the fitted palette of true-colour pictures comes to them (PSNR in dB, no dithering),
// beside the nearest colours of a plain 6 x 6 x 6 cube, and how fast it is.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "bench/colour_scenes.h"
#include "bench/stopwatch.h"
#include "bench/table.h"
#include "codec/colour_reducer.h"

namespace {

using namespace plenovia;  // NOLINT: a program of its own

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;
using Picture = bench::ColourScene;

double Psnr(const Picture& picture, const Picture& reduced) {
  double sum = 0;
  for (std::size_t i = 0; i < picture.size(); ++i) {
    sum += std::pow(picture[i].red - reduced[i].red, 2) +
           std::pow(picture[i].green - reduced[i].green, 2) +
           std::pow(picture[i].blue - reduced[i].blue, 2);
  }
  return 10 * std::log10(255.0 * 255.0 * 3 * static_cast<double>(picture.size()) / sum);
}

Picture Cube(const Picture& picture) {
  Picture reduced = picture;
  const auto nearest = [](std::uint8_t level) {
    return static_cast<std::uint8_t>((level + 25) / 51 * 51);
  };
  for (Rgb& c : reduced) c = {nearest(c.red), nearest(c.green), nearest(c.blue)};
  return reduced;
}

Picture Fitted(const Picture& picture) {
  const std::span<const Rgb> pixels = picture;
  ColourReducer reducer;
  for (int y = 0; y < kHeight; ++y)
    reducer.Count(pixels.subspan(std::size_t{kWidth} * static_cast<std::size_t>(y), kWidth));
  reducer.BuildPalette();
  std::vector<std::uint8_t> indexes(picture.size());
  reducer.Map(picture, indexes);
  Picture reduced;
  for (const std::uint8_t index : indexes) reduced.push_back(reducer.palette()[index]);
  return reduced;
}

void Print(const std::string& name, const Picture& picture) {
  const double fitted = Psnr(picture, Fitted(picture));
  const double cube = Psnr(picture, Cube(picture));
  bench::PrintRow("256 colours for a " + name, bench::Number(fitted, 1, "dB"), "6 x 6 x 6 cube",
                  bench::Number(cube, 1, "dB"), bench::Number(fitted - cube, 1, "dB closer"));
  std::vector<std::uint8_t> indexes(picture.size());
  const auto reduce = [&] {
    ColourReducer reducer;
    reducer.Count(picture);
    reducer.BuildPalette();
    reducer.Map(picture, indexes);
    bench::Keep(indexes.data());
  };
  Picture copied(picture.size());
  const auto copy = [&] {
    std::copy(picture.begin(), picture.end(), copied.begin());
    bench::Keep(copied.data());
  };
  const auto [seconds, copying] = bench::SecondsInTurn(reduce, copy);
  const double mega = static_cast<double>(picture.size()) * 1e-6;
  bench::PrintRates("finding and mapping them", mega / seconds, "pixels", "copying the picture",
                    mega / copying);
}

}  // namespace

int main() {
  Print("landscape", bench::Landscape(kWidth, kHeight));
  Print("portrait", bench::Portrait(kWidth, kHeight));
  Print("texture", bench::Texture(kWidth, kHeight));
}
