// The objects of a map as rows, the topmost first.
#pragma once

#include <QAbstractTableModel>
#include <QPointer>
#include <vector>

#include "depthmap/ui/map_window.h"

namespace plenovia {

// Columns: what it is, its level (which can be edited), its place and size. Rows that are dropped
// between others take all selected objects of the map there.
class ObjectListModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kWhat, kLevel, kPlace, kColumns };

  using QAbstractTableModel::QAbstractTableModel;

  // The map that it is about, or null. Shows it as it is now.
  void SetMap(TMapWindow* map);
  const TDepthObj* ObjectAt(int row) const { return objects_[static_cast<std::size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 private:
  void Refresh();

  QPointer<TMapWindow> map_;
  std::vector<const TDepthObj*> objects_;
};

}  // namespace plenovia
