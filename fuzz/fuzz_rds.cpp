// Depth-map files: what decodes can be sampled both ways and written and read again.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <span>
#include <vector>

#include "depthmap/depth_map_file.h"

namespace plenovia {
namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

void CompareRow(const TDepthList& list, int y) {
  std::vector<std::int32_t> levels(
      std::clamp<std::size_t>(static_cast<std::size_t>(std::max(list.GridWidth(), 0)), 1, 2000));
  list.LevelRow(y, levels);
  const std::size_t step = levels.size() / 16 + 1;
  for (std::size_t x = 0; x < levels.size(); x += step) {
    Require(levels[x] == list.GetLevelAt(static_cast<std::int32_t>(x), y));
  }
}

bool SameObjects(const TDepthList& a, const TDepthList& b) {
  const TDepthObj* x = a.Head();
  const TDepthObj* y = b.Head();
  for (; x != nullptr && y != nullptr; x = TDepthList::Below(*x), y = TDepthList::Below(*y)) {
    if (x->GetKind() != y->GetKind() || x->GetLevel() != y->GetLevel() ||
        x->GetRect() != y->GetRect() ||
        !std::equal(x->GetPoints().begin(), x->GetPoints().end(), y->GetPoints().begin(),
                    y->GetPoints().end())) {
      return false;
    }
  }
  return x == y;
}

void Try(std::span<const std::uint8_t> bytes) {
  Result<DepthMapContents> decoded = DecodeDepthMap(bytes);
  if (!decoded) return;
  TDepthList& list = decoded->list;
  Require(list.CountObjects() >= 1);
  Require(list.CountObjects() <= static_cast<std::int64_t>(bytes.size()));
  const int height = std::max(list.GridHeight(), 1);
  constexpr int kLow = std::numeric_limits<int>::min();
  for (const int y : {0, 1, height / 3, height / 2, height - 1, kLow, kLow + height / 3}) {
    CompareRow(list, y);
  }
  for (const TDepthObj* o = list.Head(); o != nullptr; o = TDepthList::Below(*o)) {
    if (const Region* region = o->GetRegion()) {
      for (const std::int64_t y : {region->Bounds().top, std::int64_t{height / 2}}) {
        Require(DifferenceOf(region->FrameSpans(y), region->Spans(y)).empty());
      }
    }
  }

  const Result<ByteBuffer> written = EncodeDepthMap(list);
  Require(written.has_value());
  const Result<DepthMapContents> again = DecodeDepthMap(*written);
  Require(again.has_value() && !again->damaged);
  Require(SameObjects(list, again->list));
  Require(again->list.GetWidth() == list.GetWidth());

  const DepthRect before = list.Head()->GetRect();
  list.Select(list.Head());
  list.CmMoveDown();
  list.MoveSelectedTo({before.y1, before.x1, before.y2, before.x2});
  CompareRow(list, height / 2);
  list.CmDelete();
  CompareRow(list, height / 2);
}

}  // namespace
}  // namespace plenovia

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  plenovia::Try({data, size});
  return 0;
}
