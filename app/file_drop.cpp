#include "app/file_drop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QSysInfo>
#include <QUrl>
#include <utility>

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

FileDrop::FileDrop(QWidget& frame, std::function<bool()> mayOpen,
                   std::function<void(const QString&)> open)
    : QObject(&frame), mayOpen_(std::move(mayOpen)), open_(std::move(open)) {
  frame.setAcceptDrops(true);
  frame.installEventFilter(this);
}

bool FileDrop::MayOpen() const {
  return mayOpen_() && QApplication::activeModalWidget() == nullptr;
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
        if (MayOpen()) open_(file);
      }
    };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
  }
  return true;
}

}  // namespace plenovia
