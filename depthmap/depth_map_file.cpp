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

DepthMapContents ReadRecords(Int32Reader in, std::int32_t count) {
  std::vector<std::unique_ptr<TDepthObj>> objects;
  bool damaged = false;
  for (std::int32_t i = 0; i < count; ++i) {
    const bool missing = in.AtEnd();
    objects.push_back(NewRecord());
    if (!objects.back()->ReadFrom(in)) damaged = true;
    if (missing) break;
  }
  DepthMapContents contents{TDepthList(std::move(objects)), damaged};
  contents.list.MarkSaved();
  return contents;
}

}  // namespace

Result<DepthMapContents> DecodeDepthMap(std::span<const std::uint8_t> bytes) {
  std::int32_t count = 0;
  const bool magic =
      bytes.size() > kCountOffset && std::equal(kMagic.begin(), kMagic.end(), bytes.begin());
  Int32Reader in(bytes.subspan(magic ? kCountOffset : bytes.size()));
  if (!in.Read(count) || count < 1) {
    return Failure(ErrorCode::kCorrupt, "Invalid Depth Map file");
  }
  try {
    return ReadRecords(in, count);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "not enough memory for the depth map");
  }
}

Result<ByteBuffer> EncodeDepthMap(const TDepthList& list) {
  const std::int64_t count = list.CountObjects();
  if (count < 1) return Failure(ErrorCode::kInvalid, "a depth map without a size cannot be saved");
  if (count > std::numeric_limits<std::int32_t>::max()) {
    return Failure(ErrorCode::kTooLarge, "the depth map has too many objects");
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
    return Failure(ErrorCode::kTooLarge, "not enough memory for the depth map");
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
    return Failure(ErrorCode::kTooLarge, "the depth map is too large to be saved");
  }
  Result<void> written = WriteFile(path, std::span<const std::uint8_t>(*bytes));
  if (written) list.MarkSaved();
  return written;
}

}  // namespace plenovia
