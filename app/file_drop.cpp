#include "app/file_drop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QSysInfo>
#include <QUrl>

#include "app/command_table.h"
#include "app/file_commands.h"
#include "app/plenovia_wnd.h"

namespace plenovia {

QStringList DroppedFiles(const QMimeData& data) {
  const QStringList thisMachine{QString(), QStringLiteral("localhost"),
                                QSysInfo::machineHostName()};
  QStringList files;
  for (const QUrl& url : data.urls()) {
    if (!url.isLocalFile() || !thisMachine.contains(url.host(), Qt::CaseInsensitive)) continue;
    const QString path = url.path(QUrl::FullyDecoded);
    if (!QFileInfo(path).isDir()) files << path;
  }
  return files;
}

FileDrop::FileDrop(TPlenoviaWnd& frame) : QObject(&frame), frame_(frame) {
  frame.setAcceptDrops(true);
  frame.installEventFilter(this);
}

bool FileDrop::MayOpen() const {
  return frame_.Commands().IsAvailable(kCmOpen) && QApplication::activeModalWidget() == nullptr;
}

bool FileDrop::eventFilter(QObject* /*watched*/, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) return false;
  auto& drop = *static_cast<QDropEvent*>(event);
  const QStringList files = DroppedFiles(*drop.mimeData());
  if (files.isEmpty() || !MayOpen()) {
    drop.ignore();
    return true;
  }
  // Never a move, after which the other program would remove its file.
  drop.setDropAction(Qt::CopyAction);
  drop.accept();
  if (type == QEvent::Drop) {
    // Later, as the other program waits for the end of the drop, and a message may come up.
    const auto open = [this, files] {
      for (const QString& file : files) {
        if (MayOpen()) OpenByName(frame_, file);
      }
    };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
  }
  return true;
}

}  // namespace plenovia
