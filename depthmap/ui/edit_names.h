// What the steps of a depth map's history are called.
#pragma once

#include <QString>

#include "depthmap/map_history.h"

namespace plenovia {

// As it follows "Undo" in a menu.
QString EditName(EditKind kind);

}  // namespace plenovia
