#include "codec/gif.h"

#include <gif_lib.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "codec/lzw_compression.h"
#include "codec/tests/reader_checks.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

struct Frame {
  int left = 0;
  int top = 0;
  bool interlaced = false;
  bool local = false;  // the palette is the frame's own
  int transparent = -1;
};

int Append(GifFileType* file, const GifByteType* bytes, int count) {
  auto& to = *static_cast<ByteBuffer*>(file->UserData);
  to.insert(to.end(), bytes, bytes + count);
  return count;
}

void PutFrame(GifFileType* file, const IndexedImage& picture, const Frame& frame,
              const ColorMapObject* map) {
  if (frame.transparent >= 0) {
    const GraphicsControlBlock control{0, false, 0, frame.transparent};
    GifByteType block[4];
    EGifGCBToExtension(&control, block);
    EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, 4, block);
  }
  EGifPutImageDesc(file, frame.left, frame.top, picture.width(), picture.height(), frame.interlaced,
                   frame.local ? map : nullptr);
  const auto put = [&](int y) {
    std::vector<GifByteType> row(picture.Row(y).begin(), picture.Row(y).end());
    EGifPutLine(file, row.data(), picture.width());
  };
  if (!frame.interlaced) {
    for (int y = 0; y < picture.height(); ++y) put(y);
    return;
  }
  for (int y = 0; y < picture.height(); y += 8) put(y);
  for (int y = 4; y < picture.height(); y += 8) put(y);
  for (int y = 2; y < picture.height(); y += 4) put(y);
  for (int y = 1; y < picture.height(); y += 2) put(y);
}

// A file with two frames, the second one a nuisance, on a screen with background colour 3.
ByteBuffer MakeGif(const IndexedImage& picture, int screenWidth, int screenHeight,
                   const Frame& frame) {
  ByteBuffer bytes;
  GifFileType* file = EGifOpen(&bytes, Append, nullptr);
  EGifSetGifVersion(file, true);
  ColorMapObject* map = GifMakeMapObject(picture.palette().size(), nullptr);
  for (int i = 0; i < map->ColorCount; ++i) {
    const Rgb c = picture.palette()[i];
    map->Colors[i] = {c.red, c.green, c.blue};
  }
  EGifPutScreenDesc(file, screenWidth, screenHeight, 8, 3, frame.local ? nullptr : map);
  EGifPutComment(file, "a comment");
  PutFrame(file, picture, frame, map);
  PutFrame(file, picture, Frame{1, 1, false, true, 0}, map);
  EGifCloseFile(file, nullptr);
  GifFreeMapObject(map);
  return bytes;
}

TEST(Gif, RoundTripKeepsEveryIndexAndColour) {
  Random random(1);
  for (const int colours : {1, 2, 3, 16, 17, 200, 256}) {
    const IndexedImage picture =
        RandomPicture(random, random.Int(1, 90), random.Int(1, 90), colours);
    const ByteBuffer bytes = EncodeGif(picture).value().Joined();
    EXPECT_TRUE(LooksLikeGif(bytes));
    const auto again = DecodeGif(bytes);
    ASSERT_TRUE(again) << again.error().message;
    EXPECT_TRUE(SamePixels(picture, *again));
    EXPECT_TRUE(SameColours(picture, *again));
  }
}

TEST(Gif, LongStringsAndManyClearCodesSurvive) {
  // One colour makes the longest strings; noise fills the table again and again.
  Random random(2);
  IndexedImage plain = RandomPicture(random, 600, 500, 256);
  EXPECT_TRUE(SamePixels(plain, DecodeGif(EncodeGif(plain).value().Joined()).value()));
  plain.Fill(7);
  EXPECT_TRUE(SamePixels(plain, DecodeGif(EncodeGif(plain).value().Joined()).value()));
}

