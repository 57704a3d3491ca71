#include "depthmap/ui/object_list.h"

#include <QHeaderView>
#include <utility>
#include <vector>

namespace plenovia {

ObjectList::ObjectList(QWidget* parent) : QTreeView(parent) {
  setObjectName(QStringLiteral("objectList"));
  setModel(&model_);
  setRootIsDecorated(false);
  setUniformRowHeights(true);
  setAllColumnsShowFocus(true);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(DoubleClicked | EditKeyPressed);
  setDragDropMode(InternalMove);
  setDropIndicatorShown(true);
  header()->setStretchLastSection(false);
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setSectionResizeMode(ObjectListModel::kWhat, QHeaderView::Stretch);
}

void ObjectList::SetMap(TMapWindow* map) {
  if (map_) disconnect(map_, &TMapWindow::MapChanged, this, nullptr);
  map_ = map;
  if (map != nullptr) connect(map, &TMapWindow::MapChanged, this, &ObjectList::Refresh);
  Refresh();
}

void ObjectList::showEvent(QShowEvent* event) {
  QTreeView::showEvent(event);
  Refresh();
}

void ObjectList::hideEvent(QHideEvent* event) {
  QTreeView::hideEvent(event);
  Refresh();
}

void ObjectList::Refresh() {
  const bool before = std::exchange(following_, true);
  // A list that is not seen costs nothing.
  model_.SetMap(isVisible() ? map_.data() : nullptr);
  QItemSelection rows;
  for (int row = 0; row < model_.rowCount(); ++row) {
    if (!model_.ObjectAt(row)->IsSelected()) continue;
    const int first = row;
    while (row + 1 < model_.rowCount() && model_.ObjectAt(row + 1)->IsSelected()) ++row;
    rows.select(model_.index(first, 0), model_.index(row, 0));
  }
  selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  if (!rows.isEmpty()) scrollTo(rows.first().topLeft());
  following_ = before;
}

void ObjectList::selectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
  QTreeView::selectionChanged(selected, deselected);
  if (following_ || !map_) return;
  std::vector<const TDepthObj*> objects;
  for (const QModelIndex& row : selectionModel()->selectedRows()) {
    objects.push_back(model_.ObjectAt(row.row()));
  }
  // The list follows the map later: a drag may begin with this press.
  following_ = true;
  map_->Edit([&](TDepthList& list) { list.SelectAll(objects); });
  following_ = false;
}

}  // namespace plenovia
