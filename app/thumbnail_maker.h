// Thumbnails made on a worker.
#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QStringList>

#include "app/thumbnail.h"

namespace plenovia {

// Makes them one after the other, in the order in which they were asked for.
class ThumbnailMaker : public QObject {
  Q_OBJECT

 public:
  explicit ThumbnailMaker(QObject* parent);

  // `room` counts for all that wait.
  void Ask(const QString& path, const QSize& room);
  // Drops what waits. The one that is being made still comes.
  void DropWaiting() { waiting_.clear(); }

 Q_SIGNALS:
  void Made(const QString& path, const Thumbnail& thumbnail);

 private:
  void MakeNext();

  QFutureWatcher<Thumbnail> watcher_;
  QStringList waiting_;
  QString current_;  // empty: none is being made
  QSize room_;
};

}  // namespace plenovia
