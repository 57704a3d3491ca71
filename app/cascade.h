// Document windows one behind the other, each a little below and to the right of the one before.
#pragma once

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPoint>

namespace plenovia {

// The top left corner of a window of the cascade; `number` counts from 0. After some windows the
// corners begin anew.
QPoint CascadeCorner(int number, const QMdiSubWindow& window);

// Cascades all windows that are not minimised. They keep their sizes, and their titles are in view.
void CascadeWindows(QMdiArea& area);

}  // namespace plenovia
