// Where depth comes from: what the command line calls SOURCE.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "cli/outcome.h"
#include "depthmap/depth_list.h"
#include "platform/indexed_image.h"

namespace plenovia {

struct Figure {
  int number = 0;  // from 0
  // By which the library knows it.
  std::int32_t Code() const { return -(number + 1); }
};

using Source = std::variant<IndexedImage, TDepthList, Figure>;

// The words of help for a SOURCE.
std::string SourceHelp();

// Whether the text begins as a figure does. A file of such a name is reached as "./figure:...".
bool NamesFigure(const std::string& text);

// A picture or a depth map, whichever the content of the file is. Of a damaged file what can be
// read, with a warning; `threads` may work on it, or one a processor when that is 0.
struct OpenedFile {
  Source source;
  std::string format;  // such as "GIF"; "RDS" for a depth map
};
[[nodiscard]] Outcome<OpenedFile> OpenFile(const std::string& file, int threads = 0);

// A file or a figure.
[[nodiscard]] Outcome<Source> OpenSource(const std::string& text, int threads);

// Reads a picture of any format that the program knows, as OpenFile() does.
[[nodiscard]] Outcome<IndexedImage> ReadPicture(const std::string& file, int threads = 0);

}  // namespace plenovia
