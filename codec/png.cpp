#include "codec/png.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "codec/colour_reducer.h"
#include "codec/composite_over_white.h"
#include "codec/picture_comment.h"
#include "codec/png_reader.h"
#include "codec/png_writer.h"

namespace plenovia {

namespace {

constexpr int kLevel = 1;  // deflate: stereograms shrink to 6 to 8 %, twice as fast as at 6

// Puts the pixels where they belong in a picture.
void Scatter(std::span<const std::uint8_t> pixels, const PngRowPlace& place,
             IndexedImage& picture) {
  const auto row = picture.Row(place.y);
  if (place.step == 1) {
    std::copy(pixels.begin(), pixels.end(), row.begin() + place.left);
    return;
  }
  auto x = static_cast<std::size_t>(place.left);
  for (const std::uint8_t pixel : pixels) {
    row[x] = pixel;
    x += static_cast<std::size_t>(place.step);
  }
}

// Indexes or grays, which may have an alpha channel.
Result<DecodedPicture> ReadIndexes(PngReader& file) {
  auto picture = IndexedImage::Create(file.width(), file.height(), file.palette());
  if (!picture) return tl::unexpected(picture.error());
  picture->Fill(0);
  std::vector<std::uint8_t> grays(static_cast<std::size_t>(file.width()));
  const auto read = file.ReadRows([&](const PngRowPlace& place, std::span<const std::uint8_t> row) {
    if (file.channels() == 1) return Scatter(row, place, *picture);
    const std::span<std::uint8_t> pixels = std::span(grays).first(row.size() / 2);
    for (std::size_t x = 0; x < pixels.size(); ++x) {
      pixels[x] = CompositeOverWhite(row[2 * x], row[2 * x + 1]);
    }
    Scatter(pixels, place, *picture);
  });
  if (!read) return tl::unexpected(read.error());
  return DecodedPicture(std::move(*picture), file.Damage());
}

// Calls `useRow(place, colours)` for each row of a true-colour file.
template <class UseRow>
Result<void> ReadColourRows(PngReader& file, const UseRow& useRow) {
  std::vector<Rgb> colours(static_cast<std::size_t>(file.width()));
  return file.ReadRows([&](const PngRowPlace& place, std::span<const std::uint8_t> row) {
    const auto channels = static_cast<std::size_t>(file.channels());
    const std::span<Rgb> pixels = std::span(colours).first(row.size() / channels);
    for (std::size_t x = 0; x < pixels.size(); ++x) {
      const auto from = row.subspan(x * channels, channels);
      pixels[x] = {from[0], from[1], from[2]};
      if (channels == 3 || from[3] == 255) continue;
      pixels[x] = CompositeOverWhite(pixels[x], from[3]);
    }
    useRow(place, std::span<const Rgb>(pixels));
  });
}

Result<DecodedPicture> ReadColours(std::span<const std::uint8_t> bytes, PngReader& file) {
  ColourReducer reducer;
  const auto counted = ReadColourRows(
      file, [&](const PngRowPlace&, std::span<const Rgb> row) { reducer.Count(row); });
  if (!counted) return tl::unexpected(counted.error());
  reducer.BuildPalette();
  auto picture = IndexedImage::Create(file.width(), file.height(), reducer.palette());
  if (!picture) return tl::unexpected(picture.error());
  picture->Fill(0);

  PngReader again(bytes);
  if (auto opened = again.Open(); !opened) return tl::unexpected(opened.error());
  std::vector<std::uint8_t> indexes(static_cast<std::size_t>(file.width()));
  const auto mapped =
      ReadColourRows(again, [&](const PngRowPlace& place, std::span<const Rgb> row) {
        const std::span<std::uint8_t> pixels = std::span(indexes).first(row.size());
        reducer.Map(row, pixels);
        Scatter(pixels, place, *picture);
      });
  if (!mapped) return tl::unexpected(mapped.error());
  return DecodedPicture(std::move(*picture), file.Damage());
}

void Write(png_structp png, png_infop info, const IndexedImage& picture,
           std::span<const png_color> palette, std::span<char> comment) {
  png_set_compression_level(png, kLevel);
  png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
  png_set_IHDR(png, info, static_cast<png_uint_32>(picture.width()),
               static_cast<png_uint_32>(picture.height()), 8, PNG_COLOR_TYPE_PALETTE,
               PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
  if (!comment.empty()) {
    png_text text{};
    char key[] = "Comment";
    text.compression = PNG_TEXT_COMPRESSION_NONE;
    text.key = key;
    text.text = comment.data();
    text.text_length = comment.size();
    png_set_text(png, info, &text, 1);
  }
  png_write_info(png, info);
  for (int y = 0; y < picture.height(); ++y) png_write_row(png, picture.Row(y).data());
  png_write_end(png, info);
}

}  // namespace

bool LooksLikePng(std::span<const std::uint8_t> bytes) {
  constexpr std::size_t kSignature = 8;
  return bytes.size() >= kSignature && png_sig_cmp(bytes.data(), 0, kSignature) == 0;
}

Result<DecodedPicture> DecodePng(std::span<const std::uint8_t> bytes) {
  PngReader file(bytes);
  if (auto opened = file.Open(); !opened) return tl::unexpected(opened.error());
  auto picture = file.channels() < 3 ? ReadIndexes(file) : ReadColours(bytes, file);
  if (picture) picture->comment = FindPngComment(bytes);
  return picture;
}

Result<EncodedPicture> EncodePng(const IndexedImage& picture, std::string_view comment) {
  if (picture.empty()) return Failure(ErrorCode::kInvalid, "There is no picture to write.");
  const auto highest = std::max_element(picture.pixels().begin(), picture.pixels().end());
  std::vector<png_color> palette;
  for (int i = 0; i < std::max(picture.palette().size(), *highest + 1); ++i) {
    const Rgb c = picture.palette()[i];
    palette.push_back({c.red, c.green, c.blue});
  }
  std::string text(comment);
  return WritePng(
      [&](png_structp png, png_infop info) { Write(png, info, picture, palette, text); });
}

std::string_view PngLibrary() {
  return "libpng " PNG_LIBPNG_VER_STRING;
}

}  // namespace plenovia
