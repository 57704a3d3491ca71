// Colours as the tile generators reckon with them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/palette.h"
#include "sirdspat/exact_math.h"

namespace plenovia {

// Channels from 0 to 255; values beyond that are cut off by ToRgb.
struct Tint {
  double red = 0;
  double green = 0;
  double blue = 0;

  Tint operator+(const Tint& o) const { return {red + o.red, green + o.green, blue + o.blue}; }
  Tint operator*(double f) const { return {red * f, green * f, blue * f}; }
};

// 0xRRGGBB.
inline Tint Hex(std::uint32_t code) {
  return {static_cast<double>(code >> 16 & 255), static_cast<double>(code >> 8 & 255),
          static_cast<double>(code & 255)};
}

inline Tint Mix(const Tint& a, const Tint& b, double t) {
  return a * (1 - t) + b * t;
}

inline Rgb ToRgb(const Tint& colour) {
  const auto channel = [](double value) {
    return static_cast<std::uint8_t>(std::floor(std::clamp(value, 0.0, 255.0) + 0.5));
  };
  return {channel(colour.red), channel(colour.green), channel(colour.blue)};
}

// Evenly spaced colours that blend into each other.
class Ramp {
 public:
  Ramp(std::initializer_list<std::uint32_t> stops) {
    for (const std::uint32_t stop : stops) stops_.push_back(Hex(stop));
  }
  // t from 0, the first colour, to 1, the last; cut off beyond.
  Tint At(double t) const {
    const double place = Clamp01(t) * static_cast<double>(stops_.size() - 1);
    const std::size_t below = std::min(static_cast<std::size_t>(place), stops_.size() - 2);
    return Mix(stops_[below], stops_[below + 1], place - static_cast<double>(below));
  }

 private:
  std::vector<Tint> stops_;
};

}  // namespace plenovia
