// The text under a figure's stereogram.
#pragma once

#include <QString>

#include "platform/indexed_image.h"

namespace plenovia {

// Writes "<title> - Plenovia - " and the program's notice at the bottom left of the picture.
void DrawFigureCaption(IndexedImage& picture, const QString& title);

}  // namespace plenovia
