#include "app/program_state.h"

#include <QFileInfo>

#include "platform/ui/text.h"

namespace plenovia {

void ProgramState::NoteFile(const QString& path) {
  recentFiles.Add(ToPath(QFileInfo(path).absoluteFilePath()));
  Q_EMIT FilesChanged();
}

}  // namespace plenovia
