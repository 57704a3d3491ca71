#include "app/thumbnail_maker.h"

#include <QPromise>
#include <QThreadPool>
#include <memory>
#include <utility>

namespace plenovia {

ThumbnailMaker::ThumbnailMaker(QObject* parent) : QObject(parent) {
  connect(&watcher_, &QFutureWatcherBase::finished, this, [this] {
    const QString path = std::exchange(current_, {});
    const Thumbnail made = watcher_.future().resultCount() > 0 ? watcher_.result() : Thumbnail();
    MakeNext();
    Q_EMIT Made(path, made);
  });
}

void ThumbnailMaker::Ask(const QString& path, const QSize& room) {
  room_ = room;
  waiting_ << path;
  if (current_.isEmpty()) MakeNext();
}

void ThumbnailMaker::MakeNext() {
  if (waiting_.isEmpty()) return;
  current_ = waiting_.takeFirst();
  // The work may outlive this object; then nobody takes its result.
  const auto promise = std::make_shared<QPromise<Thumbnail>>();
  watcher_.setFuture(promise->future());
  QThreadPool::globalInstance()->start([promise, path = current_, room = room_] {
    promise->start();
    promise->addResult(MakeThumbnail(path, room));
    promise->finish();
  });
}

}  // namespace plenovia
