// Where the pattern files lie and what they are called.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace plenovia {

// "pat00.gif", ..., "pat09.gif", "pat10.gif", ..., "pat100.gif", ... for numbers from 0.
std::string PatternFileName(int number);
// How many come with the program.
inline constexpr int kShippedPatterns = 20;
// Numbers are below this: a damaged settings file must not keep us for hours.
inline constexpr int kMostPatternFiles = 10000;

// The folder "sirdspat" that belongs to a program file: beside it; in the share folder of the same
// installation; or, for a program in a build folder, in the source tree above it. None when there
// is no such folder.
std::optional<std::filesystem::path> FindPatternFolder(const std::filesystem::path& program);

// "plenovia/sirdspat" in the user's data folder ($XDG_DATA_HOME), where patterns are added when the
// program's own folder cannot be written; it need not exist. Empty when the user has no home.
std::filesystem::path UserPatternFolder();

// The file of this number in `folder`, or else in `userFolder`. None when neither has it.
std::optional<std::filesystem::path> FindPatternFile(int number,
                                                     const std::filesystem::path& folder,
                                                     const std::filesystem::path& userFolder);

// The numbers of the pattern files that lie in a folder, in their order; none when there is no such
// folder.
std::vector<int> PatternNumbersIn(const std::filesystem::path& folder);

// The file of the program that is running; empty when the system does not tell.
std::filesystem::path ProgramFile();

}  // namespace plenovia
