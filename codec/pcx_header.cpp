#include "codec/pcx_header.h"

#include "codec/packed_bits.h"
#include "platform/limits.h"
#include "platform/little_endian.h"

namespace plenovia {

namespace {

// The best that run-length encoding does is 63 bytes in 2.
bool EnoughBytes(const PcxHeader& header, std::size_t bytes) {
  const std::size_t needed = header.LineBytes() * static_cast<std::size_t>(header.height);
  return header.runLength ? needed <= (bytes + 1) / 2 * 63 : needed <= bytes;
}

}  // namespace

Result<PcxHeader> ParsePcxHeader(std::span<const std::uint8_t> bytes) {
  if (bytes.size() < kPcxHeaderBytes) {
    return Failure(ErrorCode::kCorrupt, "the file is truncated");
  }
  PcxHeader header;
  header.version = bytes[1];
  header.runLength = bytes[2] == 1;
  header.bits = bytes[3];
  header.planes = bytes[65];
  header.planeBytes = Get16(bytes, 66);
  header.saysColour = Get16(bytes, 68) == 1;
  if (header.planes < 1 || header.planes > 4) {
    return Failure(ErrorCode::kUnsupported, "this number of PCX planes is not supported");
  }

  const int width = Get16(bytes, 8) - Get16(bytes, 4) + 1;
  const int height = Get16(bytes, 10) - Get16(bytes, 6) + 1;
  if (auto fits = CheckPictureSize(width, height); !fits) return tl::unexpected(fits.error());
  header.width = width;
  header.height = height;
  if (header.planeBytes < PackedBytes(static_cast<std::size_t>(width), header.bits)) {
    return Failure(ErrorCode::kCorrupt, "the file is damaged: its rows are too short");
  }
  if (!EnoughBytes(header, bytes.size() - kPcxHeaderBytes)) {
    return Failure(ErrorCode::kCorrupt, "the file is truncated");
  }
  return header;
}

}  // namespace plenovia
