// PLY files, in words and in binary of either byte order.

#include <algorithm>
#include <bit>
#include <optional>
#include <string>

#include "sources/mesh.h"
#include "sources/words.h"

namespace plenovia {

namespace {

enum class Form { kWords, kLittle, kBig };

struct Type {
  std::string_view name;
  std::string_view otherName;
  std::size_t bytes;
  char kind;  // 'i'nteger, 'u'nsigned, 'f'loat
};
constexpr Type kTypes[] = {
    {"char", "int8", 1, 'i'},     {"uchar", "uint8", 1, 'u'},    {"short", "int16", 2, 'i'},
    {"ushort", "uint16", 2, 'u'}, {"int", "int32", 4, 'i'},      {"uint", "uint32", 4, 'u'},
    {"float", "float32", 4, 'f'}, {"double", "float64", 8, 'f'},
};

const Type* FindType(std::string_view name) {
  const auto found = std::ranges::find_if(
      kTypes, [&](const Type& type) { return type.name == name || type.otherName == name; });
  return found == std::end(kTypes) ? nullptr : &*found;
}

struct Property {
  std::string_view name;
  const Type* type = nullptr;
  const Type* count = nullptr;  // of the number of values, for a list
};

struct Element {
  std::string_view name;
  std::size_t count = 0;
  std::vector<Property> properties;
};

struct Header {
  Form form = Form::kWords;
  std::vector<Element> elements;
};

tl::unexpected<Error> Broken() {
  return Failure(ErrorCode::kCorrupt, "The PLY file is truncated or damaged.");
}

std::string_view TakeLine(std::span<const std::uint8_t>& bytes) {
  const auto end = std::ranges::find(bytes, '\n');
  const auto length = static_cast<std::size_t>(end - bytes.begin());
  std::string_view line(reinterpret_cast<const char*>(bytes.data()), length);
  bytes = bytes.subspan(std::min(bytes.size(), length + 1));
  return line;
}

Words WordsOf(std::string_view line) {
  return Words({reinterpret_cast<const std::uint8_t*>(line.data()), line.size()});
}

// Takes the header off the bytes.
std::optional<Header> TakeHeader(std::span<const std::uint8_t>& bytes) {
  constexpr std::size_t kMostLines = 1000;
  Header header;
  bool known = false;
  for (std::size_t lines = 0; lines < kMostLines && !bytes.empty(); ++lines) {
    Words words = WordsOf(TakeLine(bytes));
    const std::string_view word = words.Next();
    if (word == "end_header") return known ? std::optional(std::move(header)) : std::nullopt;
    if (word == "format") {
      const std::string_view form = words.Next();
      known = true;
      if (form == "ascii") {
        header.form = Form::kWords;
      } else if (form == "binary_little_endian") {
        header.form = Form::kLittle;
      } else if (form == "binary_big_endian") {
        header.form = Form::kBig;
      } else {
        return {};
      }
    } else if (word == "element") {
      const std::string_view name = words.Next();
      const auto count = words.NextNumber<std::size_t>();
      if (!count) return {};
      header.elements.push_back({name, *count, {}});
    } else if (word == "property") {
      if (header.elements.empty()) return {};
      Property property;
      std::string_view type = words.Next();
      if (type == "list") {
        property.count = FindType(words.Next());
        if (property.count == nullptr) return {};
        type = words.Next();
      }
      property.type = FindType(type);
      property.name = words.Next();
      if (property.type == nullptr) return {};
      header.elements.back().properties.push_back(property);
    }
  }
  return {};
}

// The values of the elements, one after the other; none at the end or where there is none.
class Values {
 public:
  Values(std::span<const std::uint8_t> bytes, Form form)
      : bytes_(bytes), words_(bytes), form_(form) {}

  std::optional<double> Next(const Type& type) {
    if (form_ == Form::kWords) return words_.NextNumber<double>();
    if (bytes_.size() < type.bytes) return {};
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < type.bytes; ++i) {
      const std::size_t from = form_ == Form::kLittle ? type.bytes - 1 - i : i;
      word = word << 8 | bytes_[from];
    }
    bytes_ = bytes_.subspan(type.bytes);
    return Number(word, type);
  }

