#include "platform/palette.h"

#include <algorithm>
#include <limits>

namespace plenovia {

Palette::Palette(std::span<const Rgb> colours) {
  const auto count = std::min(colours.size(), entries_.size());
  std::copy_n(colours.begin(), count, entries_.begin());
  size_ = std::max(1, static_cast<int>(count));
}

Palette Palette::Grays(int count) {
  Palette grays;
  grays.size_ = std::clamp(count, 2, 256);
  for (int i = 0; i < grays.size_; ++i) {
    const auto level = static_cast<std::uint8_t>(i * 255 / (grays.size_ - 1));
    grays.entries_[static_cast<std::size_t>(i)] = {level, level, level};
  }
  return grays;
}

void Palette::Set(int index, Rgb colour) {
  if (index >= 0 && index < size_) entries_[static_cast<std::size_t>(index)] = colour;
}

Palette Palette::Widened() const {
  Palette wide = *this;
  wide.size_ = 256;
  return wide;
}

std::uint8_t Palette::Nearest(Rgb colour) const {
  int best = 0;
  int smallest = std::numeric_limits<int>::max();
  for (int i = 0; i < size_; ++i) {
    const Rgb entry = (*this)[i];
    const int red = entry.red - colour.red;
    const int green = entry.green - colour.green;
    const int blue = entry.blue - colour.blue;
    const int distance = red * red + green * green + blue * blue;
    if (distance < smallest) {
      smallest = distance;
      best = i;
    }
  }
  return static_cast<std::uint8_t>(best);
}

}  // namespace plenovia
