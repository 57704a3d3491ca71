#include "codec/jpeg.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
// The library's header needs <cstdio>.
#include <jpeglib.h>

#include <vector>

#include "codec/jpeg_reader.h"
#include "codec/reduce_rows.h"
#include "codec/tests/reader_checks.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

struct Kind {
  J_COLOR_SPACE pixels = JCS_RGB;
  J_COLOR_SPACE file = JCS_YCbCr;
  bool progressive = false;
  bool severalScans = false;  // one for each colour
  bool arithmetic = false;
  int restart = 0;
};

constexpr int kWidth = 45;
constexpr int kHeight = 37;

// A soft scene, which JPEG keeps well.
Rgb Scene(int x, int y) {
  return {static_cast<std::uint8_t>(40 + 4 * x), static_cast<std::uint8_t>(220 - 5 * y),
          static_cast<std::uint8_t>(90 + x + 2 * y)};
}

ByteBuffer MakeJpeg(const Kind& kind) {
  jpeg_error_mgr errors;
  jpeg_compress_struct info;
  info.err = jpeg_std_error(&errors);
  jpeg_create_compress(&info);
  unsigned char* memory = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&info, &memory, &size);
  info.image_width = kWidth;
  info.image_height = kHeight;
  info.in_color_space = kind.pixels;
  info.input_components = kind.pixels == JCS_GRAYSCALE ? 1 : kind.pixels == JCS_RGB ? 3 : 4;
  jpeg_set_defaults(&info);
  jpeg_set_colorspace(&info, kind.file);
  jpeg_set_quality(&info, 95, TRUE);
  info.restart_in_rows = kind.restart;
  info.arith_code = kind.arithmetic ? TRUE : FALSE;
  if (kind.progressive) jpeg_simple_progression(&info);
  const jpeg_scan_info scans[] = {
      {1, {0}, 0, 63, 0, 0}, {1, {1}, 0, 63, 0, 0}, {1, {2}, 0, 63, 0, 0}};
  if (kind.severalScans) {
    info.scan_info = scans;
    info.num_scans = 3;
  }
  jpeg_start_compress(&info, TRUE);
  for (int y = 0; y < kHeight; ++y) {
    std::vector<JSAMPLE> row;
    for (int x = 0; x < kWidth; ++x) {
      const Rgb c = Scene(x, y);
      row.push_back(c.red);
      if (info.input_components >= 3) row.insert(row.end(), {c.green, c.blue});
      if (info.input_components == 4) row.push_back(255);  // no black, as Adobe stores inks
    }
    JSAMPROW line = row.data();
    jpeg_write_scanlines(&info, &line, 1);
  }
  jpeg_finish_compress(&info);
  jpeg_destroy_compress(&info);
  const ByteBuffer bytes(memory, memory + size);
  std::free(memory);
  return bytes;
}

// The mean difference from the scene, in levels.
double Error(const IndexedImage& picture, bool gray) {
  double sum = 0;
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const Rgb want = Scene(x, y);
      const Rgb got = picture.palette()[picture.Row(y)[static_cast<std::size_t>(x)]];
      sum += std::abs(want.red - got.red);
      if (!gray) sum += std::abs(want.green - got.green) + std::abs(want.blue - got.blue);
    }
  }
  return sum / (kWidth * kHeight * (gray ? 1 : 3));
}

