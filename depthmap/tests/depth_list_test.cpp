#include "depthmap/depth_list.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/random.h"

namespace plenovia {
namespace {

// Remembers which areas were repainted, by their left edge.
class Painter : public DepthObjOwner {
 public:
  void Repaint(const PixelRect& area) override { lefts.push_back(area.left + 4); }
  std::vector<std::int64_t> Take() { return std::exchange(lefts, {}); }

  std::vector<std::int64_t> lefts;
};

// Puts a box on top whose left edge is 10 * level.
const TDepthObj* AddBox(TDepthList& list, std::int32_t level) {
  const DepthRect rect{10 * level, 0, 10 * level + 15, 10};
  list.AddObject(std::make_unique<TDepthObj>(nullptr, rect, SquareBoxObj, level));
  return list.Head();
}

// The levels from the top down; both ways through the list must agree.
std::string Stack(const TDepthList& list) {
  std::string down;
  std::string up;
  for (auto* o = list.Head(); o != nullptr; o = TDepthList::Below(*o)) {
    down += std::to_string(o->GetLevel()) + " ";
  }
  for (auto* o = list.Background(); o != nullptr; o = TDepthList::Above(*o)) {
    up = std::to_string(o->GetLevel()) + " " + up;
  }
  EXPECT_EQ(down, up);
  return down;
}

TEST(DepthList, ANewMapIsItsBackgroundBox) {
  TDepthList list(401, 300);
  EXPECT_EQ(list.CountObjects(), 1);
  EXPECT_EQ(list.Head()->GetKind(), SquareBoxObj);
  EXPECT_EQ(list.Head()->GetRect(), (DepthRect{0, 0, 401, 300}));
  EXPECT_FALSE(list.IsSaved());
  EXPECT_EQ(list.GetImageSize(), 121200u);
  EXPECT_EQ(list.GetLevelAt(400, 299), 0);
  EXPECT_EQ(list.ObjectAt(401, 0), nullptr);
  list.Select(list.Head());
  list.CmDelete();
  list.CmMoveUp();
  list.CmMoveDown();
  EXPECT_EQ(list.CountObjects(), 1);

  TDepthList none(0, 300);
  none.Select(nullptr);
  none.CmDelete();
  EXPECT_EQ(none.CountObjects(), 0);
  EXPECT_EQ(none.GetLevelAt(0, 0), 0);
}

TEST(DepthList, ObjectsMoveUpAndDownAboveTheBackground) {
  Painter painter;
  TDepthList list(100, 100, &painter);
  const TDepthObj* a = AddBox(list, 1);
  AddBox(list, 2);
  const TDepthObj* c = AddBox(list, 3);
  EXPECT_EQ(Stack(list), "3 2 1 0 ");
  EXPECT_EQ(list.GetLevelAt(32, 5), 3);

  list.Select(c);
  list.MarkSaved();
  painter.Take();
  list.CmMoveUp();
  EXPECT_TRUE(list.IsSaved());
  list.CmMoveDown();
  EXPECT_FALSE(list.IsSaved());
  EXPECT_EQ(Stack(list), "2 3 1 0 ");
  EXPECT_EQ(painter.Take(), (std::vector<std::int64_t>{20, 30}));
  EXPECT_EQ(list.GetLevelAt(32, 5), 2);
  EXPECT_EQ(list.Selected(), c);
  list.CmMoveUp();
  EXPECT_EQ(Stack(list), "3 2 1 0 ");

  list.Select(a);
  EXPECT_EQ((painter.Take()), (std::vector<std::int64_t>{20, 30, 30, 10}));
  list.CmMoveDown();
  list.CmMoveUp();
  list.CmMoveUp();
  EXPECT_EQ(Stack(list), "1 3 2 0 ");
  list.Select(list.Background());
  list.CmMoveUp();
  EXPECT_EQ(Stack(list), "1 3 2 0 ");

  list.Select(a);
  painter.Take();
  list.MarkSaved();
  list.CmDelete();
  EXPECT_EQ(Stack(list), "3 2 0 ");
  EXPECT_EQ(list.Head(), c);
  EXPECT_EQ(list.Selected(), nullptr);
  EXPECT_FALSE(list.IsSaved());
  EXPECT_EQ(painter.Take(), (std::vector<std::int64_t>{10}));
}

TEST(DepthList, LevelsAndMovesAreChanges) {
  TDepthList list(100, 100);
  const TDepthObj* box = AddBox(list, 7);
  list.MarkSaved();
  list.GetObjectLevel(box);
  list.ApplyObjectLevel(box);
  EXPECT_TRUE(list.IsSaved());
  list.ApplyObjectLevel(list.Background());
  EXPECT_FALSE(list.IsSaved());
  EXPECT_EQ(list.GetLevelAt(99, 99), 7);
  EXPECT_EQ(list.Selected(), list.Background());
  list.GetObjectLevel(nullptr);
  list.ApplyObjectLevel(nullptr);
  EXPECT_EQ(list.CurrentLevel(), 7);

  list.MarkSaved();
  list.MoveSelectedTo({50, 50, 150, 150});
  EXPECT_EQ(list.GetLevelAt(49, 49), 0);
  EXPECT_EQ(list.GetLevelAt(149, 149), 7);
  EXPECT_EQ(list.GetWidth(), 100);
  EXPECT_FALSE(list.IsSaved());

  const TDepthObj stranger(nullptr, {}, SquareBoxObj, 9);
  list.Select(&stranger);
  EXPECT_EQ(list.Selected(), list.Background());
  list.Select(nullptr);
  EXPECT_EQ(list.Selected(), nullptr);
}

TEST(DepthList, AnySequenceOfCommandsKeepsTheListWhole) {
  Random random(3);
  TDepthList list(100, 100);
  std::vector<std::int32_t> expected{0};  // levels from the top down
  int selected = -1;
  for (int step = 1; step <= 3000; ++step) {
    const int last = static_cast<int>(expected.size()) - 1;
    switch (random.Int(0, 4)) {
      case 0:
        AddBox(list, step);
        expected.insert(expected.begin(), step);
        if (selected >= 0) ++selected;
        break;
      case 1: {
        selected = random.Int(0, last);
        const TDepthObj* object = list.Head();
        for (int i = 0; i < selected; ++i) object = TDepthList::Below(*object);
        list.Select(object);
        break;
      }
      case 2:
        list.CmDelete();
        if (selected >= 0 && selected < last) {
          expected.erase(expected.begin() + selected);
          selected = -1;
        }
        break;
      case 3:
        list.CmMoveUp();
        if (selected > 0 && selected < last) {
          std::swap(expected[static_cast<std::size_t>(selected)],
                    expected[static_cast<std::size_t>(selected - 1)]);
          --selected;
        }
        break;
      default:
        list.CmMoveDown();
        if (selected >= 0 && selected < last - 1) {
          std::swap(expected[static_cast<std::size_t>(selected)],
                    expected[static_cast<std::size_t>(selected + 1)]);
          ++selected;
        }
    }
    std::string stack;
    for (const std::int32_t level : expected) stack += std::to_string(level) + " ";
    ASSERT_EQ(Stack(list), stack) << "step " << step;
  }
}

}  // namespace
}  // namespace plenovia
