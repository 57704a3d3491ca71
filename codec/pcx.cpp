#include "codec/pcx.h"

#include <algorithm>
#include <array>
#include <new>
#include <utility>
#include <vector>

#include "codec/packed_bits.h"
#include "codec/reduce_rows.h"
#include "platform/limits.h"
#include "platform/little_endian.h"

namespace plenovia {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kPcxHeaderBytes = 128;

// What stands before the pixels.
struct PcxHeader {
  int version = 0;
  bool runLength = false;
  int width = 0;
  int height = 0;
  int bits = 0;                // a pixel in each plane: 1, 2, 4 or 8
  int planes = 0;              // 1 to 4
  std::size_t planeBytes = 0;  // a row of one plane, at least as long as the pixels need
  bool saysColour = false;     // the palette is meant as colours, not as grays

  std::size_t LineBytes() const { return planeBytes * static_cast<std::size_t>(planes); }
  // Whether the planes are red, green and blue instead of the bits of an index.
  bool TrueColour() const { return planes >= 3 && bits > 1; }
  // The bits of an index.
  int IndexBits() const { return bits == 8 ? 8 : bits * planes; }
};

// Whether `there` bytes of pixels are enough to begin with. The best that run-length encoding does
// is 63 bytes in 2.
bool EnoughBytes(const PcxHeader& header, std::size_t there) {
  const std::size_t claimed = header.LineBytes() * static_cast<std::size_t>(header.height);
  return WorthReading(claimed, header.runLength ? 32 * there : there);
}

// Checks all that the header says, also that its pixels have some bytes.
Result<PcxHeader> ParsePcxHeader(std::span<const std::uint8_t> bytes) {
  if (bytes.size() < kPcxHeaderBytes) return Truncated();
  PcxHeader header;
  header.version = bytes[1];
  header.runLength = bytes[2] == 1;
  header.bits = bytes[3];
  header.planes = bytes[65];
  header.planeBytes = Get16(bytes, 66);
  header.saysColour = Get16(bytes, 68) == 1;
  if (header.planes < 1 || header.planes > 4) {
    return Failure(ErrorCode::kUnsupported, "This number of PCX planes is not supported.");
  }

  const int width = Get16(bytes, 8) - Get16(bytes, 4) + 1;
  const int height = Get16(bytes, 10) - Get16(bytes, 6) + 1;
  if (auto fits = CheckPictureSize(width, height); !fits) return tl::unexpected(fits.error());
  header.width = width;
  header.height = height;
  if (header.planeBytes < PackedBytes(static_cast<std::size_t>(width), header.bits)) {
    return Failure(ErrorCode::kCorrupt, "The file is damaged: its rows are too short.");
  }
  if (!EnoughBytes(header, bytes.size() - kPcxHeaderBytes)) return Truncated();
  return header;
}

constexpr std::uint8_t kRunMark = 0xc0;  // the upper two bits of a run's length byte
constexpr std::size_t kLongestRun = 63;

// Reads plain or run-length encoded bytes from first to last. A run may go on in the next line.
class PcxLineReader {
 public:
  PcxLineReader(std::span<const std::uint8_t> encoded, bool runLength)
      : encoded_(encoded), runLength_(runLength) {}

  // Fills `line` with the next bytes, or returns false when there are not as many.
  [[nodiscard]] bool Read(std::span<std::uint8_t> line);
  // How many encoded bytes the lines took up to now.
  std::size_t Position() const { return at_; }

