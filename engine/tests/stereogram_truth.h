// What should be found in a stereogram whose depth is known, and how much of it was found.
#pragma once

#include <cstdint>
#include <vector>

#include "engine/reveal.h"
#include "engine/scan_method.h"
#include "engine/sirds_settings.h"
#include "platform/indexed_image.h"

namespace plenovia {

// The levels that a stereogram was made from, rows top down, one a pixel of the rows as they were
// when they were shifted (before columns were cut off on the right).
struct LevelPicture {
  int width = 0;
  int height = 0;
  std::vector<std::int32_t> levels;

  LevelPicture(int theWidth, int theHeight);
  // Calls level(x, y) for each pixel.
  template <class Level>
  LevelPicture(int theWidth, int theHeight, const Level& level)
      : LevelPicture(theWidth, theHeight) {
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) At(x, y) = level(x, y);
    }
  }
  std::int32_t& At(int x, int y) { return levels[Index(x, y)]; }
  std::int32_t At(int x, int y) const { return levels[Index(x, y)]; }
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x);
  }
};

// How a stereogram was made.
struct StereogramRule {
  TSirdsSettings settings;
  SourceKind kind = SourceKind::kShape;
};

// The stereogram of these levels over a background of tiles.
IndexedImage MakeTestStereogram(const LevelPicture& levels, const IndexedImage& tile,
                                const StereogramRule& rule);

struct RevealScore {
  int counted = 0;  // pixels whose pair the scan method made, more than 12 pixels from a depth edge
  int found = 0;    // of these, within one pixel of the true separation
  double Fraction() const { return counted == 0 ? 0.0 : static_cast<double>(found) / counted; }
};

// A depth edge is where neighbouring levels differ by more than 1, or in more than 2 pixels of
// separation.
RevealScore ScoreReveal(const RevealedDepth& revealed, const LevelPicture& levels,
                        const StereogramRule& rule);

}  // namespace plenovia
