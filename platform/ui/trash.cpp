#include "platform/ui/trash.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace plenovia {

bool MoveToTrash(const QString& path, QString* place) {
  // A user without any data yet has no place for the trash either.
  QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
  return QFile::moveToTrash(path, place);
}

}  // namespace plenovia
