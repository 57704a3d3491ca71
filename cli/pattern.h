// The tile that a stereogram is made of: what the command line calls a pattern.
#pragma once

#include <string>
#include <vector>

#include "cli/outcome.h"
#include "images/pattern_files.h"
#include "platform/indexed_image.h"

namespace plenovia {

struct Tile {
  IndexedImage picture;
  std::string file;  // its name, perhaps with a folder
};

// A text of digits is the number of a file of the pattern library (a number that it does not have
// is wrong usage), any other one is a picture file. Nothing but the one tile is read.
[[nodiscard]] Outcome<Tile> OpenPattern(const std::string& text, int threads);

// The files of the pattern library, by number; never none.
[[nodiscard]] Outcome<std::vector<PatternFile>> PatternLibrary();

}  // namespace plenovia
