#include "codec/jpeg.h"

#include <algorithm>
#include <array>
#include <vector>

#include "codec/byte_stream.h"
#include "codec/colour_reducer.h"
#include "codec/jpeg_errors.h"
#include "codec/jpeg_reader.h"
#include "codec/kept_colours.h"
#include "codec/picture_comment.h"

namespace plenovia {

namespace {

constexpr int kQuality = 95;

Result<IndexedImage> ReadGray(JpegReader& file) {
  auto picture = IndexedImage::Create(file.width(), file.height(), Palette::Grays());
  if (!picture) return picture;
  const auto read = file.ReadRows([&](int y, std::span<const std::uint8_t> row) {
    std::copy(row.begin(), row.end(), picture->Row(y).begin());
  });
  if (!read) return tl::unexpected(read.error());
  return picture;
}

Result<IndexedImage> ReadColours(JpegReader& file, int threads) {
  if (const auto kept = KeptColours::Create(file.width(), file.height(), threads)) {
    const auto read =
        file.ReadRows([&](int, std::span<const std::uint8_t> row) { kept->Add(row); });
    if (!read) return tl::unexpected(read.error());
    return kept->Reduce();
  }
  std::vector<Rgb> colours(static_cast<std::size_t>(file.width()));
  const auto toColours = [&](std::span<const std::uint8_t> row) {
    for (std::size_t x = 0; x < colours.size(); ++x) {
      colours[x] = {row[3 * x], row[3 * x + 1], row[3 * x + 2]};
    }
  };
  ColourReducer reducer;
  const auto counted = file.ReadRows([&](int, std::span<const std::uint8_t> row) {
    toColours(row);
    reducer.Count(colours);
  });
  if (!counted) return tl::unexpected(counted.error());
  reducer.BuildPalette();
  auto picture = IndexedImage::Create(file.width(), file.height(), reducer.palette());
  if (!picture) return picture;
  const auto mapped = file.ReadRows([&](int y, std::span<const std::uint8_t> row) {
    toColours(row);
    reducer.Map(colours, picture->Row(y));
  });
  if (!mapped) return tl::unexpected(mapped.error());
  return picture;
}

// Gathers what the library writes.
struct Destination {
  jpeg_destination_mgr base{};  // the first member, so that the library's pointer leads here
  ByteBuffer bytes;
  std::array<std::uint8_t, 65536> buffer;
  bool full = false;  // there was not enough memory

  Destination() {
    base.init_destination = [](j_compress_ptr info) { Of(info).Restart(); };
    base.empty_output_buffer = [](j_compress_ptr info) -> boolean {
      Of(info).Take(Of(info).buffer.size());
      return TRUE;
    };
    base.term_destination = [](j_compress_ptr info) {
      Of(info).Take(Of(info).buffer.size() - info->dest->free_in_buffer);
    };
  }
  static Destination& Of(j_compress_ptr info) {
    return *reinterpret_cast<Destination*>(info->dest);
  }
  void Restart() {
    base.next_output_byte = buffer.data();
    base.free_in_buffer = buffer.size();
  }
  void Take(std::size_t count) {
    full = full || !AppendBytes(bytes, std::span(buffer).first(count));
    Restart();
  }
};

void StartFile(jpeg_compress_struct& info, const IndexedImage& picture, bool gray,
               std::span<const JOCTET> comment) {
  info.image_width = static_cast<JDIMENSION>(picture.width());
  info.image_height = static_cast<JDIMENSION>(picture.height());
  info.input_components = gray ? 1 : 3;
  info.in_color_space = gray ? JCS_GRAYSCALE : JCS_RGB;
  jpeg_set_defaults(&info);
  jpeg_set_quality(&info, kQuality, TRUE);
  for (int i = 0; i < info.num_components; ++i) {
    info.comp_info[i].h_samp_factor = 1;
    info.comp_info[i].v_samp_factor = 1;
  }
  jpeg_start_compress(&info, TRUE);
  if (comment.empty()) return;
  jpeg_write_marker(&info, JPEG_COM, comment.data(), static_cast<unsigned>(comment.size()));
}

}  // namespace

bool LooksLikeJpeg(std::span<const std::uint8_t> bytes) {
  return bytes.size() >= 3 && bytes[0] == 0xff && bytes[1] == 0xd8 && bytes[2] == 0xff;
}

std::string_view JpegLibrary() {
#define PLENOVIA_TEXT_OF(number) #number
#define PLENOVIA_TEXT(number) PLENOVIA_TEXT_OF(number)
  return "libjpeg-turbo " PLENOVIA_TEXT(LIBJPEG_TURBO_VERSION);
#undef PLENOVIA_TEXT
#undef PLENOVIA_TEXT_OF
}

Result<DecodedPicture> DecodeJpeg(std::span<const std::uint8_t> bytes, int threads) {
  JpegReader file(bytes);
  if (auto opened = file.Open(); !opened) return tl::unexpected(opened.error());
  auto picture = file.gray() ? ReadGray(file) : ReadColours(file, threads);
  if (!picture) return tl::unexpected(picture.error());
  return DecodedPicture(std::move(*picture), file.Damage(), FindJpegComment(bytes));
}

Result<EncodedPicture> EncodeJpeg(const IndexedImage& picture, std::string_view comment) {
  if (picture.empty()) return Failure(ErrorCode::kInvalid, "There is no picture to write.");
  const auto entries = picture.palette().entries();
  const bool gray = std::all_of(entries.begin(), entries.end(),
                                [](Rgb c) { return c.red == c.green && c.green == c.blue; });
  const std::size_t channels = gray ? 1 : 3;
  std::vector<std::uint8_t> row(channels * static_cast<std::size_t>(picture.width()));
  const std::span<const JOCTET> text(reinterpret_cast<const JOCTET*>(comment.data()),
                                     std::min<std::size_t>(comment.size(), 65533));
  JpegErrors errors;
  Destination destination;
  jpeg_compress_struct info{};
  info.err = errors.manager();
  const bool written = errors.Guarded([&] {
    jpeg_create_compress(&info);
    info.dest = &destination.base;
    StartFile(info, picture, gray, text);
    for (int y = 0; y < picture.height(); ++y) {
      auto to = row.begin();
      for (const std::uint8_t index : picture.Row(y)) {
        const Rgb c = picture.palette()[index];
        *to++ = c.red;
        if (gray) continue;
        *to++ = c.green;
        *to++ = c.blue;
      }
      JSAMPROW line = row.data();
      jpeg_write_scanlines(&info, &line, 1);
    }
    jpeg_finish_compress(&info);
  });
  jpeg_destroy_compress(&info);
  if (!written) return tl::unexpected(errors.LastError());
  if (destination.full) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory to write the JPEG file.");
  }
  return EncodedPicture(std::move(destination.bytes));
}

}  // namespace plenovia
