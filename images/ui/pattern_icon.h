// A pattern as a small picture.
#pragma once

#include <QColor>
#include <QIcon>

#include "platform/indexed_image.h"

namespace plenovia {

// The pattern's top left corner dot for dot, `side` wide in Qt's units, repeated where it is
// smaller. The icon of a selected one has a frame of `highlight`.
QIcon PatternIcon(const IndexedImage& pattern, int side, qreal scaleFactor,
                  const QColor& highlight);

}  // namespace plenovia
