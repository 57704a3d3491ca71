#include "codec/bmp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <vector>

#include "codec/tests/reader_checks.h"
#include "platform/little_endian.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

using Pixels = std::vector<std::uint8_t>;

const std::vector<Rgb> kFour = {{0, 0, 0}, {255, 0, 0}, {0, 255, 0}, {0, 0, 255}};

// A file put together from its parts; the offsets follow from them.
struct File {
  std::uint32_t header = 40;
  int width = 1;
  int height = 1;
  std::uint32_t bits = 8;
  std::uint32_t compression = 0;
  std::vector<std::uint32_t> masks = {};  // inside longer headers, behind shorter ones
  std::vector<Rgb> palette = {};
  std::uint32_t coloursUsed = 0;
  Pixels pixels = {};
  std::int64_t offsetError = 0;

  ByteBuffer Bytes() const {
    ByteBuffer info;
    Put32(info, header);
    const bool core = header == 12;
    (core ? Put16 : Put32)(info, static_cast<std::uint32_t>(width));
    (core ? Put16 : Put32)(info, static_cast<std::uint32_t>(height));
    Put16(info, 1);
    Put16(info, bits);
    for (const std::uint32_t value : {compression, 0u, 0u, 0u, coloursUsed, 0u}) {
      if (!core) Put32(info, value);
    }
    if (!core) info.resize(std::min<std::size_t>(info.size(), header));
    for (const std::uint32_t mask : masks) Put32(info, mask);
    while (info.size() < header) info.push_back(0);
    for (const Rgb c : palette) {
      info.insert(info.end(), {c.blue, c.green, c.red});
      if (!core) info.push_back(0);
    }
    const auto offset = static_cast<std::int64_t>(14 + info.size()) + offsetError;
    ByteBuffer file = {'B', 'M'};
    Put32(file, 0);
    Put32(file, 0);
    Put32(file, static_cast<std::uint32_t>(offset));
    file.insert(file.end(), info.begin(), info.end());
    file.insert(file.end(), pixels.begin(), pixels.end());
    return file;
  }
  Result<DecodedPicture> Read() const { return DecodeBmp(Bytes()); }
};

// Whether the files show what their names say.
struct Case {
  const char* name;
  File file;
  const char* expected;
};
class BmpIndexed : public testing::TestWithParam<Case> {};
class BmpColour : public testing::TestWithParam<Case> {};
std::string CaseName(const testing::TestParamInfo<Case>& info) {
  return info.param.name;
}

TEST_P(BmpIndexed, KeepsItsIndexes) {
  EXPECT_EQ(Indexes(GetParam().file.Read()), GetParam().expected);
  ExpectTruncationIsNoticed(DecodeBmp, GetParam().file.Bytes());
}

const File kPlain8 = {.width = 3,
                      .height = 2,
                      .palette = kFour,
                      .coloursUsed = 4,
                      .pixels = {3, 2, 1, 0, 1, 2, 3, 0}};
File Plain8(std::uint32_t header, int height = 2) {
  File file = kPlain8;
  file.header = header;
  file.height = height;
  return file;
}
File Runs(std::uint32_t bits, Pixels pixels, int width = 6, int height = 2) {
  return {.width = width,
          .height = height,
          .bits = bits,
          .compression = bits == 8 ? 1u : 2u,
          .palette = kFour,
          .coloursUsed = 4,
          .pixels = std::move(pixels)};
}

