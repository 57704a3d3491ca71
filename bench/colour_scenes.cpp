#include "bench/colour_scenes.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "platform/random.h"

namespace plenovia::bench {

namespace {

std::uint8_t Level(double light) {
  return static_cast<std::uint8_t>(std::lround(255 * std::clamp(light, 0.0, 1.0)));
}

// `colour(u, v)` with u and v from 0 to 1 gives red, green and blue from 0 to 1.
template <class Colour>
ColourScene Draw(const Colour& colour, int width, int height) {
  ColourScene picture;
  picture.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto [r, g, b] = colour(double{x + 0.5} / width, double{y + 0.5} / height);
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
Light LandscapeAt(double u, double v) {
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
Light PortraitAt(double u, double v) {
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

}  // namespace

ColourScene Landscape(int width, int height) {
  return Draw(LandscapeAt, width, height);
}

ColourScene Portrait(int width, int height) {
  return Draw(PortraitAt, width, height);
}

ColourScene Texture(int width, int height) {
  Random random(1);
  const auto texture = [&](double u, double v) {
    const double moss =
        0.5 + 0.25 * std::sin(31 * u + 7 * std::sin(11 * v)) + 0.25 * std::sin(27 * v);
    const auto noise = [&] { return 0.12 * (random.Unit() + random.Unit() - 1); };
    const Light base = Mix({0.45, 0.33, 0.22}, {0.35, 0.55, 0.2}, moss);
    return Light{base.red + noise(), base.green + noise(), base.blue + noise()};
  };
  return Draw(texture, width, height);
}

}  // namespace plenovia::bench
