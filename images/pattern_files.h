// Where the pattern files lie and what they are called.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace plenovia {

// "pat00.gif", ..., "pat09.gif", "pat10.gif", ..., "pat100.gif", ... for numbers from 0.
std::string PatternFileName(int number);
// How many come with the program.
inline constexpr int kShippedPatterns = 20;
// Numbers are below this.
inline constexpr int kMostPatternFiles = 10000;

struct PatternFolders {
  std::filesystem::path program;  // of the files that come with the program; empty: there is none
  std::filesystem::path user;     // of the user's own; it need not exist; empty: there is no home
  // New files go to `program` when it can be written. False for a program in a build folder: its
  // files are those of the source tree.
  bool programTakesNew = true;
};

// Of the program file `program`. Its own folder is called "sirdspat" and holds at least one pattern
// file: beside the program; in the share folder of the same installation; or, for a program in a
// build folder, in the source tree above it. The user's folder is UserPatternFolder().
PatternFolders FindPatternFolders(const std::filesystem::path& program);

// "plenovia/sirdspat" in the user's data folder ($XDG_DATA_HOME). Empty when the user has no home.
std::filesystem::path UserPatternFolder();

struct PatternFile {
  int number = 0;
  std::filesystem::path path;
};

// All pattern files of both folders, by number. Where both have the number, the program's file
// comes first. The files need not be readable.
std::vector<PatternFile> FindPatternFiles(const PatternFolders& folders);

// The file of the program that is running; empty when the system does not tell.
std::filesystem::path ProgramFile();

}  // namespace plenovia
