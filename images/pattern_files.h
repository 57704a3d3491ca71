// Where the pattern files lie and what they are called.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace plenovia {

// "pat00.gif", ..., "pat09.gif", "pat10.gif", ..., "pat100.gif", ... for numbers from 0.
std::string PatternFileName(int number);

// The folder "sirdspat" that belongs to a program file: beside it; in the share folder of the same
// installation; or, for a program in a build folder, in the source tree above it. None when there
// is no such folder.
std::optional<std::filesystem::path> FindPatternFolder(const std::filesystem::path& program);

// The file of the program that is running; empty when the system does not tell.
std::filesystem::path ProgramFile();

}  // namespace plenovia
