// Prints how close the fitted palette of true-colour pictures comes to them (PSNR in dB, no
// dithering), beside the nearest colours of a plain 6 x 6 x 6 cube, and how fast it is.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <span>
#include <vector>

#include "codec/colour_reducer.h"
#include "platform/random.h"

namespace {

using plenovia::ColourReducer;
using plenovia::Rgb;

constexpr int kWidth = 1600;
constexpr int kHeight = 1200;
using Picture = std::vector<Rgb>;

std::uint8_t Level(double light) {
  return static_cast<std::uint8_t>(std::lround(255 * std::clamp(light, 0.0, 1.0)));
}

// `colour(u, v)` with u and v from 0 to 1 gives red, green and blue from 0 to 1.
template <class Colour>
Picture Draw(const Colour& colour) {
  Picture picture;
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const auto [r, g, b] = colour(double{x + 0.5} / kWidth, double{y + 0.5} / kHeight);
      picture.push_back({Level(r), Level(g), Level(b)});
    }
  }
  return picture;
}

struct Light {
  double red, green, blue;
};

Light Mix(const Light& a, const Light& b, double t) {
  return {a.red + (b.red - a.red) * t, a.green + (b.green - a.green) * t,
          a.blue + (b.blue - a.blue) * t};
}

// An evening: sky, sun, hills and water.
Light Landscape(double u, double v) {
  const double horizon = 0.6 + 0.04 * std::sin(9 * u) + 0.02 * std::sin(23 * u + 1);
  const double sun = std::exp(-40 * (std::pow(u - 0.7, 2) + std::pow(v - 0.45, 2)));
  const auto sky = [&](double height) {
    return Mix({0.1, 0.2, 0.5}, {0.98, 0.6, 0.3}, std::clamp(height / 0.6, 0.0, 1.0));
  };
  if (v < horizon) return Mix(sky(v), {1, 0.95, 0.75}, sun);
  if (v < 0.72) return Mix({0.12, 0.22, 0.14}, {0.3, 0.36, 0.16}, (v - horizon) / 0.15);
  const double ripple = 0.04 * std::sin(300 * v * v + 5 * std::sin(20 * u));
  return Mix(sky(1.3 - v + ripple), {0.05, 0.12, 0.2}, 0.5);
}

// A head of skin and hair before cloth, softly lit from the upper left.
Light Portrait(double u, double v) {
  const double x = (u - 0.5) / 0.26;
  const double y = (v - 0.5) / 0.4;
  const double inside = 1 - x * x - y * y;
  if (inside <= 0) {
    const double fold = 0.5 + 0.5 * std::sin(14 * u + 3 * std::sin(6 * v));
    return Mix({0.1, 0.12, 0.3}, {0.3, 0.38, 0.62}, fold * (1 - 0.5 * v));
  }
  const double z = std::sqrt(inside);
  const double light = std::max(0.0, -0.5 * x - 0.45 * y + 0.74 * z);
  const double cheek = std::exp(-12 * (std::pow(std::abs(x) - 0.45, 2) + std::pow(y - 0.2, 2)));
  const Light skin = Mix({0.93, 0.73, 0.6}, {0.9, 0.5, 0.45}, cheek);
  const double shine = std::pow(light, 30);
  const Light face = Mix(Mix({0.2, 0.08, 0.06}, skin, light), {1, 1, 0.97}, 0.6 * shine);
  const double hair = 1 / (1 + std::exp(40 * (y + 0.45 + 0.1 * std::cos(5 * x))));
  const double strand = 0.5 + 0.5 * std::sin(160 * x + 20 * y);
  return Mix(face, Mix({0.1, 0.05, 0.02}, {0.45, 0.26, 0.12}, strand * light), hair);
}

Picture Texture() {
  plenovia::Random random(1);
  return Draw([&](double u, double v) {
    const double moss =
        0.5 + 0.25 * std::sin(31 * u + 7 * std::sin(11 * v)) + 0.25 * std::sin(27 * v);
    const auto noise = [&] { return 0.12 * (random.Unit() + random.Unit() - 1); };
    const Light base = Mix({0.45, 0.33, 0.22}, {0.35, 0.55, 0.2}, moss);
    return Light{base.red + noise(), base.green + noise(), base.blue + noise()};
  });
}

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

double Seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void Print(const char* name, const Picture& picture) {
  double rows = 1e9;
  double palette = 1e9;
  std::vector<std::uint8_t> indexes(picture.size());
  for (int round = 0; round < 5; ++round) {  // the best one counts
    ColourReducer reducer;
    const double start = Seconds();
    reducer.Count(picture);
    const double counted = Seconds();
    reducer.BuildPalette();
    const double built = Seconds();
    reducer.Map(picture, indexes);
    rows = std::min(rows, counted - start + Seconds() - built);
    palette = std::min(palette, built - counted);
  }
  std::printf("%-12s %8.1f %8.1f %14.0f %12.0f\n", name, Psnr(picture, Cube(picture)),
              Psnr(picture, Fitted(picture)), static_cast<double>(picture.size()) / 1e6 / rows,
              palette * 1e3);
}

}  // namespace

int main() {
  std::printf("%-12s %8s %8s %14s %12s\n", "picture", "cube", "fitted", "megapixels/s",
              "palette, ms");
  Print("landscape", Draw(Landscape));
  Print("portrait", Draw(Portrait));
  Print("texture", Texture());
}
