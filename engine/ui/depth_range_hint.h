// What the dialogs that ask for a depth range say about it.
#pragma once

#include <QString>

namespace plenovia {

// Which Zmax suits which source, in two short sentences.
QString DepthRangeHint();

}  // namespace plenovia
