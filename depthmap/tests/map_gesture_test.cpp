#include "depthmap/map_gesture.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "depthmap/picking.h"
#include "depthmap/selection_edits.h"

namespace plenovia {
namespace {

constexpr GestureKeys kNone{};
constexpr GestureKeys kShift{true, false, false};
constexpr GestureKeys kControl{false, true, false};
constexpr GestureKeys kAlt{false, false, true};

// Boxes of level 1 and 2 that overlap from 40 to 50, and a line of level 3 beside them.
class MapGestures : public testing::Test {
 protected:
  MapGestures() {
    list.KeepHistory();
    Add(SquareBoxObj, {20, 20, 50, 50}, 1);
    Add(SquareBoxObj, {40, 40, 80, 80}, 2);
    Add(LineObj, {10, 90, 90, 95}, 3);
    list.MarkSaved();
  }
  void Add(DepthObjKind kind, const DepthRect& rect, int level) {
    list.AddObject(std::make_unique<TDepthObj>(nullptr, rect, kind, level));
  }
  using Press = std::unique_ptr<MapGesture>(TDepthList&, const GesturePress&);
  void Drag(Press* press, DepthPoint from, DepthPoint to, GestureKeys keys = {}) {
    const auto gesture = press(list, {from, keys, 4});
    if (!gesture) return;
    if (!(from == to)) {
      gesture->MoveTo({(from.x + to.x) / 2, from.y}, kNone);
      gesture->MoveTo(to, keys);
    }
    gesture->Finish();
  }
  void Click(Press* press, DepthPoint at, GestureKeys keys = {}) { Drag(press, at, at, keys); }
  // The levels of what is selected in the order of its selection.
  std::string Selected() const {
    std::string levels;
    for (const TDepthObj* object : list.Selection()) levels += std::to_string(object->GetLevel());
    return levels;
  }
  // Left and top of the objects with levels 1, 2, 3 and 0.
  std::string Places() const {
    std::string places;
    for (const TDepthObj* object : Upwards()) {
      const PixelRect box = object->GetRect().Normalised();
      places += std::to_string(box.left) + "," + std::to_string(box.top) + " ";
    }
    return places;
  }
  std::vector<const TDepthObj*> Upwards() const {
    std::vector<const TDepthObj*> all = ObjectsAboveBackground(list);
    return {all.rbegin(), all.rend()};
  }

  TDepthList list{100, 100};
};

TEST_F(MapGestures, ClicksSelectAddTakeOutAndReachWhatIsCovered) {
  for (Press* press : {&PressToSelect, &PressToMove}) {
    Click(press, {45, 45});
    EXPECT_EQ(Selected(), "2");
    Click(press, {45, 45}, kAlt);
    EXPECT_EQ(Selected(), "1");
    Click(press, {30, 88}, kShift);
    EXPECT_EQ(Selected(), "13") << "a line is reached from beside it";
    Click(press, {60, 60}, kShift);
    EXPECT_EQ(Selected(), "132");
    Click(press, {22, 22}, kShift);
    EXPECT_EQ(Selected(), "32");
    Click(press, {5, 5}, kShift);
    EXPECT_EQ(Selected(), "32") << "Shift on empty ground changes nothing";
    Click(press, {5, 5});
    EXPECT_EQ(Selected(), press == &PressToSelect ? "0" : "");
    EXPECT_TRUE(list.IsSaved());
  }
  Click(&PressToMove, {5, 80});
  EXPECT_EQ(Selected(), "") << "too far from the line";
}

TEST_F(MapGestures, AFrameSelectsWhatLiesInItAsAWhole) {
  for (Press* press : {&PressToSelect, &PressToMove}) {
    Drag(press, {95, 99}, {5, 10});
    EXPECT_EQ(Selected(), "321");
    Drag(press, {5, 10}, {79, 79});
    EXPECT_EQ(Selected(), "1");
    Drag(press, {99, 99}, {5, 88}, kShift);
    EXPECT_EQ(Selected(), "13");
    const auto gesture = press(list, {{95, 30}, kNone, 4});
    gesture->MoveTo({30, 99}, kNone);
    EXPECT_EQ(gesture->Frame(), (DepthRect{95, 30, 30, 99}));
    EXPECT_EQ(Selected(), "2");
    gesture->Cancel();
    EXPECT_EQ(Selected(), "13");
  }
}

TEST_F(MapGestures, ADragMovesAllThatIsSelectedInOneStep) {
  list.SelectAll(Upwards());
  Drag(&PressToMove, {60, 60}, {65, 53});
  EXPECT_EQ(Places(), "25,13 45,33 15,83 ");
  EXPECT_EQ(Selected(), "123");
  list.Undo();
  EXPECT_EQ(Places(), "20,20 40,40 10,90 ");
  EXPECT_TRUE(list.IsSaved());
  Click(&PressToMove, {60, 60});
  EXPECT_EQ(Selected(), "2") << "a click without a drag picks one of them";

  Drag(&PressToMove, {22, 22}, {42, 27});
  EXPECT_EQ(Places(), "40,25 40,40 10,90 ") << "what is not selected is picked and moved";
  list.Undo();
  const auto gesture = PressToMove(list, {{60, 60}, kNone, 4});
  gesture->MoveTo({90, 62}, kShift);
  EXPECT_EQ(Places(), "20,20 70,40 10,90 ") << "Shift keeps to the axis";
  gesture->MoveTo({52, 70}, kShift);
  EXPECT_EQ(Places(), "20,20 31,49 10,90 ") << "and to the diagonal";
  gesture->Cancel();
  EXPECT_EQ(Places(), "20,20 40,40 10,90 ");
  EXPECT_TRUE(list.IsSaved());
}

TEST_F(MapGestures, TheBackgroundMovesOnlyWithControl) {
  Drag(&PressToMove, {5, 5}, {10, 15});
  EXPECT_EQ(list.Background()->GetRect(), (DepthRect{0, 0, 100, 100}));
  Drag(&PressToMove, {5, 5}, {10, 15}, kControl);
  EXPECT_EQ(list.Background()->GetRect(), (DepthRect{5, 10, 105, 110}));
}

TEST_F(MapGestures, StepsOfAHeldKeyAreOneStep) {
  list.Select(list.Head());
  for (int press = 0; press < 2; ++press) {
    for (int n = 0; n < 5; ++n) {
      list.BeginEdit(EditKind::kMove);
      ShiftSelection(list, {1, 0});
      list.EndEdit(n > 0);
      if (press == 1 && n == 2) list.MarkSaved();
    }
  }
  const auto left = [&] { return list.Head()->GetRect().x1; };
  std::vector<std::int32_t> lefts;
  for (; list.UndoKind() == EditKind::kMove; list.Undo()) lefts.push_back(left());
  EXPECT_EQ(lefts, (std::vector<std::int32_t>{20, 18, 15})) << "what was saved is a step's end";
  EXPECT_EQ(left(), 10);
}

TEST_F(MapGestures, TabGoesRoundOverTheBackground) {
  std::string levels;
  const TDepthObj* object = nullptr;
  for (int n = 0; n < 4; ++n) {
    object = NextObject(list, object, false);
    levels += std::to_string(object->GetLevel());
  }
  for (int n = 0; n < 4; ++n) {
    object = NextObject(list, object, true);
    levels += std::to_string(object->GetLevel());
  }
  EXPECT_EQ(levels, "32131231");
  EXPECT_EQ(NextObject(TDepthList(9, 9), nullptr, false), nullptr);
}

}  // namespace
}  // namespace plenovia
