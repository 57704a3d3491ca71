// The text under a figure's stereogram.
#pragma once

#include <QString>

#include "platform/indexed_image.h"

namespace plenovia {

// Writes "<title> - Plenovia - " and the program's notice at the bottom left of the picture. In a
// narrow picture the notice, the program's name and the title are left out, in this order, until
// the rest fits; in one lower than the caption all is.
void DrawFigureCaption(IndexedImage& picture, const QString& title);

}  // namespace plenovia