// The whole file as giflib compresses it.
ByteBuffer WrittenByLibrary(const IndexedImage& picture) {
  ByteBuffer bytes;
  GifFileType* file = EGifOpen(&bytes, Append, nullptr);
  ColorMapObject* map = GifMakeMapObject(picture.palette().size(), nullptr);
  for (int i = 0; i < map->ColorCount; ++i) {
    const Rgb c = picture.palette()[i];
    map->Colors[i] = {c.red, c.green, c.blue};
  }
  EGifPutScreenDesc(file, picture.width(), picture.height(), 8, 0, map);
  PutFrame(file, picture, {}, nullptr);
  EGifCloseFile(file, nullptr);
  GifFreeMapObject(map);
  return bytes;
}

// The pixels as giflib reads them.
std::vector<std::uint8_t> ReadByLibrary(const ByteBuffer& bytes) {
  std::span<const std::uint8_t> rest = bytes;
  const auto read = [](GifFileType* file, GifByteType* to, int count) {
    auto& from = *static_cast<std::span<const std::uint8_t>*>(file->UserData);
    const std::size_t taken = std::min(from.size(), static_cast<std::size_t>(count));
    std::copy_n(from.begin(), taken, to);
    from = from.subspan(taken);
    return static_cast<int>(taken);
  };
  GifFileType* file = DGifOpen(&rest, read, nullptr);
  EXPECT_EQ(DGifSlurp(file), GIF_OK);
  std::vector<std::uint8_t> pixels;
  if (file->ImageCount == 1) {
    const auto* first = file->SavedImages[0].RasterBits;
    pixels.assign(first, first + file->SWidth * file->SHeight);
  }
  DGifCloseFile(file, nullptr);
  return pixels;
}

TEST(Gif, SmallPicturesAreCompressedAsTheLibraryDoes) {
  Random random(7);
  for (const int colours : {2, 4, 8, 16, 64, 256}) {
    for (const int side : {1, 2, 3, 40, 300}) {  // up to where the table of strings is full
      IndexedImage picture = RandomPicture(random, side, side + 1, colours);
      EXPECT_EQ(EncodeGif(picture).value().Joined(), WrittenByLibrary(picture));
      for (auto& pixel : picture.pixels()) pixel = random.Int(0, 9) == 0 ? pixel : 0;
      EXPECT_EQ(EncodeGif(picture).value().Joined(), WrittenByLibrary(picture));
    }
  }
}

TEST(Gif, TheLibraryReadsTheSeamsOfLargePictures) {
  // The width of the codes at a seam depends on the pixels before it.
  Random random(8);
  for (const int colours : {2, 4, 256}) {
    for (const int rare : {1, 40, 100000}) {
      IndexedImage picture = RandomPicture(random, 1100, 1000, colours);
      for (auto& pixel : picture.pixels()) pixel = random.Int(1, rare) == 1 ? pixel : 1;
      ASSERT_GT(picture.pixels().size(), 2 * kLzwPartPixels);
      const ByteBuffer bytes = EncodeGif(picture).value().Joined();
      EXPECT_TRUE(std::ranges::equal(ReadByLibrary(bytes), picture.pixels()));
      EXPECT_EQ(DecodeGif(bytes).value(), picture);
    }
  }
}

TEST(Gif, PixelsBeyondThePaletteAreBlackInTheFile) {
  auto picture = IndexedImage::Create(2, 1, Palette(std::vector<Rgb>{{9, 8, 7}})).value();
  picture.Row(0)[0] = 0;
  picture.Row(0)[1] = 200;
  EXPECT_EQ(Colours(DecodeGif(EncodeGif(picture).value().Joined())), "090807 000000");
}

TEST(Gif, TheFirstFrameComesWithItsPaletteInAnyOrderOfRows) {
  Random random(3);
  for (const int height : {1, 2, 3, 5, 8, 33}) {
    const IndexedImage picture = RandomPicture(random, 13, height, 16);
    for (const bool interlaced : {false, true}) {
      for (const bool local : {false, true}) {
        const auto read = DecodeGif(MakeGif(picture, 13, height, {0, 0, interlaced, local}));
        ASSERT_TRUE(read) << read.error().message;
        EXPECT_EQ(*read, picture);
      }
    }
  }
}