 private:
  std::span<const std::uint8_t> encoded_;
  bool runLength_;
  std::size_t at_ = 0;
  std::size_t left_ = 0;  // of the run that the last line began
  std::uint8_t value_ = 0;
};

bool PcxLineReader::Read(std::span<std::uint8_t> line) {
  if (!runLength_) {
    if (encoded_.size() - at_ < line.size()) return false;
    std::copy_n(encoded_.begin() + static_cast<std::ptrdiff_t>(at_), line.size(), line.begin());
    at_ += line.size();
    return true;
  }
  for (std::size_t done = 0; done < line.size();) {
    if (left_ > 0) {
      const std::size_t taken = std::min(left_, line.size() - done);
      std::fill_n(line.begin() + static_cast<std::ptrdiff_t>(done), taken, value_);
      done += taken;
      left_ -= taken;
      continue;
    }
    if (at_ == encoded_.size()) return false;
    const std::uint8_t byte = encoded_[at_++];
    if (byte < kRunMark) {
      line[done++] = byte;
      continue;
    }
    if (at_ == encoded_.size()) return false;
    left_ = byte & kLongestRun;
    value_ = encoded_[at_++];
  }
  return true;
}

// Encodes one line by itself and returns how many bytes of `encoded` it took, at most twice as many
// as the line has: `encoded` has room for that.
std::size_t EncodePcxLine(std::span<const std::uint8_t> line, std::uint8_t* encoded) {
  std::uint8_t* out = encoded;
  for (std::size_t at = 0; at < line.size();) {
    const std::uint8_t value = line[at];
    const std::size_t end = std::min(line.size(), at + kLongestRun);
    std::size_t next = at + 1;
    while (next < end && line[next] == value) ++next;
    // Written always and kept at need: among random dots a jump would be guessed wrong too often.
    *out = static_cast<std::uint8_t>(kRunMark | (next - at));
    out += next - at > 1 || value >= kRunMark ? 1 : 0;
    *out++ = value;
    at = next;
  }
  return static_cast<std::size_t>(out - encoded);
}

// The palette of 256 colours at the end of a file: this byte, then red, green and blue of each.
constexpr std::uint8_t kPcxPaletteMark = 0x0c;
constexpr std::size_t kPcxPaletteBytes = 1 + 3 * 256;

constexpr std::size_t kHeaderColours = 16;  // where the header's palette begins

// The 16 colours of the colour and of the enhanced graphics adapter.
constexpr std::array<Rgb, 16> kAdapterColours = {{
    {0, 0, 0},
    {0, 0, 170},
    {0, 170, 0},
    {0, 170, 170},
    {170, 0, 0},
    {170, 0, 170},
    {170, 85, 0},
    {170, 170, 170},
    {85, 85, 85},
    {85, 85, 255},
    {85, 255, 85},
    {85, 255, 255},
    {255, 85, 85},
    {255, 85, 255},
    {255, 255, 85},
    {255, 255, 255},
}};

template <std::size_t kSize>
std::array<Rgb, kSize> ReadColours(Bytes bytes) {
  std::array<Rgb, kSize> colours;
  for (std::size_t i = 0; i < kSize; ++i) {
    colours[i] = {bytes[3 * i], bytes[3 * i + 1], bytes[3 * i + 2]};
  }
  return colours;
}

bool AllZero(Bytes bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t b) { return b == 0; });
}

// Four colours: the background by number, and one of the colour adapter's sets, where the header of
// early versions holds bit fields in the first bytes of its first two colours.
Palette AdapterFour(Bytes header) {
  const std::size_t background = header[kHeaderColours] >> 4;
  const std::uint8_t flags = header[kHeaderColours + 3];
  const bool white = (flags & 0x40) != 0;  // cyan, magenta, white; else green, red, brown
  const bool bright = (flags & 0x20) != 0;
  std::array<Rgb, 4> colours = {kAdapterColours[background]};
  for (std::size_t i = 1; i < 4; ++i) {
    colours[i] = kAdapterColours[2 * i + (white ? 1 : 0) + (bright ? 8 : 0)];
  }
  return Palette(colours);
}

Palette HeaderPalette(const PcxHeader& header, Bytes bytes) {
  const Bytes stored = bytes.subspan(kHeaderColours, 3 * kAdapterColours.size());
  const bool missing = header.version == 0 || header.version == 3 || AllZero(stored);
  const std::size_t count = std::size_t{1} << header.IndexBits();
  const auto colours = ReadColours<16>(stored);

  if (count == 2 && (missing || colours[0] == colours[1])) return Palette::Grays(2);
  if (count == 4 && header.planes == 1) {
    const bool bitFields = AllZero(stored.subspan(1, 2)) && AllZero(stored.subspan(4, 8));
    if (missing || bitFields) return AdapterFour(bytes);
  }
  return Palette(std::span<const Rgb>(missing ? kAdapterColours : colours).first(count));
}

