// A list of a map's objects in their order, to reach what the mouse does not.
#pragma once

#include <QPointer>
#include <QTreeView>

#include "depthmap/ui/object_list_model.h"

namespace plenovia {

// What is selected in the list is selected in the map, and the other way round.
class ObjectList : public QTreeView {
  Q_OBJECT

 public:
  explicit ObjectList(QWidget* parent = nullptr);

  // The map that it is about, or null.
  void SetMap(TMapWindow* map);

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void Refresh();

  ObjectListModel model_;
  QPointer<TMapWindow> map_;
  bool following_ = false;  // shows the map's selection just now
};

}  // namespace plenovia
