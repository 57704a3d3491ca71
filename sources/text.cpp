#include "sources/text.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <string_view>
#include <vector>

#include "sources/distance.h"
#include "sources/font_file.h"

namespace plenovia {

namespace {

constexpr double kMargin = 0.06;       // of the width and of the height, on each side
constexpr int kTrialSize = 1000;       // pixels of the letter size that texts are measured at
constexpr double kSmallestSize = 4.0;  // pixels; smaller letters cannot be told apart

struct CloseFace {
  void operator()(FT_Face face) const { FT_Done_Face(face); }
};
struct CloseLibrary {
  void operator()(FT_Library library) const { FT_Done_FreeType(library); }
};
using Library = std::unique_ptr<FT_LibraryRec_, CloseLibrary>;
using Face = std::unique_ptr<FT_FaceRec_, CloseFace>;

tl::unexpected<Error> Wrong(const std::string& what) {
  return Failure(ErrorCode::kInvalid, what);
}

// The next character of a UTF-8 text, which is taken off it; none where it is broken.
std::optional<char32_t> TakeCharacter(std::string_view& text) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
  const std::uint8_t first = byte(0);
  const std::size_t length = first < 0x80   ? 1
                             : first < 0xc0 ? 0
                             : first < 0xe0 ? 2
                             : first < 0xf0 ? 3
                                            : 4;
  if (length == 0 || length > text.size()) return {};
  char32_t character = length == 1 ? first : first & (0x7fU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xc0) != 0x80) return {};
    character = character << 6 | (byte(i) & 0x3fU);
  }
  text.remove_prefix(length);
  return character;
}

using Line = std::u32string;

Result<std::vector<Line>> LinesOf(std::string_view text) {
  if (text.size() > kLongestText) {
    return Wrong("The text has more than " + std::to_string(kLongestText) + " bytes.");
  }
  std::vector<Line> lines(1);
  while (!text.empty()) {
    const auto character = TakeCharacter(text);
    if (!character) return Wrong("The text is not UTF-8.");
    if (*character == '\n') {
      lines.emplace_back();
    } else if (*character >= ' ') {
      lines.back().push_back(*character);
    }
  }
  return lines;
}

// A letter with the pen in front of it, in 1/64 pixels.
struct Letter {
  FT_UInt glyph;
  FT_Pos pen;
};

// The letters of a line at the size of the face, and its length.
struct Row {
  std::vector<Letter> letters;
  FT_Pos length = 0;
};

constexpr FT_Int32 kLoad = FT_LOAD_NO_HINTING | FT_LOAD_NO_BITMAP;

Row Compose(FT_Face face, const Line& line) {
  Row row;
  FT_UInt before = 0;
  for (const char32_t character : line) {
    const FT_UInt glyph = FT_Get_Char_Index(face, character);
    FT_Vector kerning{0, 0};
    if (before != 0) FT_Get_Kerning(face, before, glyph, FT_KERNING_UNFITTED, &kerning);
    before = glyph;
    if (FT_Load_Glyph(face, glyph, kLoad) != 0) continue;
    row.letters.push_back({glyph, row.length + kerning.x});
    row.length += kerning.x + face->glyph->linearHoriAdvance / 1024;  // 16.16 pixels
  }
  return row;
}

// Which pixels lie inside the letters.
class Mask {
 public:
  Mask(int width, int height)
      : width_(width),
        height_(height),
        inside_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
    std::ranges::fill(inside_, std::uint8_t{0});
  }

  std::span<const std::uint8_t> inside() const { return inside_; }

  // Fills an outline whose coordinates count from the lower left corner of the picture.
  bool Fill(FT_Library library, FT_Outline& outline) {
    FT_Raster_Params how{};
    how.flags = FT_RASTER_FLAG_AA | FT_RASTER_FLAG_DIRECT | FT_RASTER_FLAG_CLIP;
    how.clip_box = {0, 0, width_, height_};
    how.gray_spans = [](int y, int count, const FT_Span* spans, void* mask) {
      static_cast<Mask*>(mask)->Take(y, {spans, static_cast<std::size_t>(count)});
    };
    how.user = this;
    return FT_Outline_Render(library, &outline, &how) == 0;
  }

 private:
  void Take(int y, std::span<const FT_Span> spans) {
    if (y < 0 || y >= height_) return;
    for (const FT_Span& span : spans) {
      const int begin = std::clamp<int>(span.x, 0, width_);
      const int end = std::clamp<int>(span.x + span.len, begin, width_);
      if (span.coverage < 128) continue;
      const auto at = static_cast<std::size_t>(height_ - 1 - y) * static_cast<std::size_t>(width_) +
                      static_cast<std::size_t>(begin);
      std::fill_n(inside_.data() + at, end - begin, std::uint8_t{1});
    }
  }

  int width_;
  int height_;
  PixelVector<std::uint8_t> inside_;
};

