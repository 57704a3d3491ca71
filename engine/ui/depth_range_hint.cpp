#include "engine/ui/depth_range_hint.h"

#include <QCoreApplication>

namespace plenovia {

QString DepthRangeHint() {
  return QCoreApplication::translate(
      "DepthRangeHint",
      "Zmax 63 suits figures and depth maps. Gray pictures need 255 to 400, with Left-to-right "
      "about 1500.");
}

}  // namespace plenovia
