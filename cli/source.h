// Where depth comes from: what the command line calls SOURCE.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "cli/outcome.h"
#include "cli/source_options.h"
#include "depthmap/depth_list.h"
#include "engine/recipe.h"
#include "engine/run_monitor.h"
#include "platform/fine_image.h"
#include "platform/indexed_image.h"
#include "sources/mesh.h"

namespace plenovia {

struct Figure {
  int number = 0;  // from 0
  // By which the library knows it.
  std::int32_t Code() const { return -(number + 1); }
};

// What has fine levels comes as a FineImage; a model does so from OpenSource().
using Source = std::variant<IndexedImage, TDepthList, Figure, FineImage, Mesh>;

// The words of help for a SOURCE.
std::string SourceHelp();

// A picture, a picture of fine levels, a model or a depth map, whichever the content of the file
// is. Of a damaged file what can be read, with a warning; `threads` may work on it, or one a
// processor when that is 0.
struct OpenedFile {
  Source source;
  std::string format;   // such as "GIF"; "RDS" for a depth map
  std::string comment;  // the program's own (codec/picture_comment.h)
};
[[nodiscard]] Outcome<OpenedFile> OpenFile(const std::string& file, int threads = 0,
                                           Nearness nearness = Nearness::kBright);

// Whatever a SOURCE names: something that begins with the name of a form and a colon, or a file. A
// file of such a name is reached as "./figure:...". Wrong usage when the command line has an option
// that is not for it.
[[nodiscard]] Outcome<Source> OpenSource(const std::string& text, const SourceOptions& options,
                                         int threads, RunMonitor& monitor);

// What a recipe tells of a source that OpenSource() gave for this text.
RecipeSource RecipeSourceOf(const std::string& text, const Source& source);

// Reads a picture of any format that the program knows, as OpenFile() does.
[[nodiscard]] Outcome<IndexedImage> ReadPicture(const std::string& file, int threads = 0);

}  // namespace plenovia
