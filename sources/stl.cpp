// STL files, in binary and in words.

#include <bit>
#include <cstring>

#include "sources/mesh.h"
#include "sources/words.h"

namespace plenovia {

namespace {

constexpr std::size_t kHeader = 84;
constexpr std::size_t kTriangle = 50;  // a normal, three corners and two bytes more

tl::unexpected<Error> TooMany() {
  return Failure(ErrorCode::kTooLarge, "The model has too many triangles.");
}

// With y up.
Corner Upright(float x, float y, float z) {
  return {x, z, -y};
}

void Append(Mesh& mesh, const std::array<Corner, 3>& corners) {
  const auto first = static_cast<std::uint32_t>(mesh.corners.size());
  mesh.corners.insert(mesh.corners.end(), corners.begin(), corners.end());
  mesh.triangles.push_back({first, first + 1, first + 2});
}

float FloatAt(const std::uint8_t* bytes) {
  const std::uint32_t word = std::uint32_t{bytes[0]} | std::uint32_t{bytes[1]} << 8 |
                             std::uint32_t{bytes[2]} << 16 | std::uint32_t{bytes[3]} << 24;
  return std::bit_cast<float>(word);
}

Result<Mesh> DecodeBinary(std::span<const std::uint8_t> bytes) {
  const std::size_t count = (bytes.size() - kHeader) / kTriangle;
  if (count > kMostTriangles) return TooMany();
  Mesh mesh;
  mesh.corners.reserve(3 * count);
  mesh.triangles.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint8_t* at = bytes.data() + kHeader + i * kTriangle + 12;  // behind the normal
    std::array<Corner, 3> corners;
    for (Corner& corner : corners) {
      corner = Upright(FloatAt(at), FloatAt(at + 4), FloatAt(at + 8));
      at += 12;
    }
    Append(mesh, corners);
  }
  return mesh;
}

// Only the corners count: "vertex x y z", three in a "facet".
Result<Mesh> DecodeWords(std::span<const std::uint8_t> bytes) {
  Mesh mesh;
  Words words(bytes);
  std::array<Corner, 3> corners;
  std::size_t count = 0;
  bool ended = false;
  for (std::string_view word = words.Next(); !word.empty(); word = words.Next()) {
    ended = word == "endsolid";
    if (word == "endfacet") {
      if (count != 3)
        return Failure(ErrorCode::kCorrupt, "The STL file has a facet of not three corners.");
      if (mesh.triangles.size() == kMostTriangles) return TooMany();
      Append(mesh, corners);
      count = 0;
    }
    if (word != "vertex") continue;
    const auto x = words.NextNumber<float>();
    const auto y = words.NextNumber<float>();
    const auto z = words.NextNumber<float>();
    if (!x || !y || !z || count == 3) {
      return Failure(ErrorCode::kCorrupt, "The STL file has a corner that makes no sense.");
    }
    corners[count++] = Upright(*x, *y, *z);
  }
  if (count != 0 || (!ended && mesh.triangles.empty())) {
    return Failure(ErrorCode::kCorrupt, "The STL file is truncated or damaged.");
  }
  return mesh;
}

}  // namespace

Result<Mesh> DecodeStl(std::span<const std::uint8_t> bytes) {
  if (bytes.size() >= kHeader) {
    const std::size_t count = std::size_t{bytes[80]} | std::size_t{bytes[81]} << 8 |
                              std::size_t{bytes[82]} << 16 | std::size_t{bytes[83]} << 24;
    if (bytes.size() == kHeader + count * kTriangle) return DecodeBinary(bytes);
  }
  constexpr std::string_view kSolid = "solid";
  if (bytes.size() >= kSolid.size() &&
      std::memcmp(bytes.data(), kSolid.data(), kSolid.size()) == 0) {
    return DecodeWords(bytes);
  }
  return Failure(ErrorCode::kCorrupt, "The STL file is truncated or damaged.");
}

}  // namespace plenovia
