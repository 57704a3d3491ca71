#include "codec/png_reader.h"

#include "platform/limits.h"

namespace plenovia {

namespace {

constexpr std::uint64_t kMostExpansion = 1032;  // of deflate: 258 bytes for two bits
// What a few seconds suffice for; a file that brings its bytes along may have more.
constexpr std::uint64_t kMostRawBytes = std::uint64_t{3} << 29;
constexpr std::uint64_t kMostRawBytesPerByte = 16;

}  // namespace

PngReader::PngReader(std::span<const std::uint8_t> bytes, Samples samples)
    : source_(bytes), fileSize_(bytes.size()), samples_(samples) {}

PngReader::~PngReader() {
  png_destroy_read_struct(&png_, &info_, nullptr);
}

void PngReader::ReadBytes(png_structp png, png_bytep to, std::size_t count) {
  auto& source = *static_cast<ByteReader*>(png_get_io_ptr(png));
  if (!source.Take(to, count)) png_error(png, "truncated");
}

std::string PngReader::Damage() const {
  if (source_.truncated()) return kTruncated;
  return broken_ || errors_.wrongChecksum() ? "The PNG file is damaged." : "";
}

tl::unexpected<Error> PngReader::Damaged() {
  broken_ = true;
  return Failure(ErrorCode::kCorrupt, Damage());
}

void PngReader::ReadHeader() {
  png_set_read_fn(png_, &source_, ReadBytes);
  png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);  // CheckLimits() has its own
  png_set_crc_action(png_, PNG_CRC_WARN_USE, PNG_CRC_WARN_DISCARD);
  // Only what the pixels need is read: other chunks cost memory and time.
  png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
  png_read_info(png_, info_);
}

// Asks the library for 8 bits a channel and no transparent colours besides alpha, or for fine grays
// alone.
void PngReader::Prepare() {
  if (samples_ == Samples::kFineGrays) {
    png_set_strip_alpha(png_);
    png_read_update_info(png_, info_);
    return;
  }
  const int type = png_get_color_type(png_, info_);
  png_set_packing(png_);
  if (type == PNG_COLOR_TYPE_GRAY) png_set_expand_gray_1_2_4_to_8(png_);
  if (type != PNG_COLOR_TYPE_PALETTE && png_get_valid(png_, info_, PNG_INFO_tRNS) != 0) {
    png_set_tRNS_to_alpha(png_);
  }
  png_set_strip_16(png_);
  png_read_update_info(png_, info_);
}

Result<void> PngReader::CheckLimits() const {
  if (auto fits =
          CheckPictureSize(png_get_image_width(png_, info_), png_get_image_height(png_, info_));
      !fits) {
    return fits;
  }
  const std::uint64_t raw =
      (std::uint64_t{png_get_rowbytes(png_, info_)} + 1) * png_get_image_height(png_, info_);
  if (raw / kMostExpansion > fileSize_) {
    return Failure(ErrorCode::kCorrupt, "The file is too short for its size in pixels.");
  }
  const bool trueColour =
      (png_get_color_type(png_, info_) & ~PNG_COLOR_MASK_ALPHA) == PNG_COLOR_TYPE_RGB;
  const std::uint64_t work = trueColour ? 2 * raw : raw;  // it is read twice
  if (work > kMostRawBytes + kMostRawBytesPerByte * fileSize_) {
    return Failure(ErrorCode::kTooLarge, "The PNG file expands to too many bytes of pixels.");
  }
  return {};
}

Result<void> PngReader::Open() {
  png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, &errors_, PngErrors::Fail, PngErrors::Note);
  info_ = png_ == nullptr ? nullptr : png_create_info_struct(png_);
  if (info_ == nullptr) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to read the PNG file.");
  }
  if (!errors_.Guarded([this] { ReadHeader(); })) return Damaged();
  if (auto fits = CheckLimits(); !fits) return fits;
  if (!errors_.Guarded([this] { Prepare(); })) return Damaged();
  width_ = static_cast<int>(png_get_image_width(png_, info_));
  height_ = static_cast<int>(png_get_image_height(png_, info_));
  channels_ = png_get_channels(png_, info_);
  interlaced_ = png_get_interlace_type(png_, info_) != PNG_INTERLACE_NONE;
  row_.resize(png_get_rowbytes(png_, info_));
  return {};
}

Palette PngReader::palette() const {
  png_colorp colours = nullptr;
  int count = 0;
  if (png_get_color_type(png_, info_) != PNG_COLOR_TYPE_PALETTE ||
      png_get_PLTE(png_, info_, &colours, &count) == 0) {
    return Palette::Grays();
  }
  std::vector<Rgb> entries;
  for (int i = 0; i < count; ++i) {
    entries.push_back({colours[i].red, colours[i].green, colours[i].blue});
  }
  return Palette(entries);
}

PngRowPlace PngReader::PlaceOf(int pass, int y) const {
  if (!interlaced_) return {y, 0, 1};
  return {PNG_ROW_FROM_PASS_ROW(y, pass), PNG_PASS_START_COL(pass), 1 << PNG_PASS_COL_SHIFT(pass)};
}

}  // namespace plenovia