TEST(Jpeg, EveryKindIsRead) {
  const Kind kinds[] = {
      {JCS_GRAYSCALE, JCS_GRAYSCALE},
      {JCS_GRAYSCALE, JCS_GRAYSCALE, true},
      {},
      {JCS_RGB, JCS_YCbCr, true},
      {JCS_RGB, JCS_YCbCr, false, true},
      {JCS_RGB, JCS_YCbCr, false, false, false, 1},
      {JCS_RGB, JCS_RGB},
      {JCS_CMYK, JCS_CMYK},
      {JCS_CMYK, JCS_YCCK},
      {JCS_CMYK, JCS_YCCK, true},
      {JCS_RGB, JCS_YCbCr, false, false, true},
      {JCS_RGB, JCS_YCbCr, true, false, true},
  };
  for (const Kind& kind : kinds) {
    SCOPED_TRACE(testing::Message() << "pixels " << kind.pixels << " file " << kind.file
                                    << " progressive " << kind.progressive);
    const ByteBuffer bytes = MakeJpeg(kind);
    EXPECT_TRUE(LooksLikeJpeg(bytes));
    const auto picture = DecodeJpeg(bytes);
    ASSERT_TRUE(picture) << picture.error().message;
    ASSERT_EQ(picture->width(), kWidth);
    ASSERT_EQ(picture->height(), kHeight);
    const bool gray = kind.pixels == JCS_GRAYSCALE;
    EXPECT_LT(Error(*picture, gray), gray ? 1 : 4);
    EXPECT_EQ(picture->palette() == Palette::Grays(), gray);
  }
}

TEST(Jpeg, InksWithoutAdobesMarkAreWhatIsPutOn) {
  ByteBuffer bytes = MakeJpeg({JCS_CMYK, JCS_CMYK});
  const std::string mark = "Adobe";
  const auto at = std::search(bytes.begin(), bytes.end(), mark.begin(), mark.end());
  ASSERT_NE(at, bytes.end());
  *at = 'a';
  // All the black ink that there is.
  EXPECT_EQ(Colours(DecodeJpeg(bytes)).substr(0, 13), "000000 000000");
}

TEST(Jpeg, WrittenPicturesKeepTheirColoursClosely) {
  auto picture = IndexedImage::Create(64, 64, Palette::Grays()).value();
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) {
      picture.Row(y)[static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(2 * x + y);
    }
  }
  const auto gray = DecodeJpeg(EncodeJpeg(picture).value().Joined());
  ASSERT_TRUE(gray) << gray.error().message;
  EXPECT_EQ(gray->palette(), Palette::Grays());
  EXPECT_TRUE(SameColours(picture, *gray, 3));

  // Stripes of a pixel in pure colours live in the chroma alone.
  const std::vector<Rgb> colours{{255, 0, 0}, {0, 0, 255}};
  picture.SetPalette(Palette(colours));
  for (auto& pixel : picture.pixels()) pixel &= 1;
  const auto coloured = DecodeJpeg(EncodeJpeg(picture).value().Joined());
  ASSERT_TRUE(coloured) << coloured.error().message;
  EXPECT_TRUE(SameColours(picture, *coloured, 40));
}

TEST(Jpeg, LargePicturesAreReducedAsTheirRowsAre) {
  Random random(1);
  const ByteBuffer file = EncodeJpeg(RandomPicture(random, 401, 403, 256)).value().Joined();
  JpegReader reader(file);
  ASSERT_TRUE(reader.Open());
  std::vector<Rgb> colours;
  ASSERT_TRUE(reader.ReadRows([&](int, std::span<const std::uint8_t> row) {
    for (std::size_t i = 0; i < row.size(); i += 3)
      colours.push_back({row[i], row[i + 1], row[i + 2]});
  }));
  auto next = colours.begin();
  const auto expected = ReduceRows(401, 403, [&](int y, std::span<Rgb> row) {
    if (y == 0) next = colours.begin();
    std::copy_n(next, row.size(), row.begin());
    next += std::ssize(row);
    return true;
  });
  EXPECT_EQ(DecodeJpeg(file).value(), expected.value());
  const auto cut = DecodeJpeg(std::span(file).first(file.size() / 2));
  ASSERT_TRUE(cut);
  EXPECT_EQ(cut->damage, kTruncated);
}

