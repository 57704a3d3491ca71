#include "codec/gif.h"

#include <gif_lib.h>

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "codec/byte_stream.h"
#include "codec/gif_lzw.h"
#include "codec/lzw_compression.h"
#include "codec/picture_comment.h"
#include "platform/limits.h"

namespace plenovia {

namespace {

// A frame that is kept apart from its picture shares this many pixels with it.
constexpr std::size_t kMostPixelsInTwo = static_cast<std::size_t>(kMaxPixels) / 2 * 3;

struct CloseReader {
  void operator()(GifFileType* file) const { DGifCloseFile(file, nullptr); }
};
struct FreePalette {
  void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using Reader = std::unique_ptr<GifFileType, CloseReader>;

int ReadBytes(GifFileType* file, GifByteType* to, int count) {
  auto& bytes = *static_cast<ByteReader*>(file->UserData);
  return count > 0 && bytes.Take(to, static_cast<std::size_t>(count)) ? count : 0;
}

const char* Damage(const ByteReader& bytes) {
  return bytes.truncated() ? kTruncated : "The GIF file is damaged.";
}

// What the extensions before the first frame tell.
struct Extensions {
  std::optional<int> transparent;  // the colour
  std::string comment;             // the program's own
};

// Passes an extension and notes what it tells.
bool ReadExtension(GifFileType* file, Extensions& told) {
  int kind = 0;
  GifByteType* block = nullptr;
  if (DGifGetExtension(file, &kind, &block) == GIF_ERROR) return false;
  std::string comment;
  while (block != nullptr) {
    GraphicsControlBlock control{};
    if (kind == GRAPHICS_EXT_FUNC_CODE &&
        DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK &&
        control.TransparentColor != NO_TRANSPARENT_COLOR) {
      told.transparent = control.TransparentColor;
    }
    if (kind == COMMENT_EXT_FUNC_CODE && comment.size() < kLongestComment) {
      comment.append(block + 1, block + 1 + block[0]);
    }
    if (DGifGetExtensionNext(file, &block) == GIF_ERROR) return false;
  }
  if (told.comment.empty() && IsOwnComment(comment)) {
    told.comment = comment.substr(0, kLongestComment);
  }
  return true;
}

// Goes on to the first frame. False when the file is damaged or holds none.
bool FindFrame(GifFileType* file, Extensions& told) {
  for (;;) {
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    if (DGifGetRecordType(file, &record) == GIF_ERROR) return false;
    if (record == IMAGE_DESC_RECORD_TYPE) return DGifGetImageDesc(file) == GIF_OK;
    if (record != EXTENSION_RECORD_TYPE || !ReadExtension(file, told)) return false;
  }
}

Palette PaletteOf(const ColorMapObject* map) {
  if (map == nullptr) return Palette::Grays();
  std::vector<Rgb> colours;
  for (int i = 0; i < map->ColorCount; ++i) {
    colours.push_back({map->Colors[i].Red, map->Colors[i].Green, map->Colors[i].Blue});
  }
  return Palette(colours);
}

// Reads the frame's pixels and returns how many there are.
std::size_t ReadPixels(GifFileType* file, int codeBits, std::span<std::uint8_t> pixels) {
  if (codeBits < 1 || codeBits > 8) return 0;
  return ExpandLzw(
      codeBits,
      [&] {
        int code = -1;
        return DGifGetLZCodes(file, &code) == GIF_OK ? code : -1;
      },
      pixels);
}

// Whether the frame's blocks end, and another record follows or the mark of the end.
bool EndsWell(GifFileType* file) {
  GifByteType* rest = nullptr;
  do {
    if (DGifGetCodeNext(file, &rest) == GIF_ERROR) return false;
  } while (rest != nullptr);
  GifRecordType record = UNDEFINED_RECORD_TYPE;
  return DGifGetRecordType(file, &record) == GIF_OK;
}

// The rows of an interlaced frame in the order of the file.
std::vector<int> InterlacedRows(int height) {
  std::vector<int> rows;
  for (const auto& [start, step] : {std::array{0, 8}, {4, 8}, {2, 4}, {1, 2}}) {
    for (int y = start; y < height; y += step) rows.push_back(y);
  }
  return rows;
}

// Puts the frame's rows where they belong in the picture.
void PlaceFrame(const GifImageDesc& place, const IndexedImage& frame, IndexedImage& picture) {
  const std::vector<int> order =
      place.Interlace ? InterlacedRows(place.Height) : std::vector<int>();
  for (int y = 0; y < place.Height; ++y) {
    const int row = place.Interlace ? order[static_cast<std::size_t>(y)] : y;
    const auto from = frame.Row(y);
    std::copy(from.begin(), from.end(), picture.Row(place.Top + row).begin() + place.Left);
  }
}

int AppendToFile(GifFileType* file, const GifByteType* bytes, int count) {
  auto& buffer = *static_cast<ByteBuffer*>(file->UserData);
  return AppendBytes(buffer, {bytes, static_cast<std::size_t>(count)}) ? count : 0;
}

// The end of the pixels is a block of length 0.
bool WriteBlocks(GifFileType* file, std::span<const std::uint8_t> bytes) {
  std::array<GifByteType, 256> block{};
  while (!bytes.empty()) {
    const std::size_t length = std::min<std::size_t>(255, bytes.size());
    block[0] = static_cast<GifByteType>(length);
    std::copy_n(bytes.begin(), length, block.begin() + 1);
    if (EGifPutCodeNext(file, block.data()) == GIF_ERROR) return false;
    bytes = bytes.subspan(length);
  }
  return EGifPutCodeNext(file, nullptr) == GIF_OK;
}

bool WriteGif(GifFileType* file, const IndexedImage& picture, const ColorMapObject* map,
              std::span<const std::uint8_t> codes, const std::string& comment) {
  EGifSetGifVersion(file, !comment.empty());
  if (EGifPutScreenDesc(file, picture.width(), picture.height(), 8, 0, map) == GIF_ERROR ||
      (!comment.empty() && EGifPutComment(file, comment.c_str()) == GIF_ERROR) ||
      EGifPutImageDesc(file, 0, 0, picture.width(), picture.height(), false, nullptr) ==
          GIF_ERROR) {
    return false;
  }
  return WriteBlocks(file, codes);
}

}  // namespace

bool LooksLikeGif(std::span<const std::uint8_t> bytes) {
  const std::string start(bytes.begin(),
                          bytes.begin() + std::min<std::ptrdiff_t>(6, std::ssize(bytes)));
  return start == "GIF87a" || start == "GIF89a";
}

std::string_view GifLibrary() {
#define PLENOVIA_TEXT_OF(number) #number
#define PLENOVIA_TEXT(number) PLENOVIA_TEXT_OF(number)
  return "giflib " PLENOVIA_TEXT(GIFLIB_MAJOR) "." PLENOVIA_TEXT(GIFLIB_MINOR) "." PLENOVIA_TEXT(
      GIFLIB_RELEASE);
#undef PLENOVIA_TEXT
#undef PLENOVIA_TEXT_OF
}

Result<DecodedPicture> DecodeGif(std::span<const std::uint8_t> bytes) {
  ByteReader source(bytes);
  const Reader file(LooksLikeGif(bytes) ? DGifOpen(&source, ReadBytes, nullptr) : nullptr);
  Extensions told;
  if (!file || !FindFrame(file.get(), told)) {
    return Failure(ErrorCode::kCorrupt, Damage(source));
  }
  const int codeBits = bytes[source.position() - 1];

  const GifImageDesc& place = file->Image;
  const bool local = place.ColorMap != nullptr;
  const Palette palette = PaletteOf(local ? place.ColorMap : file->SColorMap);
  const int width = std::max(file->SWidth, place.Left + place.Width);
  const int height = std::max(file->SHeight, place.Top + place.Height);
  for (const auto& [w, h] : {std::array{place.Width, place.Height}, {width, height}}) {
    if (auto fits = CheckPictureSize(w, h); !fits) return tl::unexpected(fits.error());
  }
  const std::size_t area = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  if (area / kMostGifPixelsPerByte > bytes.size()) {
    return Failure(ErrorCode::kCorrupt, "The file is too short for its size in pixels.");
  }

  auto frame = IndexedImage::Create(place.Width, place.Height, palette);
  if (!frame) return tl::unexpected(frame.error());
  const bool plain = !place.Interlace && place.Width == width && place.Height == height;
  if (!plain && area + frame->pixels().size() > kMostPixelsInTwo) {
    return Failure(ErrorCode::kTooLarge, "The picture needs too much memory.");
  }
  const int background = told.transparent.value_or(local ? 0 : file->SBackGroundColor);
  const auto around = static_cast<std::uint8_t>(background < palette.size() ? background : 0);
  const std::size_t read = ReadPixels(file.get(), codeBits, frame->pixels());
  if (read == 0) return Failure(ErrorCode::kCorrupt, Damage(source));
  std::ranges::fill(frame->pixels().subspan(read), around);
  const bool whole = read == frame->pixels().size() && EndsWell(file.get()) && !source.truncated();
  std::string damage = whole ? "" : Damage(source);
  if (plain) return DecodedPicture(std::move(*frame), std::move(damage), std::move(told.comment));

  auto picture = IndexedImage::Create(width, height, palette);
  if (!picture) return tl::unexpected(picture.error());
  picture->Fill(around);
  PlaceFrame(place, *frame, *picture);
  return DecodedPicture(std::move(*picture), std::move(damage), std::move(told.comment));
}

Result<EncodedPicture> EncodeGif(const IndexedImage& picture, int threads,
                                 std::string_view comment) {
  if (picture.empty()) return Failure(ErrorCode::kInvalid, "There is no picture to write.");
  const auto noMemory = [] {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to write the GIF file.");
  };
  const auto highest = std::max_element(picture.pixels().begin(), picture.pixels().end());
  const int bits = GifBitSize(std::max({2, picture.palette().size(), *highest + 1}));
  const int colours = 1 << bits;
  const std::unique_ptr<ColorMapObject, FreePalette> map(GifMakeMapObject(colours, nullptr));
  if (!map) return noMemory();
  for (int i = 0; i < colours; ++i) {
    const Rgb c = picture.palette()[i];
    map->Colors[i] = {c.red, c.green, c.blue};
  }
  ByteBuffer codes;
  try {
    codes = CompressLzw(std::max(2, bits), picture.pixels(), threads);
  } catch (const std::bad_alloc&) {
    return noMemory();
  }
  ByteBuffer bytes;
  GifFileType* file = EGifOpen(&bytes, AppendToFile, nullptr);
  if (file == nullptr) return noMemory();
  const bool written = WriteGif(file, picture, map.get(), codes, std::string(comment));
  if (EGifCloseFile(file, nullptr) == GIF_ERROR || !written) return noMemory();
  return EncodedPicture(std::move(bytes));
}

}  // namespace plenovia
