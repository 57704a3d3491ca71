// Surfaces of triangles, and the files that they come from.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "platform/result.h"

namespace plenovia {

inline constexpr std::size_t kMostTriangles = 4'000'000;

struct Corner {
  float x = 0;
  float y = 0;
  float z = 0;
};

// y points up, x to the right and z at the viewer. Corners are finite, and triangles name corners
// that there are.
struct Mesh {
  std::vector<Corner> corners;
  std::vector<std::array<std::uint32_t, 3>> triangles;
};

enum class ModelFormat { kNone, kStl, kObj, kPly };

// STL and PLY by their first bytes; OBJ, which has no mark, by the extension of the file's name,
// and so STL when it has none either.
ModelFormat ModelFormatOf(std::span<const std::uint8_t> bytes, std::string_view name);

// Reads a model. STL, which has z up by custom, is turned. Polygons are cut into triangles from
// their first corner. Fails with kCorrupt for what breaks its format, ends early, names corners
// that there are not or has corners that are no numbers, kInvalid for a model without triangles,
// kUnsupported, and kTooLarge beyond kMostTriangles or the memory.
[[nodiscard]] Result<Mesh> DecodeModel(ModelFormat format, std::span<const std::uint8_t> bytes);

// One format each, as DecodeModel().
[[nodiscard]] Result<Mesh> DecodeStl(std::span<const std::uint8_t> bytes);
[[nodiscard]] Result<Mesh> DecodeObj(std::span<const std::uint8_t> bytes);
[[nodiscard]] Result<Mesh> DecodePly(std::span<const std::uint8_t> bytes);

}  // namespace plenovia
