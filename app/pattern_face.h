// The face of the button that shows the current pattern.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QSize>

#include "platform/indexed_image.h"

namespace plenovia {

// The pattern's top left corner, dot for dot, inside a border of 2 logical pixels in the button's
// colour. `size` is in logical pixels. What the pattern does not cover has the button's colour.
QPixmap PatternFace(const IndexedImage& pattern, QSize size, qreal scaleFactor,
                    const QColor& buttonFace);

}  // namespace plenovia
