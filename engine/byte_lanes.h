// Sixteen bytes that are worked on together, by the vector extension of GCC and Clang.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>

namespace plenovia {

using ByteLanes = std::uint8_t __attribute__((vector_size(16)));
inline constexpr std::size_t kByteLanes = 16;

inline ByteLanes LoadLanes(const std::uint8_t* from) {
  ByteLanes lanes;
  std::memcpy(&lanes, from, sizeof(lanes));
  return lanes;
}

inline void StoreLanes(std::uint8_t* to, ByteLanes lanes) {
  std::memcpy(to, &lanes, sizeof(lanes));
}

inline ByteLanes SameLanes(std::uint8_t value) {
  return ByteLanes{} + value;
}

inline ByteLanes Min(ByteLanes a, ByteLanes b) {
  return a < b ? a : b;
}
inline ByteLanes Max(ByteLanes a, ByteLanes b) {
  return a > b ? a : b;
}
inline ByteLanes AbsDifference(ByteLanes a, ByteLanes b) {
  return Max(a, b) - Min(a, b);
}

inline std::uint8_t LowestLane(ByteLanes lanes) {
  using Words = std::uint64_t __attribute__((vector_size(16)));
  Words words;
  std::memcpy(&words, &lanes, sizeof(words));
  const auto lower = [&lanes](Words moved) {
    ByteLanes other;
    std::memcpy(&other, &moved, sizeof(other));
    lanes = Min(lanes, other);
    std::memcpy(&moved, &lanes, sizeof(moved));
    return moved;
  };
  words = lower(Words{words[1], words[0]});
  // The lowest byte of the low word: the other bytes of it lose their meaning on the way.
  for (const int bits : {32, 16, 8}) words = lower(words >> static_cast<unsigned>(bits));
  return lanes[0];
}

}  // namespace plenovia
