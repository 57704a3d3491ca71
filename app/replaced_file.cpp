#include "app/replaced_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <filesystem>
#include <system_error>

#include "platform/ui/text.h"
#include "platform/ui/trash.h"

namespace plenovia {

namespace {

// The trash remembers where a file lay (freedesktop.org, Trash specification): there it must say
// where the file was before it was kept.
void TellOldPlace(const QString& inTrash, const QString& path) {
  const QFileInfo trashed(inTrash);
  QFile info(trashed.dir().absoluteFilePath(
      QStringLiteral("../info/%1.trashinfo").arg(trashed.fileName())));
  if (!info.open(QIODevice::ReadWrite)) return;
  QByteArrayList lines = info.readAll().split('\n');
  for (QByteArray& line : lines) {
    if (line.startsWith("Path=")) line = "Path=" + QUrl::toPercentEncoding(path, "/");
  }
  info.resize(0);
  info.write(lines.join('\n'));
}

}  // namespace

ReplacedFile::ReplacedFile(const QString& path) : path_(QFileInfo(path).absoluteFilePath()) {
  const QFileInfo file(path_);
  if (!file.isFile()) return;
  auto folder = std::make_unique<QTemporaryDir>(
      file.dir().absoluteFilePath(QStringLiteral(".replaced-XXXXXX")));
  if (!folder->isValid()) return;
  std::error_code failed;
  std::filesystem::create_hard_link(ToPath(path_), ToPath(folder->filePath(file.fileName())),
                                    failed);
  if (!failed) folder_ = std::move(folder);
}

bool ReplacedFile::MoveToTrash() {
  if (!folder_) return true;
  QString inTrash;
  const bool moved =
      plenovia::MoveToTrash(folder_->filePath(QFileInfo(path_).fileName()), &inTrash);
  if (moved && !inTrash.isEmpty()) TellOldPlace(inTrash, path_);
  folder_.reset();
  return moved;
}

}  // namespace plenovia