INSTANTIATE_TEST_SUITE_P(
    Headers, BmpIndexed,
    testing::Values(Case{"Core", Plain8(12), "123/321"}, Case{"Os2Short", Plain8(16), "123/321"},
                    Case{"Os2", Plain8(64), "123/321"}, Case{"Info", Plain8(40), "123/321"},
                    Case{"V2", Plain8(52), "123/321"}, Case{"V3", Plain8(56), "123/321"},
                    Case{"V4", Plain8(108), "123/321"}, Case{"V5", Plain8(124), "123/321"},
                    Case{"TopDown", Plain8(40, -2), "321/123"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    Depths, BmpIndexed,
    testing::Values(
        Case{"Bits1",
             {.width = 9, .bits = 1, .palette = {{}, {}}, .pixels = {0b10110001, 0b10000000, 0, 0}},
             "101100011"},
        Case{"Bits2",
             {.width = 5, .bits = 2, .palette = kFour, .pixels = {0b00011011, 0b10000000, 0, 0}},
             "01232"},
        Case{"Bits4",
             {.width = 3,
              .bits = 4,
              .palette = kFour,
              .coloursUsed = 4,
              .pixels = {0x3a, 0xf0, 0, 0}},
             "3af"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    RunLengths, BmpIndexed,
    testing::Values(
        Case{"Runs8", Runs(8, {6, 1, 0, 0, 2, 2, 4, 3, 0, 1}), "223333/111111"},
        Case{"Runs4", Runs(4, {5, 0x12, 1, 0x30, 0, 0, 6, 0x31, 0, 1}), "313131/121213"},
        Case{"Literal8", Runs(8, {0, 5, 1, 2, 3, 4, 5, 0, 1, 6, 0, 0, 6, 7, 0, 1}),
             "777777/123456"},
        Case{"Literal4", Runs(4, {0, 5, 0x12, 0x34, 0x50, 0, 1, 0x60, 0, 0, 6, 0x77, 0, 1}),
             "777777/123456"},
        Case{"EarlyEndIsZero", Runs(8, {2, 1, 0, 0, 1, 2, 0, 1}), "200000/110000"},
        Case{"JumpsAreZero", Runs(8, {1, 1, 0, 2, 2, 1, 3, 2, 0, 1}), "000222/100000"},
        Case{"LongRunsAreCutOff", Runs(8, {9, 1, 0, 0, 200, 2, 0, 1}), "222222/111111"},
        Case{"JumpBeyondTheTop", Runs(8, {6, 1, 0, 2, 255, 255, 6, 2, 0, 1}), "000000/111111"},
        Case{"NoEndMark", Runs(8, {6, 1, 0, 0, 6, 2}), "222222/111111"}),
    CaseName);

TEST_P(BmpColour, ShowsItsColours) {
  EXPECT_EQ(Colours(GetParam().file.Read()), GetParam().expected);
  ExpectTruncationIsNoticed(DecodeBmp, GetParam().file.Bytes());
}

File Two(std::uint32_t bits, Pixels pixels, std::vector<std::uint32_t> masks = {},
         std::uint32_t header = 40) {
  return {.header = header,
          .width = 2,
          .bits = bits,
          .compression = masks.empty() ? 0u : 3u,
          .masks = masks,
          .pixels = std::move(pixels)};
}

INSTANTIATE_TEST_SUITE_P(
    Depths, BmpColour,
    testing::Values(Case{"Bits24", Two(24, {1, 2, 3, 255, 0, 9, 0, 0}), "030201 0900ff"},
                    Case{"Bits32", Two(32, {1, 2, 3, 77, 255, 0, 9, 0}), "030201 0900ff"},
                    Case{"Bits16", Two(16, {0x1f, 0x7c, 0xe0, 0x03}), "ff00ff 00ff00"},
                    Case{"Fields565", Two(16, {0x1f, 0xf8, 0xe0, 0x07}, {0xf800, 0x07e0, 0x001f}),
                         "ff00ff 00ff00"},
                    Case{"Fields32InV5",
                         Two(32, {77, 1, 2, 3, 77, 9, 0, 255},
                             {0xff000000, 0x00ff0000, 0x0000ff00, 0x000000ff}, 124),
                         "030201 ff0009"},
                    Case{"FieldsOfTenBits",
                         Two(32, {0xff, 0x03, 0, 0, 0, 0, 0xf0, 0x3f},
                             {0x3ff00000, 0x000ffc00, 0x000003ff}),
                         "0000ff ff0000"}),
    CaseName);

TEST(BmpPalette, HasAsManyColoursAsTheFileHas) {
  File file = kPlain8;
  EXPECT_EQ(file.Read()->palette(), Palette(kFour));
  EXPECT_EQ(Colours(file.Read()), "ff0000 00ff00 0000ff/0000ff 00ff00 ff0000");
  file.coloursUsed = 0;  // said to be 256, but the pixels come after four
  EXPECT_EQ(file.Read()->palette(), Palette(kFour));
  file.coloursUsed = 100000;
  EXPECT_EQ(file.Read()->palette(), Palette(kFour));
  file.palette.resize(300);
  EXPECT_EQ(file.Read()->palette().size(), 256);
  EXPECT_EQ(Indexes(file.Read()), "123/321");
  file.palette.clear();
  EXPECT_EQ(file.Read()->palette(), Palette::Grays());
}

TEST(BmpOffset, IsGuessedWhenItLiesInTheHeaders) {
  File file = kPlain8;
  file.offsetError = -70;
  EXPECT_EQ(Indexes(file.Read()), "123/321");
  file.pixels.insert(file.pixels.begin(), {9, 9, 9, 9, 9});
  file.offsetError = 5;  // a gap in front of the pixels
  EXPECT_EQ(Indexes(file.Read()), "123/321");
  file.offsetError = 1000000;
  EXPECT_EQ(Indexes(file.Read()), "The file is truncated.");
}

TEST(BmpRefusal, NamesTheReason) {
  const auto code = [](const File& file) {
    const auto picture = file.Read();
    EXPECT_FALSE(picture);
    return picture ? ErrorCode::kIo : picture.error().code;
  };
  EXPECT_EQ(code({.bits = 0, .compression = 4, .pixels = Pixels(99)}), ErrorCode::kUnsupported);
  EXPECT_EQ(code({.bits = 24, .compression = 5, .pixels = Pixels(99)}), ErrorCode::kUnsupported);
  EXPECT_EQ(code({.header = 64, .bits = 24, .compression = 4}), ErrorCode::kUnsupported);
  EXPECT_EQ(code({.header = 200, .pixels = Pixels(99)}), ErrorCode::kUnsupported);
  EXPECT_EQ(code({.bits = 7, .pixels = Pixels(99)}), ErrorCode::kCorrupt);
  EXPECT_EQ(code({.width = 0, .pixels = Pixels(99)}), ErrorCode::kInvalid);
  EXPECT_EQ(code({.width = 40000, .pixels = Pixels(40000)}), ErrorCode::kTooLarge);
  EXPECT_EQ(code({.height = INT32_MIN, .pixels = Pixels(99)}), ErrorCode::kTooLarge);
  EXPECT_EQ(code({.width = 16384, .height = 32767, .pixels = Pixels(99)}), ErrorCode::kCorrupt);
  EXPECT_EQ(code(Runs(8, Pixels(999), 16384, 32767)), ErrorCode::kCorrupt);
}

TEST(BmpReader, StandsCorruption) {
  Random random(5);
  ExpectCorruptionIsHarmless(DecodeBmp, Runs(8, {6, 1, 0, 0, 2, 2, 4, 3, 0, 1}).Bytes());
  ExpectCorruptionIsHarmless(DecodeBmp, Runs(4, {0, 5, 1, 2, 3, 0, 0, 2, 1, 1, 0, 1}).Bytes());
  ExpectCorruptionIsHarmless(DecodeBmp, Two(16, Pixels(8), {0xf800, 0x07e0, 0x001f}).Bytes());
  ExpectCorruptionIsHarmless(DecodeBmp,
                             EncodeBmp(RandomPicture(random, 13, 7, 20)).value().Joined());
}

TEST(BmpWriter, KeepsPixelsAndPalette) {
  Random random(1);
  for (int round = 0; round < 60; ++round) {
    const IndexedImage picture =
        RandomPicture(random, random.Int(1, 40), random.Int(1, 40), random.Int(1, 256));
    auto encoded = EncodeBmp(picture);
    ASSERT_TRUE(encoded);
    const EncodedPicture moved = std::move(*encoded);
    const auto again = DecodeBmp(moved.Joined());
    ASSERT_TRUE(again) << again.error().message;
    EXPECT_TRUE(*again == picture) << SamePixels(picture, *again).message();
  }
}

TEST(BmpWriter, RefusesAnEmptyPicture) {
  EXPECT_FALSE(EncodeBmp(IndexedImage()));
}

TEST(BmpWriter, HandsOverThePicturesOwnRows) {
  Random random(2);
  const IndexedImage picture = RandomPicture(random, 8, 3, 16);
  const auto encoded = EncodeBmp(picture);
  ASSERT_EQ(encoded->pieces().size(), 4u);
  EXPECT_EQ(encoded->pieces()[1].data(), picture.Row(2).data());
  EXPECT_EQ(encoded->pieces()[3].data(), picture.Row(0).data());
}

}  // namespace
}  // namespace plenovia
