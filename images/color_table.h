// The grid that shows the colours of a palette as numbered cells.
#pragma once

#include <vector>

#include "platform/palette.h"

namespace plenovia {

inline constexpr int kColourCellSide = 24;  // pixels
inline constexpr int kColourCellsPerRow = 16;
inline constexpr int kColourTableWidth = kColourCellsPerRow * kColourCellSide;

// Palettes of 16 and more colours show what fills whole rows, shorter ones all they have in one
// row.
int ColourTableRows(const Palette& palette);
int ColourTableHeight(const Palette& palette);
// The height of a window, with its frame, around the grid of this palette.
int ColourTableWindowHeight(const Palette& palette);

struct ColourCell {
  int left = 0;
  int top = 0;
  int number = 0;  // from 1
  Rgb fill;
  Rgb text;  // stands out from `fill`
};

// The cells row after row.
std::vector<ColourCell> ColourCells(const Palette& palette);

}  // namespace plenovia