TEST(Gif, AFrameLiesInItsScreen) {
  Random random(4);
  IndexedImage dot = RandomPicture(random, 2, 1, 16);
  dot.Fill(9);
  EXPECT_EQ(Indexes(DecodeGif(MakeGif(dot, 4, 3, {1, 1}))), "3333/3993/3333");
  EXPECT_EQ(Indexes(DecodeGif(MakeGif(dot, 4, 3, {1, 1, false, false, 5}))), "5555/5995/5555");
  EXPECT_EQ(Indexes(DecodeGif(MakeGif(dot, 4, 3, {1, 1, true, true}))), "0000/0990/0000");
  // A screen that is too small grows.
  EXPECT_EQ(Indexes(DecodeGif(MakeGif(dot, 1, 1, {1, 1}))), "333/399");
}

TEST(Gif, TruncationAndCorruptionAreNoticed) {
  Random random(5);
  const IndexedImage picture = RandomPicture(random, 9, 7, 8);
  ByteBuffer bytes = EncodeGif(picture).value().Joined();
  ExpectTruncationIsNoticed(DecodeGif, bytes);
  ExpectCorruptionIsHarmless(DecodeGif, bytes);
  ExpectCorruptionIsHarmless(DecodeGif, MakeGif(picture, 12, 12, {2, 1, true, true, 0}));
  bytes.pop_back();
  EXPECT_EQ(DecodeGif(bytes)->damage, kTruncated);
  EXPECT_EQ(*DecodeGif(bytes), picture);
}

// The picture in codes of single pixels, which few programs write but all read: the table fills up
// and stays. `clears` clear codes come before.
ByteBuffer PlainCodes(const IndexedImage& picture, int clears) {
  ByteBuffer file = EncodeGif(picture).value().Joined();
  file.resize(13 + 3 * 256 + 10 + 1);  // all that comes before the codes
  std::vector<std::uint8_t> bits;
  int width = 9;
  int next = 258;
  const auto put = [&](int code) {
    for (int i = 0; i < width; ++i) bits.push_back(static_cast<std::uint8_t>(code >> i & 1));
  };
  for (int i = 0; i < clears; ++i) put(256);
  bool first = true;
  for (const std::uint8_t pixel : picture.pixels()) {
    put(pixel);
    if (!first && next < 4096) ++next;
    if (next == 1 << width && width < 12) ++width;
    first = false;
  }
  put(257);
  for (std::size_t at = 0; at < bits.size();) {
    const std::size_t bytes = std::min<std::size_t>(255, (bits.size() - at + 7) / 8);
    file.push_back(static_cast<std::uint8_t>(bytes));
    for (std::size_t i = 0; i < bytes; ++i, at += 8) {
      unsigned byte = 0;
      for (std::size_t bit = 0; bit < 8 && at + bit < bits.size(); ++bit) {
        byte |= static_cast<unsigned>(bits[at + bit]) << bit;
      }
      file.push_back(static_cast<std::uint8_t>(byte));
    }
  }
  file.insert(file.end(), {0, ';'});
  return file;
}

TEST(Gif, UnusualCodesAreRead) {
  Random random(7);
  const IndexedImage picture = RandomPicture(random, 90, 60, 256);
  for (const int clears : {0, 1, 2, 3}) {
    const auto read = DecodeGif(PlainCodes(picture, clears));
    ASSERT_TRUE(read) << clears << ": " << read.error().message;
    EXPECT_EQ(read->damage, "") << clears;
    EXPECT_EQ(*read, picture) << clears;
  }
}

TEST(Gif, ASizeThatTheBytesCannotFillIsRefused) {
  Random random(6);
  ByteBuffer bytes = EncodeGif(RandomPicture(random, 9, 7, 8)).value().Joined();
  const auto claim = [&](std::size_t at, std::uint8_t low, std::uint8_t high) {
    bytes[at] = low;
    bytes[at + 1] = high;
  };
  claim(6, 0, 0x40);  // the screen's width and height
  claim(8, 0, 0x40);
  EXPECT_EQ(DecodeGif(bytes).error().code, ErrorCode::kCorrupt);
  claim(6, 0xff, 0xff);
  EXPECT_EQ(DecodeGif(bytes).error().code, ErrorCode::kTooLarge);
}

}  // namespace
}  // namespace plenovia
