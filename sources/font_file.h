// Fonts by their names.
#pragma once

#include <string>

#include "platform/result.h"

namespace plenovia {

struct FontFile {
  std::string path;
  int face = 0;  // a file may hold several
};

// The file of an installed font: by its full name ("DejaVu Sans Bold"), its family, or family and
// style; capitals do not matter. kIo when there is none of that name.
[[nodiscard]] Result<FontFile> FindFont(const std::string& name);

// The bold sans-serif font of the system. kIo when there are no fonts.
[[nodiscard]] Result<FontFile> StandardFont();

}  // namespace plenovia