// The palette of a picture and whether it is one that the file lacks.
struct PcxPalette {
  Palette colours;
  bool missing = false;
};

PcxPalette PaletteAtEnd(const PcxHeader& header, Bytes bytes, std::size_t pixelsEnd) {
  const std::size_t behind = bytes.size() - pixelsEnd;
  if (behind >= kPcxPaletteBytes) {
    for (const std::size_t at : {bytes.size() - kPcxPaletteBytes, pixelsEnd}) {
      if (bytes[at] == kPcxPaletteMark) return {Palette(ReadColours<256>(bytes.subspan(at + 1)))};
    }
  }
  const bool cutOff =
      behind > 0 && behind < kPcxPaletteBytes && bytes[pixelsEnd] == kPcxPaletteMark;
  return {Palette::Grays(), header.version >= 5 && (header.saysColour || cutOff)};
}

// `bytes` is the whole file and `pixelsEnd` the place where its pixels end. Up to 16 colours stand
// in the header; where they are missing, or the version has none, those of the display adapters of
// its time hold. 256 colours stand at the end of the file; where they are missing the picture is
// gray, and if the header speaks of colours the file is truncated.
PcxPalette ReadPcxPalette(const PcxHeader& header, Bytes bytes, std::size_t pixelsEnd) {
  if (header.IndexBits() == 8) return PaletteAtEnd(header, bytes, pixelsEnd);
  return {HeaderPalette(header, bytes)};
}

constexpr std::uint8_t kMaker = 0x0a;

// The rows of a picture, first to last, plane by plane as one byte a pixel.
class PlaneRows {
 public:
  PlaneRows(const PcxHeader& header, Bytes bytes)
      : header_(header),
        start_(bytes.subspan(kPcxHeaderBytes), header.runLength),
        reader_(start_),
        line_(header.LineBytes()) {}

  void Restart() { reader_ = start_; }
  [[nodiscard]] bool Next() { return reader_.Read(line_); }
  // The place in the file behind the rows that were read.
  std::size_t End() const { return kPcxHeaderBytes + reader_.Position(); }

  // The row's values in one plane.
  void Unpack(int plane, std::span<std::uint8_t> values) const {
    const auto start = static_cast<std::size_t>(plane) * header_.planeBytes;
    UnpackBits(Bytes(line_).subspan(start), header_.bits, values);
  }

 private:
  const PcxHeader& header_;
  const PcxLineReader start_;
  PcxLineReader reader_;
  std::vector<std::uint8_t> line_;
};

Result<DecodedPicture> DecodeIndexed(const PcxHeader& header, Bytes bytes) {
  auto image = IndexedImage::Create(header.width, header.height, Palette());
  if (!image) return tl::unexpected(image.error());
  PlaneRows rows(header, bytes);
  std::vector<std::uint8_t> values(static_cast<std::size_t>(header.width));
  int missing = 0;
  for (int y = 0; y < header.height; ++y) {
    const auto row = image->Row(y);
    if (missing > 0 || !rows.Next()) {
      std::fill(row.begin(), row.end(), std::uint8_t{0});
      ++missing;
      continue;
    }
    rows.Unpack(0, row);
    for (int bit = header.bits; bit < header.IndexBits(); bit += header.bits) {
      rows.Unpack(bit / header.bits, values);
      for (std::size_t x = 0; x < row.size(); ++x) {
        row[x] = static_cast<std::uint8_t>(row[x] | values[x] << bit);
      }
    }
  }
  if (missing == header.height) return Truncated();
  const PcxPalette palette = ReadPcxPalette(header, bytes, missing > 0 ? bytes.size() : rows.End());
  image->SetPalette(palette.colours);
  return DecodedPicture(std::move(*image), missing > 0 || palette.missing ? kTruncated : "");
}