Result<Face> OpenFace(FT_Library library, const std::string& font) {
  FontFile file{.path = font};
  if (font.find('/') == std::string::npos) {
    auto found = FindFont(font);
    if (!found && font == Text().font) found = StandardFont();
    if (!found) return tl::unexpected(found.error());
    file = std::move(*found);
  }
  FT_Face face = nullptr;
  if (FT_New_Face(library, file.path.c_str(), file.face, &face) != 0) {
    return Failure(ErrorCode::kIo, "The font \"" + font + "\" cannot be read.");
  }
  Face opened(face);
  if (!FT_IS_SCALABLE(face)) {
    return Failure(ErrorCode::kUnsupported, "The font \"" + font + "\" has no outlines.");
  }
  return opened;
}

// Sets the largest letters with which all lines fit.
Result<void> FitSize(FT_Face face, const std::vector<Line>& lines, int width, int height) {
  FT_Set_Pixel_Sizes(face, 0, kTrialSize);
  FT_Pos longest = 0;
  for (const Line& line : lines) longest = std::max(longest, Compose(face, line).length);
  if (longest <= 0) return Wrong("The text shows nothing.");
  const double across = width * (1 - 2 * kMargin) * 64.0 / static_cast<double>(longest);
  const double lineHeight = static_cast<double>(face->size->metrics.height) / 64;
  const double down = height * (1 - 2 * kMargin) / (lineHeight * static_cast<double>(lines.size()));
  const double size = kTrialSize * std::min(across, down);
  if (size < kSmallestSize) return Wrong("The text is too long for this size.");
  FT_Set_Char_Size(face, 0, static_cast<FT_F26Dot6>(size * 64), 72, 72);
  return {};
}

Result<Mask> FillLetters(FT_Library library, FT_Face face, const std::vector<Line>& lines,
                         int width, int height) {
  Mask mask(width, height);
  const auto& metrics = face->size->metrics;
  const FT_Pos block = metrics.height * static_cast<FT_Pos>(lines.size());
  // From the lower edge up to the base of the first line.
  FT_Pos base = (FT_Pos{height} * 64 + block) / 2 - metrics.ascender;
  for (const Line& line : lines) {
    const Row row = Compose(face, line);
    for (const Letter& letter : row.letters) {
      if (FT_Load_Glyph(face, letter.glyph, kLoad) != 0) continue;
      FT_Outline& outline = face->glyph->outline;
      FT_Outline_Translate(&outline, (FT_Pos{width} * 64 - row.length) / 2 + letter.pen, base);
      if (!mask.Fill(library, outline)) {
        return Failure(ErrorCode::kTooLarge, "The letters cannot be drawn in this size.");
      }
    }
    base -= metrics.height;
  }
  return mask;
}

Result<FineImage> Profile(const Mask& mask, TextProfile profile, int width, int height) {
  auto image = FineImage::Create(width, height);
  if (!image) return image;
  if (std::ranges::count(mask.inside(), 1) == 0) return Wrong("The text shows nothing.");
  if (profile == TextProfile::kFlat) {
    std::ranges::transform(mask.inside(), image->pixels().begin(), [](std::uint8_t inside) {
      return inside != 0 ? FineImage::kHighest : std::uint16_t{0};
    });
    return image;
  }
  const auto squares = SquaredDistances(width, height, mask.inside());
  const double widest = std::sqrt(*std::ranges::max_element(squares));
  std::ranges::transform(squares, image->pixels().begin(), [widest](float square) {
    const double in = 1 - std::sqrt(square) / widest;
    return static_cast<std::uint16_t>(std::lround(std::sqrt(1 - in * in) * FineImage::kHighest));
  });
  return image;
}

Result<FineImage> Draw(const Text& text, int width, int height) {
  const auto lines = LinesOf(text.lines);
  if (!lines) return tl::unexpected(lines.error());
  FT_Library opened = nullptr;
  if (FT_Init_FreeType(&opened) != 0) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory for fonts.");
  }
  const Library library(opened);
  const auto face = OpenFace(opened, text.font);
  if (!face) return tl::unexpected(face.error());
  if (auto fits = FitSize(face->get(), *lines, width, height); !fits) {
    return tl::unexpected(fits.error());
  }
  const auto mask = FillLetters(opened, face->get(), *lines, width, height);
  if (!mask) return tl::unexpected(mask.error());
  return Profile(*mask, text.profile, width, height);
}

}  // namespace

Result<FineImage> DrawText(const Text& text, int width, int height) {
  if (auto fits = CheckPictureSize(width, height); !fits) return tl::unexpected(fits.error());
  try {
    return Draw(text, width, height);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory for the text.");
  }
}

}  // namespace plenovia
