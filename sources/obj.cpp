// OBJ files, read by tinyobjloader: only corners and faces count.

#include <tiny_obj_loader.h>

#include <istream>
#include <streambuf>

#include "sources/mesh.h"

namespace plenovia {

namespace {

// The bytes as a stream, without a copy of them.
class ByteStream : public std::streambuf {
 public:
  explicit ByteStream(std::span<const std::uint8_t> bytes) {
    // A stream that is only read leaves them as they are.
    auto* begin = const_cast<char*>(reinterpret_cast<const char*>(bytes.data()));
    setg(begin, begin, begin + bytes.size());
  }
};

// Takes what the reader finds; the first thing that is wrong stays.
struct Taken {
  Mesh mesh;
  Error wrong{};
  bool failed = false;

  void Fail(ErrorCode code, const char* message) {
    if (!failed) wrong = {code, message};
    failed = true;
  }

  // Faces count corners from 1, or back from the last one.
  void Face(std::span<const tinyobj::index_t> face) {
    std::array<std::uint32_t, 3> triangle{};
    const auto known = static_cast<std::int64_t>(mesh.corners.size());
    for (std::size_t i = 0; i < face.size() && !failed; ++i) {
      const std::int64_t named = face[i].vertex_index;
      const std::int64_t corner = named < 0 ? known + named : named - 1;
      if (corner < 0 || corner >= known) {
        return Fail(ErrorCode::kCorrupt, "The model has a face with a corner that there is not.");
      }
      triangle[i < 2 ? i : 2] = static_cast<std::uint32_t>(corner);
      if (i < 2) continue;
      if (mesh.triangles.size() == kMostTriangles) {
        return Fail(ErrorCode::kTooLarge, "The model has too many triangles.");
      }
      mesh.triangles.push_back(triangle);
      triangle[1] = triangle[2];
    }
  }
};

}  // namespace

Result<Mesh> DecodeObj(std::span<const std::uint8_t> bytes) {
  Taken taken;
  tinyobj::callback_t take;
  take.vertex_cb = [](void* to, float x, float y, float z, float) {
    static_cast<Taken*>(to)->mesh.corners.push_back({x, y, z});
  };
  take.index_cb = [](void* to, tinyobj::index_t* face, int count) {
    static_cast<Taken*>(to)->Face({face, static_cast<std::size_t>(count)});
  };
  ByteStream buffer(bytes);
  std::istream stream(&buffer);
  std::string warnings;
  std::string errors;
  const bool read = tinyobj::LoadObjWithCallback(stream, take, &taken, nullptr, &warnings, &errors);
  if (taken.failed) return tl::unexpected(taken.wrong);
  if (!read) return Failure(ErrorCode::kCorrupt, "The OBJ file makes no sense.");
  return std::move(taken.mesh);
}

}  // namespace plenovia
