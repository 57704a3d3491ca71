#include "depthmap/map_history.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <vector>

#include "depthmap/depth_map_file.h"
#include "depthmap/tests/random_edit.h"
#include "platform/random.h"

namespace plenovia {
namespace {

constexpr int kSide = 60;

std::unique_ptr<TDepthObj> RandomObject(Random& random) {
  const auto at = [&] { return random.Int(-10, kSide + 10); };
  const DepthRect rect{at(), at(), at(), at()};
  auto object = std::make_unique<TDepthObj>(
      nullptr, rect, static_cast<DepthObjKind>(random.Int(0, 7)), random.Int(0, 255));
  std::vector<DepthPoint> vertices;
  for (int n = random.Int(0, 6); n > 0; --n) vertices.push_back({at(), at()});
  object->SetPoints(vertices);
  return object;
}

// Everything that a file keeps of a list, and its levels.
struct State {
  explicit State(const TDepthList& list)
      : file(EncodeDepthMap(list).value()), levels(std::size_t{kSide} * kSide) {
    for (int y = 0; y < kSide; ++y) {
      list.LevelRow(y, std::span(levels).subspan(static_cast<std::size_t>(y) * kSide, kSide));
    }
    width = list.GetWidth();
  }
  bool operator==(const State&) const = default;

  ByteBuffer file;
  std::vector<std::int32_t> levels;
  std::int64_t width = 0;
};

const TDepthObj* AnyOf(const TDepthList& list, Random& random) {
  auto* object = list.Head();
  for (auto n = random.Int(0, static_cast<int>(list.CountObjects()) - 1); n > 0; --n) {
    object = TDepthList::Below(*object);
  }
  return object;
}

void ChangeAtRandom(TDepthList& list, Random& random) {
  switch (random.Int(0, 8)) {
    case 0:
      list.InsertAbove(AnyOf(list, random), RandomObject(random));
      break;
    case 1:
      list.Remove(AnyOf(list, random));
      break;
    case 2:
      list.PutAbove(AnyOf(list, random), AnyOf(list, random));
      break;
    case 3:
      list.SetGeometry(AnyOf(list, random), RandomObject(random)->GetGeometry());
      break;
    case 4:
      list.SetSize(random.Int(kSide, 99), kSide);
      break;
    case 5: {
      const std::vector<const TDepthObj*> some{AnyOf(list, random), AnyOf(list, random)};
      list.SelectAll(some);
      break;
    }
    default:
      list.SetCurrentLevel(random.Int(0, 255));
      EditAtRandom(list, random, RandomObject(random), AnyOf(list, random));
  }
}

TEST(MapHistory, EveryStateIsReachedAgainByUndoAndRedo) {
  for (const std::uint32_t seed : {1u, 2u, 3u}) {
    Random random(seed);
    TDepthList list(kSide, kSide);
    list.KeepHistory();
    std::vector<State> states{State(list)};  // before each step that can be undone, and now
    std::size_t now = 0;
    const auto walk = [&](bool back) {
      const auto kind = back ? list.UndoKind() : list.RedoKind();
      const bool possible = back ? now > 0 : now + 1 < states.size();
      ASSERT_EQ(kind.has_value(), possible);
      back ? list.Undo() : list.Redo();
      if (!possible) return;
      now = back ? now - 1 : now + 1;
      ASSERT_EQ(State(list), states[now]);
    };
    for (int step = 0; step < 3000; ++step) {
      if (random.Int(0, 2) == 0) {
        ASSERT_NO_FATAL_FAILURE(walk(random.Int(0, 2) != 0)) << "step " << step;
        continue;
      }
      const State before = State(list);
      const bool takenBack = random.Int(0, 9) == 0;
      list.MarkSaved();
      list.BeginEdit(EditKind::kMove);
      for (int n = random.Int(1, 4); n > 0; --n) ChangeAtRandom(list, random);
      if (takenBack) list.TakeBackEdit();
      list.EndEdit();
      const State after = State(list);
      ASSERT_TRUE(!takenBack || list.IsSaved());
      if (list.IsSaved()) {
        ASSERT_EQ(after, before) << "step " << step;
      } else {
        states.resize(++now, before);
        states.push_back(after);
      }
    }
    while (list.UndoKind()) ASSERT_NO_FATAL_FAILURE(walk(true));
    while (list.RedoKind()) ASSERT_NO_FATAL_FAILURE(walk(false));
  }
}

TEST(MapHistory, ADragIsOneStepAndBackToItsStartNone) {
  TDepthList list(kSide, kSide);
  list.KeepHistory();
  list.AddObject(std::make_unique<TDepthObj>(nullptr, DepthRect{5, 5, 9, 9}, SquareBoxObj, 7));
  list.Select(list.Head());
  list.MarkSaved();
  const auto drag = [&](std::vector<int> ways) {
    const MapEdit edit(list, EditKind::kMove);
    for (const int way : ways) list.MoveSelectedTo(list.Selected()->GetRect().Shifted(way, 0));
  };
  drag({3, 4, -7});
  EXPECT_TRUE(list.IsSaved());
  EXPECT_EQ(list.UndoKind(), EditKind::kDraw);
  drag({1, 2, 3});
  EXPECT_FALSE(list.IsSaved());
  EXPECT_EQ(list.UndoKind(), EditKind::kMove);
  list.Undo();
  EXPECT_EQ(list.Head()->GetRect(), (DepthRect{5, 5, 9, 9}));
  EXPECT_TRUE(list.IsSaved());
  list.Undo();
  EXPECT_FALSE(list.IsSaved());
  EXPECT_EQ(list.CountObjects(), 1);
  list.Redo();
  EXPECT_TRUE(list.IsSaved());
  EXPECT_EQ(list.Selected(), list.Head());
  // Another way from the saved state: what was saved can no longer be reached.
  list.Undo();
  list.SetObjectLevel(list.Background(), 9);
  EXPECT_FALSE(list.RedoKind());
  list.Undo();
  EXPECT_FALSE(list.IsSaved());
}

TEST(MapHistory, TheOldestStepsGoWhenTheMemoryIsUsedUp) {
  TDepthList list(kSide, kSide);
  constexpr std::size_t kMemory = 20000;
  list.KeepHistory(kMemory);
  for (int level = 1; level <= 1000; ++level) list.SetObjectLevel(list.Head(), level);
  int steps = 0;
  for (; list.UndoKind(); ++steps) list.Undo();
  EXPECT_GT(steps, 50);
  EXPECT_LT(static_cast<std::size_t>(steps), kMemory / sizeof(ListChange));
  EXPECT_EQ(list.Head()->GetLevel(), 1000 - steps);
  for (int step = 0; step < steps; ++step) list.Redo();
  EXPECT_EQ(list.Head()->GetLevel(), 1000);
}

}  // namespace
}  // namespace plenovia
