#include "depthmap/depth_map_file.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <new>
#include <utility>
#include <vector>

#include "platform/file_io.h"

namespace plenovia {

namespace {

constexpr std::array<std::uint8_t, 9> kMagic{'D', 'E', 'P', 'T', 'H', 'M', 'A', 'P', 0};
constexpr std::size_t kVersionOffset = 16;
constexpr std::size_t kCountOffset = 17;
constexpr std::uint8_t kVersion = 1;

std::unique_ptr<TDepthObj> NewRecord() {
  return std::make_unique<TDepthObj>(nullptr, DepthRect{}, LineObj, 0);
}

tl::unexpected<Error> Invalid() {
  return Failure(ErrorCode::kCorrupt, "The file is not a valid depth map.");
}

// How far to the right and down an object reaches from (0, 0), at most kMaxSide.
DepthPoint Reach(const TDepthObj& object) {
  DepthPoint reach{0, 0};
  const auto include = [&](std::int32_t x, std::int32_t y) {
    reach.x = std::clamp(x, reach.x, kMaxSide);
    reach.y = std::clamp(y, reach.y, kMaxSide);
  };
  const DepthRect rect = object.GetRect();
  include(rect.x1, rect.y1);
  include(rect.x2, rect.y2);
  for (const DepthPoint& point : object.GetPoints()) include(point.x, point.y);
  return reach;
}

// Ends a list whose background is missing with a box from (0, 0) around all objects, unless its
// last one is that already. False when the objects cover nothing.
bool AddBackground(std::vector<std::unique_ptr<TDepthObj>>& objects) {
  DepthPoint all{0, 0};
  for (const auto& object : objects) {
    const DepthPoint reach = Reach(*object);
    all = {std::max(all.x, reach.x), std::max(all.y, reach.y)};
  }
  const DepthRect box{0, 0, all.x, all.y};
  if (all.x < 1 || all.y < 1) return false;
  if (objects.back()->GetKind() != SquareBoxObj || objects.back()->GetRect() != box) {
    objects.push_back(std::make_unique<TDepthObj>(nullptr, box, SquareBoxObj, 0));
  }
  return true;
}

Result<DepthMapContents> ReadRecords(Int32Reader in, std::int32_t count) {
  std::vector<std::unique_ptr<TDepthObj>> objects;
  bool damaged = false;
  bool lastIsWhole = true;
  for (std::int32_t i = 0; i < count && !in.AtEnd(); ++i) {
    objects.push_back(NewRecord());
    lastIsWhole = objects.back()->ReadFrom(in);
    damaged = damaged || !lastIsWhole;
  }
  if (!lastIsWhole && Reach(*objects.back()) == DepthPoint{0, 0}) objects.pop_back();
  if (std::ssize(objects) < count || !lastIsWhole) {
    damaged = true;
    if (!AddBackground(objects)) return Invalid();
  }
  DepthMapContents contents{TDepthList(std::move(objects)), damaged};
  contents.list.MarkSaved();
  return contents;
}

}  // namespace

bool LooksLikeDepthMap(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t kLetters = kMagic.size() - 1;
  return bytes.size() >= kLetters && std::equal(kMagic.begin(), kMagic.end() - 1, bytes.begin());
}

Result<DepthMapContents> DecodeDepthMap(std::span<const std::uint8_t> bytes) {
  std::int32_t count = 0;
  const bool magic =
      bytes.size() > kCountOffset && std::equal(kMagic.begin(), kMagic.end(), bytes.begin());
  Int32Reader in(bytes.subspan(magic ? kCountOffset : bytes.size()));
  if (!in.Read(count) || count < 1) return Invalid();
  if (bytes.size() > kMaxDepthMapBytes) {
    return Failure(ErrorCode::kTooLarge, "The file is too large for a depth map.");
  }
  try {
    return ReadRecords(in, count);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory for the depth map.");
  }
}

Result<ByteBuffer> EncodeDepthMap(const TDepthList& list) {
  const std::int64_t count = list.CountObjects();
  if (count < 1) return Failure(ErrorCode::kInvalid, "A depth map without a size cannot be saved.");
  if (count > std::numeric_limits<std::int32_t>::max()) {
    return Failure(ErrorCode::kTooLarge, "The depth map has too many objects.");
  }
  try {
    ByteBuffer bytes(kMagic.begin(), kMagic.end());
    bytes.resize(kVersionOffset);
    std::fill(bytes.begin() + kMagic.size(), bytes.end(), std::uint8_t{0});
    bytes.push_back(kVersion);
    Put32(bytes, static_cast<std::uint32_t>(count));
    for (const TDepthObj* object = list.Head(); object != nullptr;
         object = TDepthList::Below(*object)) {
      object->WriteTo(bytes);
    }
    return bytes;
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory for the depth map.");
  }
}

Result<DepthMapContents> ReadDepthMap(const std::filesystem::path& path) {
  return ReadFile(path, kMaxDepthMapBytes).and_then([](const ByteBuffer& bytes) {
    return DecodeDepthMap(bytes);
  });
}

Result<void> WriteDepthMap(TDepthList& list, const std::filesystem::path& path) {
  const Result<ByteBuffer> bytes = EncodeDepthMap(list);
  if (!bytes) return tl::unexpected(bytes.error());
  if (bytes->size() > kMaxDepthMapBytes) {
    return Failure(ErrorCode::kTooLarge, "The depth map is too large to be saved.");
  }
  Result<void> written = WriteFile(path, std::span<const std::uint8_t>(*bytes));
  if (written) list.MarkSaved();
  return written;
}

}  // namespace plenovia
