// Objects on their way from one map to another, as a depth-map file that holds only them.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "depthmap/depth_obj.h"
#include "platform/pixel_buffer.h"
#include "platform/result.h"

namespace plenovia {

// The objects, at least one, topmost first.
[[nodiscard]] Result<ByteBuffer> EncodeObjects(std::vector<std::unique_ptr<TDepthObj>> objects);

// The objects of a depth-map file, topmost first. kCorrupt when it is not whole.
[[nodiscard]] Result<std::vector<std::unique_ptr<TDepthObj>>> DecodeObjects(
    std::span<const std::uint8_t> bytes);

}  // namespace plenovia
