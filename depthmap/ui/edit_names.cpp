#include "depthmap/ui/edit_names.h"

#include <QCoreApplication>
#include <QtGlobal>

namespace plenovia {

namespace {

constexpr struct {
  EditKind kind;
  const char* name;
} kNames[] = {
    {EditKind::kDraw, QT_TRANSLATE_NOOP("Edits", "Draw")},
    {EditKind::kMove, QT_TRANSLATE_NOOP("Edits", "Move")},
    {EditKind::kSetLevel, QT_TRANSLATE_NOOP("Edits", "Set Level")},
    {EditKind::kRestack, QT_TRANSLATE_NOOP("Edits", "Change Order")},
    {EditKind::kDelete, QT_TRANSLATE_NOOP("Edits", "Delete")},
    {EditKind::kCut, QT_TRANSLATE_NOOP("Edits", "Cut")},
    {EditKind::kPaste, QT_TRANSLATE_NOOP("Edits", "Paste")},
    {EditKind::kDuplicate, QT_TRANSLATE_NOOP("Edits", "Duplicate")},
    {EditKind::kResize, QT_TRANSLATE_NOOP("Edits", "Resize")},
    {EditKind::kMovePoint, QT_TRANSLATE_NOOP("Edits", "Move Point")},
    {EditKind::kAddPoint, QT_TRANSLATE_NOOP("Edits", "Add Point")},
    {EditKind::kDeletePoint, QT_TRANSLATE_NOOP("Edits", "Delete Point")},
    {EditKind::kRotate, QT_TRANSLATE_NOOP("Edits", "Rotate")},
    {EditKind::kMirror, QT_TRANSLATE_NOOP("Edits", "Mirror")},
    {EditKind::kAlign, QT_TRANSLATE_NOOP("Edits", "Align")},
    {EditKind::kDistribute, QT_TRANSLATE_NOOP("Edits", "Distribute")},
    {EditKind::kText, QT_TRANSLATE_NOOP("Edits", "Text")},
    {EditKind::kRamp, QT_TRANSLATE_NOOP("Edits", "Ramp")},
    {EditKind::kMapSize, QT_TRANSLATE_NOOP("Edits", "Map Size")},
};

}  // namespace

QString EditName(EditKind kind) {
  for (const auto& row : kNames) {
    if (row.kind == kind) return QCoreApplication::translate("Edits", row.name);
  }
  return {};
}

}  // namespace plenovia
