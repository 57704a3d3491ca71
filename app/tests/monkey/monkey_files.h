// Files for the monkey to open, and names under which it saves.
#pragma once

#include <QString>
#include <filesystem>
#include <vector>

#include "app/tests/monkey/chance.h"

namespace plenovia {

// Small pictures of every format, the program's samples and patterns, damaged copies of them, what
// is no picture at all, and names of files that are not there. All of it is copied into `folder`,
// and so is what is saved.
class MonkeyFiles {
 public:
  MonkeyFiles(std::filesystem::path folder, Chance& chance);

  QString ToOpen(Chance& chance) const;
  // A name with any or no extension, now and then where nothing can be written. What is saved is
  // offered by ToOpen() from then on.
  QString ToSave(Chance& chance);

 private:
  void AddPictures(Chance& chance);
  void AddCopies(const std::filesystem::path& from);
  void AddDamaged(Chance& chance);
  void AddOddities();

  std::filesystem::path folder_;
  std::vector<std::filesystem::path> files_;
};

}  // namespace plenovia
