#include "depthmap/ui/object_list.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "depthmap/ui/tests/map_window_fixture.h"

namespace plenovia {
namespace {

class ObjectLists : public MapWindow {
 protected:
  ObjectLists() {
    for (const int level : {1, 2, 3}) Draw(kSquareBoxTool, level, {10, 10}, {60, 60});
    list.SetMap(window);
    list.show();
  }
  std::string Column(int column) const {
    std::string text;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      text += list.model()->index(row, column).data().toString().toStdString() + "; ";
    }
    return text;
  }
  std::string SelectedRows() const {
    std::string rows;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      rows += list.selectionModel()->isRowSelected(row, {}) ? "x" : "-";
    }
    return rows;
  }
  void SelectRows(const std::vector<int>& rows) {
    list.clearSelection();
    for (const int row : rows) {
      list.selectionModel()->select(list.model()->index(row, 0),
                                    QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
  }

  ObjectList list;
};

TEST_F(ObjectLists, ShowsTheMapAndItsSelection) {
  EXPECT_EQ(Column(ObjectListModel::kWhat), "Box; Box; Box; Background; ");
  EXPECT_EQ(Column(ObjectListModel::kLevel), "3; 2; 1; 0; ");
  EXPECT_EQ(SelectedRows(), "x---");
  window->RunCommand(kMoveObjectDown);
  EXPECT_EQ(Column(ObjectListModel::kLevel), "2; 3; 1; 0; ");
  EXPECT_EQ(SelectedRows(), "-x--");
  window->RunCommand(kCmSelectAll);
  EXPECT_EQ(SelectedRows(), "xxx-");
  window->RunCommand(kMoveTool);
  Press({30, 30});
  Pull({50, 40});
  EXPECT_EQ(list.model()->index(0, ObjectListModel::kPlace).data().toString(),
            QStringLiteral("30, 20: 50 x 50"));
  Release({50, 40});
  list.hide();
  window->RunCommand(kDeleteObject);
  list.show();
  EXPECT_EQ(Column(ObjectListModel::kLevel), "0; ");
  delete window;
  list.SetMap(nullptr);
  EXPECT_EQ(list.model()->rowCount(), 0);
}

TEST_F(ObjectLists, SelectsRestacksDeletesAndGivesLevels) {
  SelectRows({0, 2});
  EXPECT_EQ(window->Objects().Selection().size(), 2u);
  EXPECT_TRUE(window->Objects().Head()->IsSelected());
  EXPECT_EQ(SelectedRows(), "x-x-");
  auto& model = *list.model();
  EXPECT_FALSE(model.dropMimeData(nullptr, Qt::MoveAction, 2, 0, {}));
  EXPECT_EQ(Column(ObjectListModel::kLevel), "2; 3; 1; 0; ");
  EXPECT_EQ(SelectedRows(), "-xx-");
  model.dropMimeData(nullptr, Qt::MoveAction, 0, 0, {});
  EXPECT_EQ(Column(ObjectListModel::kLevel), "3; 1; 2; 0; ");
  model.dropMimeData(nullptr, Qt::MoveAction, -1, -1, {});
  EXPECT_EQ(Column(ObjectListModel::kLevel), "2; 3; 1; 0; ") << "nothing goes below the ground";
  const QModelIndex level = model.index(3, ObjectListModel::kLevel);
  EXPECT_FALSE(model.setData(level, 300));
  EXPECT_TRUE(model.setData(level, 9));
  EXPECT_EQ(window->Objects().GetLevelAt(300, 300), 9);
  for (int i = 0; i < 4; ++i) window->RunCommand(kCmUndo);
  EXPECT_EQ(Column(ObjectListModel::kLevel), "3; 2; 1; 0; ");
}

TEST_F(ObjectLists, ReachesWhatCannotBeSeen) {
  window->Edit([](TDepthList& objects) {
    auto point = std::make_unique<TDepthObj>(nullptr, DepthRect{}, PolygonObj, 5);
    point->SetPoints(std::vector<DepthPoint>{{20, 20}});
    objects.AddObject(std::move(point));
    const DepthRect rect{9, 9, 20, 20};
    objects.AddObject(std::make_unique<TDepthObj>(nullptr, rect, static_cast<DepthObjKind>(77), 6));
    objects.AddObject(
        std::make_unique<TDepthObj>(nullptr, DepthRect{-50, -50, -20, -20}, LineObj, 7));
  });
  EXPECT_EQ(Column(ObjectListModel::kWhat),
            "Line; Unknown shape; Polygon, 1 points; Box; Box; Box; Background; ");
  SelectRows({0, 1, 2, 6});
  window->RunCommand(kDeleteObject);
  EXPECT_EQ(Stack(), "3 2 1 0");
}

}  // namespace
}  // namespace plenovia
