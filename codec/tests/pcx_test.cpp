#include "codec/pcx.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "codec/tests/reader_checks.h"
#include "platform/little_endian.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

using Values = std::vector<std::uint8_t>;

struct File {
  std::uint8_t version = 5;
  std::uint8_t encoding = 0;
  std::uint8_t bits = 8;
  std::uint8_t planes = 1;
  std::uint32_t width = 1;
  std::uint32_t height = 1;
  std::uint32_t planeBytes = 2;
  std::uint32_t paletteKind = 1;
  Values colours = {};  // in the header
  Values pixels = {};
  bool paletteAtEnd = false;  // 256 colours, each of red = index, green = blue = 255

  ByteBuffer Bytes() const {
    ByteBuffer file = {0x0a, version, encoding, bits};
    for (const std::uint32_t corner : {7u, 9u, width + 6, height + 8, 72u, 72u}) {
      Put16(file, corner);
    }
    file.insert(file.end(), colours.begin(), colours.end());
    while (file.size() < 65) file.push_back(0);
    file.push_back(planes);
    Put16(file, planeBytes);
    Put16(file, paletteKind);
    while (file.size() < 128) file.push_back(0);
    file.insert(file.end(), pixels.begin(), pixels.end());
    if (paletteAtEnd) file.push_back(0x0c);
    for (int i = 0; paletteAtEnd && i < 256; ++i) {
      file.insert(file.end(), {static_cast<std::uint8_t>(i), 255, 255});
    }
    return file;
  }
  Result<DecodedPicture> Read() const { return DecodePcx(Bytes()); }
};

struct Case {
  const char* name;
  File file;
  const char* expected;
};
class PcxIndexed : public testing::TestWithParam<Case> {};
class PcxColour : public testing::TestWithParam<Case> {};
std::string CaseName(const testing::TestParamInfo<Case>& info) {
  return info.param.name;
}

TEST_P(PcxIndexed, KeepsItsIndexes) {
  EXPECT_EQ(Indexes(GetParam().file.Read()), GetParam().expected);
  ExpectTruncationIsNoticed(DecodePcx, GetParam().file.Bytes());
}

