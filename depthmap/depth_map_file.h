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

// Whether the bytes begin like a depth map.
bool LooksLikeDepthMap(std::span<const std::uint8_t> bytes);

// kCorrupt when the magic is wrong or there is no count of at
// least 1.
//
// A file that breaks its format behind that is read as far as it goes, and `damaged` is set; the
// caller tells the user. When it ends early, the objects keep what was read of them; the size is
// then that of the smallest box from (0, 0) around all of them (32767 a side at most), which
// becomes the background unless the last object read is that box. kCorrupt when nothing covers a
// point. A vertex count below 0 counts as 0. Bytes behind the last record are ignored.
[[nodiscard]] Result<DepthMapContents> DecodeDepthMap(std::span<const std::uint8_t> bytes);

[[nodiscard]] Result<ByteBuffer> EncodeDepthMap(const TDepthList& list);

// The same for files of at most kMaxDepthMapBytes. WriteDepthMap marks the list saved on success.
[[nodiscard]] Result<DepthMapContents> ReadDepthMap(const std::filesystem::path& path);
[[nodiscard]] Result<void> WriteDepthMap(TDepthList& list, const std::filesystem::path& path);

}  // namespace plenovia
