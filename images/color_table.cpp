#include "images/color_table.h"

#include <algorithm>
#include <cstdint>

namespace plenovia {

namespace {

constexpr int kWindowFrame = 30;

Rgb Inverted(Rgb colour) {
  return {static_cast<std::uint8_t>(255 - colour.red),
          static_cast<std::uint8_t>(255 - colour.green),
          static_cast<std::uint8_t>(255 - colour.blue)};
}

}  // namespace

int ColourTableRows(const Palette& palette) {
  return std::max(1, palette.size() / kColourCellsPerRow);
}

int ColourTableHeight(const Palette& palette) {
  return ColourTableRows(palette) * kColourCellSide;
}

int ColourTableWindowHeight(const Palette& palette) {
  const int entries = std::max(palette.size(), kColourCellsPerRow);
  return entries * kColourCellSide / kColourCellsPerRow + kWindowFrame;
}

std::vector<ColourCell> ColourCells(const Palette& palette) {
  const int count = std::min(palette.size(), ColourTableRows(palette) * kColourCellsPerRow);
  std::vector<ColourCell> cells;
  for (int i = 0; i < count; ++i) {
    const int left = i % kColourCellsPerRow * kColourCellSide;
    const int top = i / kColourCellsPerRow * kColourCellSide;
    cells.push_back({left, top, i + 1, palette[i], Inverted(palette[i])});
  }
  return cells;
}

}  // namespace plenovia