INSTANTIATE_TEST_SUITE_P(
    Depths, PcxIndexed,
    testing::Values(
        Case{"Bits1", {.bits = 1, .width = 10, .pixels = {0b10110001, 0b01000000}}, "1011000101"},
        Case{"Planes2",
             {.bits = 1, .planes = 2, .width = 4, .pixels = {0b01010000, 0, 0b00110000, 0}},
             "0123"},
        Case{"Planes4",
             {.bits = 1,
              .planes = 4,
              .width = 3,
              .pixels = {0b11100000, 0, 0b01100000, 0, 0b00100000, 0, 0b01000000, 0}},
             "1b7"},
        Case{"Bits2", {.bits = 2, .width = 5, .pixels = {0b00011011, 0b10000000}}, "01232"},
        Case{"Bits2Planes2",
             {.bits = 2, .planes = 2, .width = 4, .pixels = {0b00011011, 0, 0b11100100, 0}},
             "c963"},
        Case{"Bits4", {.bits = 4, .width = 3, .pixels = {0x3a, 0xf0}}, "3af"},
        Case{"Bits4Planes2",
             {.bits = 4,
              .planes = 2,
              .width = 3,
              .pixels = {0x3a, 0xf0, 0, 0},
              .paletteAtEnd = true},
             "3af"},
        Case{"Bits8",
             {.width = 2, .height = 2, .pixels = {1, 2, 3, 4}, .paletteAtEnd = true},
             "12/34"},
        Case{"TransparencyIgnored",
             {.planes = 2, .width = 2, .paletteKind = 2, .pixels = {1, 2, 200, 201}},
             "12"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(Encodings, PcxIndexed,
                         testing::Values(Case{"Runs",
                                              {.encoding = 1,
                                               .width = 4,
                                               .height = 2,
                                               .planeBytes = 4,
                                               .pixels = {0xc3, 1, 2, 3, 0xc1, 4, 0xc2, 5},
                                               .paletteAtEnd = true},
                                              "1112/3455"},
                                         Case{"RunAcrossRows",
                                              {.encoding = 1,
                                               .width = 4,
                                               .height = 2,
                                               .planeBytes = 4,
                                               .pixels = {0xc7, 1, 2},
                                               .paletteAtEnd = true},
                                              "1111/1112"},
                                         Case{"EmptyRun",
                                              {.encoding = 1,
                                               .width = 2,
                                               .pixels = {0xc0, 9, 1, 2},
                                               .paletteAtEnd = true},
                                              "12"},
                                         Case{"LongRows",
                                              {.width = 1,
                                               .height = 2,
                                               .planeBytes = 4,
                                               .pixels = {1, 9, 9, 9, 2, 9, 9, 9},
                                               .paletteAtEnd = true},
                                              "1/2"}),
                         CaseName);

TEST_P(PcxColour, ShowsItsColours) {
  EXPECT_EQ(Colours(GetParam().file.Read()), GetParam().expected);
  ExpectTruncationIsNoticed(DecodePcx, GetParam().file.Bytes());
}

const Values kTwoColours = {10, 11, 12, 20, 21, 22};
const Values kBits2 = {0b00011011, 0};

INSTANTIATE_TEST_SUITE_P(
    Palettes, PcxColour,
    testing::Values(
        Case{"Header",
             {.bits = 1, .width = 2, .colours = kTwoColours, .pixels = {0x40, 0}},
             "0a0b0c 141516"},
        Case{"TwoWithoutColours", {.bits = 1, .width = 2, .pixels = {0x40, 0}}, "000000 ffffff"},
        Case{"Version3HasNone",
             {.version = 3, .bits = 4, .width = 2, .colours = kTwoColours, .pixels = {0x6f, 0}},
             "aa5500 ffffff"},
        Case{"FourInTheHeader",
             {.bits = 2,
              .width = 4,
              .colours = {1, 1, 1, 2, 2, 2, 3, 3, 3, 4, 4, 4},
              .pixels = kBits2},
             "010101 020202 030303 040404"},
        Case{"ColourAdapterBrown",
             {.version = 2, .bits = 2, .width = 4, .colours = {0x10, 0, 0, 0x00}, .pixels = kBits2},
             "0000aa 00aa00 aa0000 aa5500"},
        Case{"ColourAdapterWhite",
             {.version = 2, .bits = 2, .width = 4, .colours = {0x00, 0, 0, 0x60}, .pixels = kBits2},
             "000000 55ffff ff55ff ffffff"},
        Case{"AtTheEnd", {.width = 2, .pixels = {7, 200}, .paletteAtEnd = true}, "07ffff c8ffff"},
        Case{"Gray", {.width = 2, .paletteKind = 2, .pixels = {7, 200}}, "070707 c8c8c8"}),
    CaseName);

INSTANTIATE_TEST_SUITE_P(
    TrueColour, PcxColour,
    testing::Values(
        Case{"Bits24", {.planes = 3, .width = 2, .pixels = {1, 2, 3, 4, 5, 6}}, "010305 020406"},
        Case{"Bits24Runs",
             {.encoding = 1,
              .planes = 3,
              .width = 2,
              .height = 2,
              .pixels = {1, 2, 3, 4, 5, 6, 0xc4, 9, 7, 7}},
             "010305 020406/090907 090907"},
        Case{"Bits32",
             {.planes = 4, .width = 2, .pixels = {1, 2, 3, 4, 5, 6, 7, 8}},
             "010305 020406"},
        Case{"Bits12",
             {.bits = 4, .planes = 3, .width = 2, .pixels = {0xf0, 0, 0x1f, 0, 0, 0}},
             "ff1100 00ff00"}),
    CaseName);

TEST(PcxRefusal, NamesTheReason) {
  const auto code = [](const File& file) {
    const auto picture = file.Read();
    EXPECT_FALSE(picture);
    return picture ? ErrorCode::kIo : picture.error().code;
  };
  EXPECT_EQ(code({.version = 1, .pixels = Values(9)}), ErrorCode::kCorrupt);
  EXPECT_EQ(code({.planes = 5, .pixels = Values(9)}), ErrorCode::kUnsupported);
  EXPECT_EQ(code({.width = 0, .pixels = Values(9)}), ErrorCode::kInvalid);
  EXPECT_EQ(code({.width = 3, .planeBytes = 2, .pixels = Values(9)}), ErrorCode::kCorrupt);
  EXPECT_EQ(code({.width = 40000, .planeBytes = 40000, .pixels = Values(40000)}),
            ErrorCode::kTooLarge);
  EXPECT_EQ(code({.encoding = 1,
                  .width = 16384,
                  .height = 32767,
                  .planeBytes = 16384,
                  .pixels = Values(9999)}),
            ErrorCode::kCorrupt);
  const auto colourless = File{.width = 2, .paletteKind = 1, .pixels = {1, 2}}.Read();
  EXPECT_EQ(colourless.value().damage, kTruncated) << "the palette is missing";
  EXPECT_FALSE(EncodePcx(IndexedImage()));
}

TEST(PcxReader, StandsCorruption) {
  Random random(6);
  ExpectCorruptionIsHarmless(DecodePcx, EncodePcx(RandomPicture(random, 9, 7, 4))->Joined());
  const File planes = {
      .encoding = 1, .bits = 1, .planes = 4, .width = 16, .pixels = {0xc8, 0x55, 0xc1, 0xcc}};
  ExpectCorruptionIsHarmless(DecodePcx, planes.Bytes());
}

TEST(PcxWriter, KeepsPixelsAndColours) {
  Random random(1);
  for (int round = 0; round < 60; ++round) {
    IndexedImage picture =
        RandomPicture(random, random.Int(1, 200), random.Int(1, 20), random.Int(1, 256));
    // Runs of all lengths, up to beyond the longest.
    for (int y = 0; y < picture.height(); y += 2) {
      const auto row = picture.Row(y);
      std::fill_n(row.begin(), random.Int(0, picture.width()), row[0]);
    }
    const auto again = DecodePcx(EncodePcx(picture).value().Joined());
    ASSERT_TRUE(again) << again.error().message;
    EXPECT_TRUE(SamePixels(picture, *again));
    EXPECT_EQ(again->palette(), picture.palette().Widened());
  }
}

}  // namespace
}  // namespace plenovia
