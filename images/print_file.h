// Names for the files that print jobs are written to.
#pragma once

#include <filesystem>

namespace plenovia {

// The first of "dots.pdf", "dots-2.pdf", "dots-3.pdf" ... that is not there yet.
std::filesystem::path FreePrintFile(const std::filesystem::path& wanted);

}  // namespace plenovia
