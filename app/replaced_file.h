// The file that a save replaces.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <memory>

namespace plenovia {

// Keeps what a file holds while another document is saved under its name. A second name of the file
// is made in a hidden folder beside it, so nothing is copied; the folder goes at the end.
class ReplacedFile {
 public:
  // Nothing is kept when there is no such file, or when the file system cannot give it a second
  // name.
  explicit ReplacedFile(const QString& path);

  // Puts what was kept into the desktop's trash, to be restored under its own name. True when it is
  // there, or when nothing was kept.
  bool MoveToTrash();

 private:
  QString path_;
  std::unique_ptr<QTemporaryDir> folder_;
};

}  // namespace plenovia