TEST(Jpeg, TruncationIsNoticedAtEveryByteAndShowsWhatIsThere) {
  const auto decode = [](std::span<const std::uint8_t> bytes) { return DecodeJpeg(bytes); };
  for (const bool progressive : {false, true}) {
    const ByteBuffer file = MakeJpeg({JCS_RGB, JCS_YCbCr, progressive});
    ExpectTruncationIsNoticed(decode, file);
    const auto cut = DecodeJpeg(std::span(file).first(file.size() - 40));
    ASSERT_TRUE(cut);
    EXPECT_LT(Error(*cut, false), 20) << "most of it is there";
    // Cut off and closed again with the mark of the end.
    for (std::size_t size = 0; size < file.size() - 16 && !progressive; size += 5) {
      ByteBuffer closed(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
      closed.insert(closed.end(), {0xff, 0xd9});
      const auto picture = DecodeJpeg(closed);
      EXPECT_TRUE(!picture || !picture->damage.empty()) << "closed after " << size << " bytes";
    }
    ExpectCorruptionIsHarmless(decode, MakeJpeg({JCS_GRAYSCALE, JCS_GRAYSCALE, progressive}));
    ExpectCorruptionIsHarmless(decode, MakeJpeg({JCS_RGB, JCS_YCbCr, progressive, false, true}));
  }
}

// What cameras and telephones write around their pictures, and disks do to them.
TEST(Jpeg, DamageBesideThePixelsIsForgiven) {
  for (const bool progressive : {false, true}) {
    const ByteBuffer file = MakeJpeg({JCS_RGB, JCS_YCbCr, progressive});
    const IndexedImage whole = DecodeJpeg(file).value();
    const auto with = [&](std::size_t at, const std::vector<std::uint8_t>& bytes) {
      ByteBuffer changed = file;
      changed.insert(changed.begin() + static_cast<std::ptrdiff_t>(at), bytes.begin(), bytes.end());
      return DecodeJpeg(changed);
    };
    // EXIF data that is longer than its length says, and such of no length.
    for (const std::uint8_t length : std::initializer_list<std::uint8_t>{0, 2, 8}) {
      const auto exif = with(2, {0xff, 0xe1, 0, length, 'E', 'x', 'i', 'f', 0, 0, 'M', 'M', 0, 42});
      ASSERT_TRUE(exif) << exif.error().message;
      EXPECT_EQ(*exif, whole);
    }
    // A second picture, and plain rubbish, behind the first.
    for (const std::vector<std::uint8_t>& more :
         {std::vector<std::uint8_t>(file.begin(), file.end()), {0xff, 0xc4, 0, 3, 0, 1, 2, 3}}) {
      const auto followed = with(file.size(), more);
      ASSERT_TRUE(followed) << followed.error().message;
      EXPECT_EQ(*followed, whole);
      EXPECT_EQ(followed->damage, "");
      // Even without the mark of the end between them.
      const auto merged = with(file.size() - 2, {0xff, 0xc4, 0, 3, 9});
      ASSERT_TRUE(merged) << merged.error().message;
      EXPECT_EQ(*merged, whole);
    }
    // A few pixels gone.
    const auto hole = with(file.size() - 60, {0xff, 0xd5, 1, 2, 3});
    ASSERT_TRUE(hole) << hole.error().message;
    EXPECT_NE(hole->damage, "");
  }
}

TEST(Jpeg, ASizeThatTheBytesCannotFillIsRefused) {
  ByteBuffer bytes = MakeJpeg({JCS_GRAYSCALE, JCS_GRAYSCALE});
  const std::uint8_t frame[] = {0xff, 0xc0, 0, 11, 8};
  const auto at = std::search(bytes.begin(), bytes.end(), frame, frame + 5);
  ASSERT_NE(at, bytes.end());
  at[5] = 0x40;  // 16384 pixels high and wide
  at[7] = 0x40;
  EXPECT_EQ(DecodeJpeg(bytes).error().message, "The file is too short for its size in pixels.");
  at[7] = 0xff;
  EXPECT_EQ(DecodeJpeg(bytes).error().code, ErrorCode::kTooLarge);
}

}  // namespace
}  // namespace plenovia