Result<DecodedPicture> DecodeTrueColour(const PcxHeader& header, Bytes bytes) {
  const auto width = static_cast<std::size_t>(header.width);
  const int step = 255 / ((1 << header.bits) - 1);  // between two levels of 2, 4 or 8 bits
  std::array<std::vector<std::uint8_t>, 3> parts;
  parts.fill(std::vector<std::uint8_t>(width));
  PlaneRows rows(header, bytes);
  return ReduceRows(header.width, header.height, [&](int y, std::span<Rgb> colours) {
    if (y == 0) rows.Restart();
    if (!rows.Next()) return false;
    for (int plane = 0; plane < 3; ++plane) {
      auto& values = parts[static_cast<std::size_t>(plane)];
      rows.Unpack(plane, values);
      for (auto& value : values) value = static_cast<std::uint8_t>(value * step);
    }
    for (std::size_t x = 0; x < width; ++x) colours[x] = {parts[0][x], parts[1][x], parts[2][x]};
    return true;
  });
}

void PutHeader(const IndexedImage& picture, std::uint32_t lineBytes, ByteBuffer& file) {
  constexpr std::uint32_t kDotsPerInch = 72;
  file.insert(file.end(), {kMaker, 5, 1, 8});  // version, run-length encoding, bits a pixel
  Put32(file, 0);                              // the upper left corner
  Put16(file, static_cast<std::uint32_t>(picture.width() - 1));
  Put16(file, static_cast<std::uint32_t>(picture.height() - 1));
  Put16(file, kDotsPerInch);
  Put16(file, kDotsPerInch);
  file.resize(file.size() + 48);  // the place of a palette of 16 colours
  std::fill(file.end() - 48, file.end(), std::uint8_t{0});
  file.insert(file.end(), {0, 1});  // one plane
  Put16(file, lineBytes);
  Put16(file, 1);  // the palette is meant as colours
  file.insert(file.end(), kPcxHeaderBytes - file.size(), 0);
}

}  // namespace

bool LooksLikePcx(Bytes bytes) {
  if (bytes.size() < 4 || bytes[0] != kMaker) return false;
  const int version = bytes[1];
  const int bits = bytes[3];
  return version <= 5 && version != 1 && bytes[2] <= 1 &&
         (bits == 1 || bits == 2 || bits == 4 || bits == 8);
}

Result<DecodedPicture> DecodePcx(Bytes bytes) {
  if (!LooksLikePcx(bytes)) return Failure(ErrorCode::kCorrupt, "The file is not a PCX file.");
  const auto header = ParsePcxHeader(bytes);
  if (!header) return tl::unexpected(header.error());
  return header->TrueColour() ? DecodeTrueColour(*header, bytes) : DecodeIndexed(*header, bytes);
}

Result<EncodedPicture> EncodePcx(const IndexedImage& picture) {
  if (auto fits = CheckPictureSize(picture.width(), picture.height()); !fits) {
    return tl::unexpected(fits.error());
  }
  const auto width = static_cast<std::size_t>(picture.width());
  const std::size_t lineBytes = (width + 1) / 2 * 2;
  const std::size_t mostPixelBytes = 2 * lineBytes * static_cast<std::size_t>(picture.height());
  ByteBuffer file;
  try {
    file.reserve(kPcxHeaderBytes + mostPixelBytes + kPcxPaletteBytes);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to write the picture.");
  }
  PutHeader(picture, static_cast<std::uint32_t>(lineBytes), file);

  std::size_t end = file.size();
  file.resize(end + mostPixelBytes);  // what is not written takes no memory
  for (int y = 0; y < picture.height(); ++y) {
    end += EncodePcxLine(picture.Row(y), file.data() + end);
    if (lineBytes > width) file[end++] = 0;
  }
  file.resize(end);
  file.push_back(kPcxPaletteMark);
  const Palette palette = picture.palette().Widened();
  for (const Rgb colour : palette.entries()) {
    file.insert(file.end(), {colour.red, colour.green, colour.blue});
  }
  return EncodedPicture(std::move(file));
}

}  // namespace plenovia
