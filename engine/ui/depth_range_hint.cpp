#include "engine/ui/depth_range_hint.h"

#include <QCoreApplication>

namespace plenovia {

QString DepthRangeHint() {
  return QCoreApplication::translate(
      "DepthRangeHint",
      "Zmax 63 suits figures and depth maps. Gray pictures need 255 to 400, with Left-to-right "
      "about 1500.");
}

QString FittedRangeText(const FittedRange& fitted, const TSirdsSettings& settings) {
  return QCoreApplication::translate(
             "DepthRangeHint", "Depth range %1 to %2 instead of %3 to %4, so that all depths show.")
      .arg(fitted.zmin)
      .arg(fitted.zmax)
      .arg(settings.zmin)
      .arg(settings.zmax);
}

}  // namespace plenovia
