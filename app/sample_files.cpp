#include "app/sample_files.h"

#include <QDir>

#include "images/pattern_files.h"
#include "platform/ui/text.h"

namespace plenovia {

QString SampleFolder() {
  const std::filesystem::path patterns = FindPatternFolders(ProgramFile()).program;
  if (patterns.empty()) return {};
  const QDir folder(PathToQString(patterns.parent_path() / "samples"));
  return folder.exists() ? folder.absolutePath() : QString();
}

QStringList SampleFiles() {
  const QString folder = SampleFolder();
  if (folder.isEmpty()) return {};
  QStringList files;
  const QStringList types{QStringLiteral("*.rds"), QStringLiteral("*.png"),
                          QStringLiteral("*.jpg")};
  for (const QFileInfo& file : QDir(folder).entryInfoList(types, QDir::Files, QDir::Name)) {
    files << file.absoluteFilePath();
  }
  return files;
}

}  // namespace plenovia
