// Depth-map files (.rds): the objects of a map, not its pixels.
//
// Little-endian, without padding: "DEPTHMAP", a 0 byte, 7 bytes without meaning, a version byte
// (1), the number of objects as int32, then one record an object, topmost first. A record is kind,
// level and the four corner values, all int32; a polygon has the number of its vertices and each
// vertex's x and y instead of the corners.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

#include "depthmap/depth_list.h"
#include "platform/pixel_buffer.h"
#include "platform/result.h"

namespace plenovia {

// Room for over a million shapes; keeps what a file can make of the memory below 1 GiB.
inline constexpr std::size_t kMaxDepthMapBytes = std::size_t{32} << 20;

struct DepthMapContents {
  TDepthList list;       // marked saved
  bool damaged = false;  // see DecodeDepthMap
};

// kCorrupt with "Invalid Depth Map file" when the magic is wrong or there is no count of at
// least 1.
//
// A file that breaks its format behind that is read as far as it goes, and `damaged` is set; the
// caller tells the user. When it ends early, the objects keep what was read of them (as a line of
// level 0 from (0, 0) to (0, 0) that covers nothing, where nothing was), and one such line stands
// at the end for all the records that are missing: the map then has no size and cannot be sampled
// as a picture, rather than taking some other shape for its background. A vertex count below 0
// counts as 0. Bytes behind the last record are passed over.
[[nodiscard]] Result<DepthMapContents> DecodeDepthMap(std::span<const std::uint8_t> bytes);

[[nodiscard]] Result<ByteBuffer> EncodeDepthMap(const TDepthList& list);

// The same for files of at most kMaxDepthMapBytes. WriteDepthMap marks the list saved on success.
[[nodiscard]] Result<DepthMapContents> ReadDepthMap(const std::filesystem::path& path);
[[nodiscard]] Result<void> WriteDepthMap(TDepthList& list, const std::filesystem::path& path);

}  // namespace plenovia
