// Models: read from each format, and seen as an exact ray caster sees them.
#include "sources/model.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <numbers>
#include <optional>
#include <string>

#include "platform/random.h"

namespace plenovia {
namespace {

std::vector<std::uint8_t> Bytes(const std::string& text) {
  return {text.begin(), text.end()};
}

// A ring around the upright axis with a bite taken out, so that no side looks like another.
Mesh Ring(int around, int across) {
  Mesh mesh;
  for (int i = 0; i < around; ++i) {
    for (int j = 0; j < across; ++j) {
      const double u = 2 * std::numbers::pi * i / around * 0.9;
      const double v = 2 * std::numbers::pi * j / across;
      const double r = 2 + 0.7 * std::cos(v);
      mesh.corners.push_back({static_cast<float>(r * std::cos(u)),
                              static_cast<float>(0.7 * std::sin(v)),
                              static_cast<float>(r * std::sin(u))});
    }
  }
  const auto at = [&](int i, int j) { return static_cast<std::uint32_t>(i * across + j % across); };
  for (int i = 0; i + 1 < around; ++i) {
    for (int j = 0; j < across; ++j) {
      mesh.triangles.push_back({at(i, j), at(i + 1, j), at(i + 1, j + 1)});
      mesh.triangles.push_back({at(i, j), at(i + 1, j + 1), at(i, j + 1)});
    }
  }
  return mesh;
}

void Append(std::string& file, float value, bool bigFirst) {
  auto word = std::bit_cast<std::uint32_t>(value);
  if (bigFirst) word = __builtin_bswap32(word);
  for (int i = 0; i < 4; ++i) file += static_cast<char>(word >> 8 * i & 255);
}

std::string Number(float value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.9g", double{value});
  return text;
}

// z is up in STL files.
std::string BinaryStl(const Mesh& mesh) {
  std::string file(80, 's');
  Append(file, std::bit_cast<float>(static_cast<std::uint32_t>(mesh.triangles.size())), false);
  for (const auto& triangle : mesh.triangles) {
    file += std::string(12, '\0');
    for (const std::uint32_t i : triangle) {
      const Corner& c = mesh.corners[i];
      for (const float value : {c.x, -c.z, c.y}) Append(file, value, false);
    }
    file += std::string(2, '\0');
  }
  return file;
}

std::string WordStl(const Mesh& mesh) {
  std::string file = "solid ring\n";
  for (const auto& triangle : mesh.triangles) {
    file += "facet normal 0 0 1\nouter loop\n";
    for (const std::uint32_t i : triangle) {
      const Corner& c = mesh.corners[i];
      file += "vertex " + Number(c.x) + " " + Number(-c.z) + " " + Number(c.y) + "\n";
    }
    file += "endloop\nendfacet\n";
  }
  return file + "endsolid ring\n";
}

std::string Obj(const Mesh& mesh) {
  std::string file = "# ring\nmtllib none.mtl\no ring\n";
  for (const Corner& c : mesh.corners) {
    file += "v " + Number(c.x) + " " + Number(c.y) + " " + Number(c.z) + "\n";
  }
  for (const auto& [a, b, c] : mesh.triangles) {
    file += "f " + std::to_string(a + 1) + "/1/1 " + std::to_string(b + 1) + "// -" +
            std::to_string(mesh.corners.size() - c) + "\n";
  }
  return file;
}

std::string Ply(const Mesh& mesh, const std::string& form) {
  std::string file = "ply\nformat " + form + " 1.0\ncomment a ring\nelement vertex " +
                     std::to_string(mesh.corners.size()) +
                     "\nproperty float x\nproperty float y\nproperty uchar red\nproperty float z\n"
                     "element face " +
                     std::to_string(mesh.triangles.size()) +
                     "\nproperty list uchar int vertex_indices\nend_header\n";
  const bool words = form == "ascii";
  const bool big = form == "binary_big_endian";
  for (const Corner& c : mesh.corners) {
    if (words) {
      file += Number(c.x) + " " + Number(c.y) + " 7 " + Number(c.z) + "\n";
      continue;
    }
    Append(file, c.x, big);
    Append(file, c.y, big);
    file += '\7';
    Append(file, c.z, big);
  }
  for (const auto& triangle : mesh.triangles) {
    file += words ? "3" : "\3";
    for (const std::uint32_t i : triangle) {
      if (words) {
        file += " " + std::to_string(i);
      } else {
        Append(file, std::bit_cast<float>(i), big);
      }
    }
    if (words) file += "\n";
  }
  return file;
}

TEST(Model, IsTheSameFromEachFormat) {
  const Mesh ring = Ring(12, 7);
  const auto expected = DrawModel(ring, {20, 30, 0}, 90, 70, 1).value();
  const std::pair<const char*, std::string> files[] = {
      {"a.stl", BinaryStl(ring)},
      {"b.STL", WordStl(ring)},
      {"c.obj", Obj(ring)},
      {"d", Ply(ring, "ascii")},
      {"e", Ply(ring, "binary_little_endian")},
      {"f", Ply(ring, "binary_big_endian")},
  };
  for (const auto& [name, text] : files) {
    const auto bytes = Bytes(text);
    const auto mesh = DecodeModel(ModelFormatOf(bytes, name), bytes);
    ASSERT_TRUE(mesh.has_value()) << name << ": " << mesh.error().message;
    EXPECT_EQ(mesh->triangles.size(), ring.triangles.size()) << name;
    EXPECT_TRUE(
        std::ranges::equal(DrawModel(*mesh, {20, 30, 0}, 90, 70, 3)->pixels(), expected.pixels()))
        << name;
    // Cut anywhere it is refused or smaller, and never trouble.
    Random random(1);
    for (int i = 0; i < 60; ++i) {
      auto broken = bytes;
      if (i % 2 == 0)
        broken.resize(static_cast<std::size_t>(random.Int(0, static_cast<int>(bytes.size()) - 1)));
      for (int k = 0; k < i / 2 && !broken.empty(); ++k) {
        broken[random.Next() % broken.size()] = random.Byte();
      }
      const auto other = DecodeModel(ModelFormatOf(bytes, name), broken);
      if (other) (void)DrawModel(*other, {1, 2, 50}, 40, 30, 1);
    }
  }
}

TEST(Model, NonsenseIsRefused) {
  const std::pair<const char*, std::string> files[] = {
      {"a.stl", ""},
      {"a.stl", "solid nothing\nendsolid\n"},
      {"a.stl", "solid x\nfacet\nvertex 1 2 3\nendfacet\nendsolid"},
      {"a.stl", "solid x\nvertex 1 nan 3\nvertex 1 2 3\nvertex 1 2 4\nendfacet\nendsolid"},
      {"a.obj", ""},
      {"a.obj", "v 1 2 3\nv 2 3 4\nv 4 5 7\nf 1 2 4\n"},
      {"a.obj", "v 1 2 3\nf 1 2 -9999999999999999999\n"},
      {"a.obj", "f 1 2 3\n"},
      {"a.ply", "ply\nend_header\n"},
      {"a.ply",
       "ply\nformat ascii 1.0\nelement vertex 99999999999\nproperty float x\nend_header\n"},
      {"a.ply",
       "ply\nformat ascii 1.0\nelement face 1\nproperty list int int vertex_index\nend_header\n3 0 "
       "1 2\n"},
      {"a.ply",
       "ply\nformat binary_little_endian 1.0\nelement face 9\nproperty list int int "
       "vertex_index\nend_header\n\xff\xff\xff\x7f"},
      {"a.txt", "v 1 2 3\n"},
  };
  for (const auto& [name, text] : files) {
    const auto bytes = Bytes(text);
    const auto mesh = DecodeModel(ModelFormatOf(bytes, name), bytes);
    ASSERT_FALSE(mesh.has_value()) << text;
    EXPECT_EQ(mesh.error().message.back(), '.');
  }
  const Mesh point{{{1, 1, 1}, {1, 1, 1}, {1, 1, 1}}, {{0, 1, 2}}};
  EXPECT_FALSE(DrawModel(point, {}, 30, 30, 1).has_value());
  // Far away a model still has its size.
  const Mesh far{{{3e38F, 1, 1}, {3e38F, 2, 1}, {3e38F, 2, 2}}, {{0, 1, 2}}};
  EXPECT_TRUE(DrawModel(far, {90, 10, 60}, 30, 30, 1).has_value());
  EXPECT_FALSE(DrawModel(Ring(5, 4), {0, 0, 179}, 30, 30, 1).has_value());
  EXPECT_FALSE(DrawModel(Ring(5, 4), {std::nan(""), 0, 0}, 30, 30, 1).has_value());
}

// Where a ray first meets a triangle (Moeller and Trumbore, 1997), as the distance along it.
using Vec = std::array<double, 3>;
Vec Minus(const Vec& a, const Vec& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
Vec Cross(const Vec& a, const Vec& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
double Dot(const Vec& a, const Vec& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
std::optional<double> Meets(const Vec& from, const Vec& ray, const std::array<Vec, 3>& t) {
  const Vec e1 = Minus(t[1], t[0]);
  const Vec e2 = Minus(t[2], t[0]);
  const Vec p = Cross(ray, e2);
  const double det = Dot(e1, p);
  if (std::abs(det) < 1e-14) return {};
  const Vec s = Minus(from, t[0]);
  const Vec q = Cross(s, e1);
  const double u = Dot(s, p) / det;
  const double v = Dot(ray, q) / det;
  if (u < 0 || v < 0 || u + v > 1) return {};
  return Dot(e2, q) / det;
}

TEST(Model, IsWhatARayCasterSees) {
  const Mesh ring = Ring(40, 16);
  constexpr int kWidth = 120;
  constexpr int kHeight = 90;
  for (const ModelView& view : {ModelView{}, ModelView{30, 20, 0}, ModelView{-110, 65, 40}}) {
    const FineImage drawn = DrawModel(ring, view, kWidth, kHeight, 2).value();
    // The model as the viewer has it: x right, y up, z towards.
    const double turn = view.turn * std::numbers::pi / 180;
    const double tilt = view.tilt * std::numbers::pi / 180;
    std::vector<Vec> seen;
    Vec low{1e9, 1e9, 1e9}, high{-1e9, -1e9, -1e9};
    for (const Corner& c : ring.corners) {
      const double x = std::cos(turn) * c.x + std::sin(turn) * c.z;
      const double z = std::cos(turn) * c.z - std::sin(turn) * c.x;
      seen.push_back({x, std::cos(tilt) * c.y - std::sin(tilt) * z,
                      std::sin(tilt) * c.y + std::cos(tilt) * z});
      for (std::size_t k = 0; k < 3; ++k) {
        low[k] = std::min(low[k], seen.back()[k]);
        high[k] = std::max(high[k], seen.back()[k]);
      }
    }
    const double mx = (low[0] + high[0]) / 2;
    const double my = (low[1] + high[1]) / 2;
    // The pixel size at the model, or at distance 1 from an eye that sees all of it in its margins.
    double pixel =
        std::max((high[0] - low[0]) / (kWidth * 0.92), (high[1] - low[1]) / (kHeight * 0.92));
    double eye = 0;
    if (view.perspective > 0) {
      pixel = 2 * std::tan(view.perspective * std::numbers::pi / 360) / kWidth;
      for (const Vec& p : seen) {
        eye = std::max({eye, p[2] + std::abs(p[0] - mx) / (pixel * kWidth * 0.46),
                        p[2] + std::abs(p[1] - my) / (pixel * kHeight * 0.46)});
      }
    }
    int differentOutline = 0;
    int covered = 0;
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        const double px = (x + 0.5 - kWidth / 2.0) * pixel;
        const double py = (kHeight / 2.0 - y - 0.5) * pixel;
        const bool wide = view.perspective > 0;
        const Vec from = wide ? Vec{mx, my, eye} : Vec{mx + px, my + py, 100};
        const Vec ray = wide ? Vec{px, py, -1} : Vec{0, 0, -1};
        std::optional<double> first;
        for (const auto& [a, b, c] : ring.triangles) {
          const auto hit = Meets(from, ray, {seen[a], seen[b], seen[c]});
          if (hit && (!first || *hit < *first)) first = hit;
        }
        const int level = drawn.Row(y)[static_cast<std::size_t>(x)];
        differentOutline += first.has_value() != (level != 0);
        if (!first || level == 0) continue;
        ++covered;
        const double z = from[2] - *first;
        const double part = 0.1 + 0.9 * (z - low[2]) / (high[2] - low[2]);
        EXPECT_NEAR(level, part * 65535, 65.5) << x << ' ' << y;
      }
    }
    EXPECT_LE(differentOutline, 2);
    EXPECT_GT(covered, 1500);
  }
}

}  // namespace
}  // namespace plenovia
