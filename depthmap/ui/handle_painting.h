// The handles of selected objects on the screen.
#pragma once

#include <QPainter>
#include <QRect>
#include <cstdint>

#include "depthmap/depth_list.h"
#include "depthmap/handles.h"
#include "depthmap/map_scale.h"

namespace plenovia {

// How many pixels of the map away from a thing the mouse still means it.
std::int64_t PickTolerance(const MapScale& scale);

// The squares at the handles of the object that alone is selected, beside those at its corners,
// and at the corners of each when several are selected. `view` is what of the map, as it is shown,
// is in view.
void PaintHandles(QPainter& painter, const TDepthList& list, const MapScale& scale,
                  const QRect& view);

// The cursor that tells which way the handle goes.
Qt::CursorShape CursorOf(const TDepthObj& object, const MapHandle& handle);

}  // namespace plenovia
