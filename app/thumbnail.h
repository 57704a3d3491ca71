// Small pictures of files.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace plenovia {

struct Thumbnail {
  QImage image;  // null when the file cannot be shown
  QSize size;    // of the picture or map itself
};

// Of a picture or a depth map, the map as grays from its farthest level to its nearest one. Fits
// into `room` and is never enlarged. May run on any thread.
Thumbnail MakeThumbnail(const QString& path, const QSize& room);

}  // namespace plenovia
