// Copies within a row in blocks of 16 pixels that leave nothing but the asked pixels changed.
#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/byte_lanes.h"

namespace plenovia {

inline constexpr std::ptrdiff_t kBlock = kByteLanes;

namespace block_copy_detail {

// Sixteen set bytes between two times sixteen clear ones.
inline constexpr struct Masks {
  alignas(16) std::uint8_t bytes[48] = {};
  constexpr Masks() {
    for (int i = 16; i < 32; ++i) bytes[i] = 0xff;
  }
} kMasks;
inline ByteLanes FirstBytes(std::ptrdiff_t count) {
  return LoadLanes(kMasks.bytes + 32 - count);
}
inline ByteLanes LastBytes(std::ptrdiff_t count) {
  return LoadLanes(kMasks.bytes + count);
}

inline void StoreWhere(ByteLanes mask, std::uint8_t* to, ByteLanes lanes) {
  StoreLanes(to, (LoadLanes(to) & ~mask) | (lanes & mask));
}

}  // namespace block_copy_detail

// All of these read and may rewrite unchanged up to 15 bytes beyond what they are asked to copy.

// Whether pixels copied one by one in ascending order, each to a place `distance` further right,
// come out the same in blocks; and in descending order.
inline bool AscendingInBlocks(std::ptrdiff_t distance) {
  return distance >= kBlock || distance <= 0;
}
inline bool DescendingInBlocks(std::ptrdiff_t distance) {
  return distance <= -kBlock || distance >= 0;
}

// to[i] = from[i] for i = 0, 1, ..., count-1; AscendingInBlocks(to - from) holds.
inline void CopyAscending(std::uint8_t* to, const std::uint8_t* from, std::ptrdiff_t count) {
  using namespace block_copy_detail;
  for (; count > kBlock; count -= kBlock, to += kBlock, from += kBlock)
    StoreLanes(to, LoadLanes(from));
  if (count > 0) StoreWhere(FirstBytes(count), to, LoadLanes(from));
}

// to[-i] = from[-i] for i = 1, 2, ..., count; DescendingInBlocks(to - from) holds.
inline void CopyDescending(std::uint8_t* to, const std::uint8_t* from, std::ptrdiff_t count) {
  using namespace block_copy_detail;
  for (; count > kBlock; count -= kBlock) {
    to -= kBlock;
    from -= kBlock;
    StoreLanes(to, LoadLanes(from));
  }
  if (count > 0) StoreWhere(LastBytes(count), to - kBlock, LoadLanes(from - kBlock));
}

}  // namespace plenovia
