// As many bytes as the vector registers of the processor hold, worked on together. The processor is
// the one that a source file is compiled for, so everything here belongs to one file alone.
#pragma once

#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace plenovia {
namespace {

#if defined(__AVX512BW__)
inline constexpr std::size_t kByteLanes = 64;
#elif defined(__AVX2__)
inline constexpr std::size_t kByteLanes = 32;
#else
inline constexpr std::size_t kByteLanes = 16;
#endif

// The vector extension of GCC and Clang: operators work lane by lane.
using ByteLanes = std::uint8_t __attribute__((vector_size(kByteLanes)));

inline ByteLanes LoadLanes(const std::uint8_t* from) {
  ByteLanes lanes;
  __builtin_memcpy(&lanes, from, sizeof(lanes));
  return lanes;
}

inline void StoreLanes(std::uint8_t* to, ByteLanes lanes) {
  __builtin_memcpy(to, &lanes, sizeof(lanes));
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

// MovedUp: the last lane of `below`, then all lanes of `lanes` but the last. MovedDown: all lanes
// of `lanes` but the first, then the first lane of `above`. LowestLane: the smallest, in all lanes.
// EqualLanes: bit i tells whether lane i of both is the same.
#if defined(__AVX512BW__)

inline ByteLanes MovedUp(ByteLanes below, ByteLanes lanes) {
  const auto a = reinterpret_cast<__m512i>(below);
  const auto b = reinterpret_cast<__m512i>(lanes);
  return reinterpret_cast<ByteLanes>(_mm512_alignr_epi8(b, _mm512_alignr_epi32(b, a, 12), 15));
}
inline ByteLanes MovedDown(ByteLanes lanes, ByteLanes above) {
  const auto a = reinterpret_cast<__m512i>(lanes);
  const auto b = reinterpret_cast<__m512i>(above);
  return reinterpret_cast<ByteLanes>(_mm512_alignr_epi8(_mm512_alignr_epi32(b, a, 4), a, 1));
}
inline ByteLanes LowestLane(ByteLanes lanes) {
  const auto all = reinterpret_cast<__m512i>(lanes);
  const __m256i half =
      _mm256_min_epu8(_mm512_castsi512_si256(all), _mm512_extracti64x4_epi64(all, 1));
  const __m128i quarter =
      _mm_min_epu8(_mm256_castsi256_si128(half), _mm256_extracti128_si256(half, 1));
  const __m128i words = _mm_min_epu8(quarter, _mm_srli_epi16(quarter, 8));
  return reinterpret_cast<ByteLanes>(_mm512_broadcastb_epi8(_mm_minpos_epu16(words)));
}
inline std::uint64_t EqualLanes(ByteLanes a, ByteLanes b) {
  return _mm512_cmpeq_epi8_mask(reinterpret_cast<__m512i>(a), reinterpret_cast<__m512i>(b));
}

#elif defined(__AVX2__)

inline ByteLanes MovedUp(ByteLanes below, ByteLanes lanes) {
  const auto a = reinterpret_cast<__m256i>(below);
  const auto b = reinterpret_cast<__m256i>(lanes);
  return reinterpret_cast<ByteLanes>(
      _mm256_alignr_epi8(b, _mm256_permute2x128_si256(a, b, 0x21), 15));
}
inline ByteLanes MovedDown(ByteLanes lanes, ByteLanes above) {
  const auto a = reinterpret_cast<__m256i>(lanes);
  const auto b = reinterpret_cast<__m256i>(above);
  return reinterpret_cast<ByteLanes>(
      _mm256_alignr_epi8(_mm256_permute2x128_si256(a, b, 0x21), a, 1));
}
inline ByteLanes LowestLane(ByteLanes lanes) {
  const auto all = reinterpret_cast<__m256i>(lanes);
  const __m128i half = _mm_min_epu8(_mm256_castsi256_si128(all), _mm256_extracti128_si256(all, 1));
  const __m128i words = _mm_min_epu8(half, _mm_srli_epi16(half, 8));
  return reinterpret_cast<ByteLanes>(_mm256_broadcastb_epi8(_mm_minpos_epu16(words)));
}
inline std::uint64_t EqualLanes(ByteLanes a, ByteLanes b) {
  return static_cast<std::uint32_t>(_mm256_movemask_epi8(reinterpret_cast<__m256i>(a == b)));
}

#elif defined(__SSE2__)

inline ByteLanes MovedUp(ByteLanes below, ByteLanes lanes) {
  return reinterpret_cast<ByteLanes>(
      _mm_or_si128(_mm_srli_si128(reinterpret_cast<__m128i>(below), 15),
                   _mm_slli_si128(reinterpret_cast<__m128i>(lanes), 1)));
}
inline ByteLanes MovedDown(ByteLanes lanes, ByteLanes above) {
  return reinterpret_cast<ByteLanes>(
      _mm_or_si128(_mm_srli_si128(reinterpret_cast<__m128i>(lanes), 1),
                   _mm_slli_si128(reinterpret_cast<__m128i>(above), 15)));
}
inline ByteLanes LowestLane(ByteLanes lanes) {
  auto all = reinterpret_cast<__m128i>(lanes);
  all = _mm_min_epu8(all, _mm_srli_si128(all, 8));
  all = _mm_min_epu8(all, _mm_srli_si128(all, 4));
  all = _mm_min_epu8(all, _mm_srli_si128(all, 2));
  all = _mm_min_epu8(all, _mm_srli_si128(all, 1));
  return SameLanes(static_cast<std::uint8_t>(_mm_cvtsi128_si32(all)));
}
inline std::uint64_t EqualLanes(ByteLanes a, ByteLanes b) {
  return static_cast<std::uint32_t>(_mm_movemask_epi8(reinterpret_cast<__m128i>(a == b)));
}

#else

inline ByteLanes MovedUp(ByteLanes below, ByteLanes lanes) {
  return __builtin_shufflevector(below, lanes, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27,
                                 28, 29, 30);
}
inline ByteLanes MovedDown(ByteLanes lanes, ByteLanes above) {
  return __builtin_shufflevector(lanes, above, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15,
                                 16);
}
inline ByteLanes LowestLane(ByteLanes lanes) {
  std::uint8_t lowest = lanes[0];
  for (std::size_t i = 1; i < kByteLanes; ++i) lowest = lanes[i] < lowest ? lanes[i] : lowest;
  return SameLanes(lowest);
}
inline std::uint64_t EqualLanes(ByteLanes a, ByteLanes b) {
  std::uint64_t equal = 0;
  for (std::size_t i = 0; i < kByteLanes; ++i) equal |= std::uint64_t{a[i] == b[i]} << i;
  return equal;
}

#endif

}  // namespace
}  // namespace plenovia
