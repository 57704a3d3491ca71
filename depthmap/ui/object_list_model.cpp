#include "depthmap/ui/object_list_model.h"

#include <QCoreApplication>
#include <algorithm>
#include <utility>

#include "depthmap/level_choice.h"
#include "depthmap/selection_edits.h"

namespace plenovia {

namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(ObjectList)
};

QString KindWords(const TDepthObj& object) {
  switch (object.GetKind()) {
    case TextObj:
      return Words::tr("Text");
    case LineObj:
      return Words::tr("Line");
    case CurveObj:
      return Words::tr("Curve");
    case SquareBoxObj:
      return Words::tr("Box");
    case RoundBoxObj:
      return Words::tr("Round box");
    case PolygonObj:
      return Words::tr("Polygon, %1 points").arg(object.GetPoints().size());
    case CircleObj:
      return Words::tr("Ellipse");
  }
  return Words::tr("Unknown shape");
}

QString PlaceWords(const TDepthObj& object) {
  const PixelRect box = object.GetRect().Normalised();
  return Words::tr("%1, %2: %3 x %4")
      .arg(box.left)
      .arg(box.top)
      .arg(box.right - box.left)
      .arg(box.bottom - box.top);
}

}  // namespace

void ObjectListModel::SetMap(TMapWindow* map) {
  map_ = map;
  Refresh();
}

void ObjectListModel::Refresh() {
  std::vector<const TDepthObj*> objects;
  const TDepthObj* object = map_ ? map_->Objects().Head() : nullptr;
  for (; object != nullptr; object = TDepthList::Below(*object)) objects.push_back(object);
  if (objects == objects_) {
    if (!objects_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, kColumns - 1));
    return;
  }
  beginResetModel();
  objects_ = std::move(objects);
  endResetModel();
}

int ObjectListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(objects_.size());
}

int ObjectListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

QVariant ObjectListModel::data(const QModelIndex& index, int role) const {
  // The map may be gone, and its objects with it.
  if (!map_ || (role != Qt::DisplayRole && role != Qt::EditRole)) return {};
  const TDepthObj& object = *ObjectAt(index.row());
  if (index.column() == kLevel) return object.GetLevel();
  if (index.column() == kPlace) return PlaceWords(object);
  return &object == map_->Objects().Background() ? Words::tr("Background") : KindWords(object);
}

QVariant ObjectListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return section == kWhat    ? Words::tr("Shape")
         : section == kLevel ? Words::tr("Level")
                             : Words::tr("Place and size");
}

Qt::ItemFlags ObjectListModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::ItemIsDropEnabled;  // between the rows
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  if (index.row() + 1 < rowCount()) flags |= Qt::ItemIsDragEnabled;
  if (index.column() == kLevel) flags |= Qt::ItemIsEditable;
  return flags;
}

bool ObjectListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  const int level = value.toInt();
  if (!map_ || role != Qt::EditRole || index.column() != kLevel || !IsLevel(level)) return false;
  const TDepthObj* object = ObjectAt(index.row());
  map_->Edit([&](TDepthList& list) { list.SetObjectLevel(object, level); });
  return true;
}

bool ObjectListModel::dropMimeData(const QMimeData*, Qt::DropAction action, int row, int,
                                   const QModelIndex& parent) {
  if (!map_ || action != Qt::MoveAction || objects_.empty()) return false;
  if (row < 0) row = parent.isValid() ? parent.row() : rowCount();
  const TDepthObj* below = ObjectAt(std::min(row, rowCount() - 1));
  map_->Edit([&](TDepthList& list) { PutSelectionAbove(list, below); });
  return false;  // the view is not to take rows away
}

}  // namespace plenovia
