#include "sources/mesh.h"

#include <cmath>
#include <new>
#include <stdexcept>

#include "platform/ascii.h"

namespace plenovia {

namespace {

constexpr std::size_t kStlHeader = 84;
constexpr std::size_t kStlTriangle = 50;

bool BeginsWith(std::span<const std::uint8_t> bytes, std::string_view text) {
  return bytes.size() >= text.size() &&
         std::string_view(reinterpret_cast<const char*>(bytes.data()), text.size()) == text;
}

bool IsBinaryStl(std::span<const std::uint8_t> bytes) {
  if (bytes.size() < kStlHeader) return false;
  const std::size_t count = std::size_t{bytes[80]} | std::size_t{bytes[81]} << 8 |
                            std::size_t{bytes[82]} << 16 | std::size_t{bytes[83]} << 24;
  return bytes.size() == kStlHeader + count * kStlTriangle;
}

Result<Mesh> Checked(Result<Mesh> mesh) {
  if (!mesh) return mesh;
  for (const Corner& corner : mesh->corners) {
    if (std::isfinite(corner.x) && std::isfinite(corner.y) && std::isfinite(corner.z)) continue;
    return Failure(ErrorCode::kCorrupt, "The model has a corner that is no number.");
  }
  if (mesh->triangles.empty()) return Failure(ErrorCode::kInvalid, "The model has no surface.");
  return mesh;
}

}  // namespace

ModelFormat ModelFormatOf(std::span<const std::uint8_t> bytes, std::string_view name) {
  if (BeginsWith(bytes, "ply\n") || BeginsWith(bytes, "ply\r")) return ModelFormat::kPly;
  if (BeginsWith(bytes, "solid ") || IsBinaryStl(bytes)) return ModelFormat::kStl;
  const std::string lower = AsciiLower(name);
  if (lower.ends_with(".obj")) return ModelFormat::kObj;
  if (lower.ends_with(".stl")) return ModelFormat::kStl;
  return lower.ends_with(".ply") ? ModelFormat::kPly : ModelFormat::kNone;
}

Result<Mesh> DecodeModel(ModelFormat format, std::span<const std::uint8_t> bytes) {
  try {
    switch (format) {
      case ModelFormat::kStl:
        return Checked(DecodeStl(bytes));
      case ModelFormat::kObj:
        return Checked(DecodeObj(bytes));
      case ModelFormat::kPly:
        return Checked(DecodePly(bytes));
      case ModelFormat::kNone:
        break;
    }
    return Failure(ErrorCode::kUnsupported, "This is no model.");
  } catch (const std::bad_alloc&) {
  } catch (const std::length_error&) {
  }
  return Failure(ErrorCode::kTooLarge, "There is not enough memory for the model.");
}

}  // namespace plenovia
