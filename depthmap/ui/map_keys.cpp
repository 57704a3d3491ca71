#include "depthmap/ui/map_keys.h"

#include <optional>

#include "depthmap/picking.h"
#include "depthmap/selection_edits.h"

namespace plenovia {

namespace {

constexpr std::int64_t kLargeStep = 10;

std::optional<MapWay> WayOfKey(int key) {
  switch (key) {
    case Qt::Key_Left:
      return MapWay{-1, 0};
    case Qt::Key_Right:
      return MapWay{1, 0};
    case Qt::Key_Up:
      return MapWay{0, -1};
    case Qt::Key_Down:
      return MapWay{0, 1};
    default:
      return std::nullopt;
  }
}

bool GoOn(TDepthList& list, bool upwards) {
  const TDepthObj* next = NextObject(list, list.Selected(), upwards);
  list.Select(next);
  return next != nullptr;
}

}  // namespace

bool PressMapKey(TDepthList& list, const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
  if (held & ~Qt::ShiftModifier) return false;
  if (event.key() == Qt::Key_Tab) return GoOn(list, false);
  if (event.key() == Qt::Key_Backtab) return GoOn(list, true);
  const std::optional<MapWay> way = WayOfKey(event.key());
  if (!way || list.Selection().empty()) return false;
  const std::int64_t step = held & Qt::ShiftModifier ? kLargeStep : 1;
  list.BeginEdit(EditKind::kMove);
  ShiftSelection(list, {way->right * step, way->down * step});
  list.EndEdit(event.isAutoRepeat());
  return true;
}

GestureKeys ToGestureKeys(Qt::KeyboardModifiers modifiers) {
  return {modifiers.testFlag(Qt::ShiftModifier), modifiers.testFlag(Qt::ControlModifier),
          modifiers.testFlag(Qt::AltModifier)};
}

}  // namespace plenovia