 private:
  static double Number(std::uint64_t word, const Type& type) {
    if (type.kind == 'f') {
      return type.bytes == 4 ? std::bit_cast<float>(static_cast<std::uint32_t>(word))
                             : std::bit_cast<double>(word);
    }
    const unsigned above = 64 - 8 * static_cast<unsigned>(type.bytes);
    if (type.kind == 'u') return static_cast<double>(word);
    return static_cast<double>(static_cast<std::int64_t>(word << above) >> above);
  }

  std::span<const std::uint8_t> bytes_;
  Words words_;
  Form form_;
};

// A number as a count or as the number of a corner.
std::optional<std::size_t> Whole(std::optional<double> number, std::size_t below) {
  if (!number || !(*number >= 0 && *number < static_cast<double>(below))) return {};
  return static_cast<std::size_t>(*number);
}

class Reader {
 public:
  Reader(const Header& header, std::span<const std::uint8_t> bytes)
      : header_(header), values_(bytes, header.form), bytes_(bytes.size()) {}

  Result<Mesh> Read() {
    for (const Element& element : header_.elements) {
      // Each has at least a byte.
      if (element.properties.empty()) continue;
      if (element.count > bytes_) return Broken();
      for (std::size_t i = 0; i < element.count; ++i) {
        if (auto taken = element.name == "vertex" ? TakeCorner(element) : TakeFace(element);
            !taken) {
          return tl::unexpected(taken.error());
        }
      }
    }
    for (const auto& triangle : mesh_.triangles) {
      if (std::ranges::max(triangle) < mesh_.corners.size()) continue;
      return Failure(ErrorCode::kCorrupt, "The model has a face with a corner that there is not.");
    }
    return std::move(mesh_);
  }

 private:
  static constexpr std::size_t kMostInList = 1 << 20;

  // Also elements that are neither corners nor faces go this way: their lists have other names.
  Result<void> TakeFace(const Element& element) {
    for (const Property& property : element.properties) {
      std::size_t count = 1;
      if (property.count != nullptr) {
        const auto told = Whole(values_.Next(*property.count), kMostInList);
        if (!told) return Broken();
        count = *told;
      }
      const bool corners = property.count != nullptr && element.name == "face" &&
                           (property.name == "vertex_indices" || property.name == "vertex_index");
      std::array<std::uint32_t, 3> triangle{};
      for (std::size_t i = 0; i < count; ++i) {
        const auto value = values_.Next(*property.type);
        if (!value) return Broken();
        if (!corners) continue;
        const auto corner = Whole(value, std::size_t{1} << 31);
        if (!corner) return Broken();
        triangle[std::min<std::size_t>(i, 2)] = static_cast<std::uint32_t>(*corner);
        if (i < 2) continue;
        if (mesh_.triangles.size() == kMostTriangles) {
          return Failure(ErrorCode::kTooLarge, "The model has too many triangles.");
        }
        mesh_.triangles.push_back(triangle);
        triangle[1] = triangle[2];
      }
    }
    return {};
  }

  Result<void> TakeCorner(const Element& element) {
    Corner corner;
    for (const Property& property : element.properties) {
      if (property.count != nullptr) return Broken();
      const auto value = values_.Next(*property.type);
      if (!value) return Broken();
      const auto number = static_cast<float>(*value);
      if (property.name == "x") corner.x = number;
      if (property.name == "y") corner.y = number;
      if (property.name == "z") corner.z = number;
    }
    if (mesh_.corners.size() == 3 * kMostTriangles) {
      return Failure(ErrorCode::kTooLarge, "The model has too many corners.");
    }
    mesh_.corners.push_back(corner);
    return {};
  }

  const Header& header_;
  Values values_;
  std::size_t bytes_;
  Mesh mesh_;
};

}  // namespace

Result<Mesh> DecodePly(std::span<const std::uint8_t> bytes) {
  const auto header = TakeHeader(bytes);
  if (!header) return Failure(ErrorCode::kCorrupt, "The header of the PLY file makes no sense.");
  return Reader(*header, bytes).Read();
}

}  // namespace plenovia
