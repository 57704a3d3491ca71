// Depth pictures of fine levels, read, made smaller and larger.
#include "sources/fine_picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "platform/random.h"
#include "sources/heights.h"
#include "sources/resample.h"

namespace plenovia {
namespace {

std::vector<std::uint8_t> Bytes(const std::string& text) {
  return {text.begin(), text.end()};
}

FineImage Noise(int width, int height) {
  Random random(5);
  FineImage image = FineImage::Create(width, height).value();
  for (std::uint16_t& level : image.pixels()) {
    level = static_cast<std::uint16_t>(random.Int(0, 65535));
  }
  return image;
}

std::string Pgm(const FineImage& image, bool text) {
  std::string file = text ? "P2 # comment\n" : "P5\n# comment\n";
  file += std::to_string(image.width()) + " " + std::to_string(image.height()) + "\n65535\n";
  for (const std::uint16_t level : image.pixels()) {
    if (text) {
      file += std::to_string(level) + "\n";
    } else {
      file += {static_cast<char>(level >> 8), static_cast<char>(level & 255)};
    }
  }
  return file;
}

std::string Pfm(int width, const std::vector<float>& rows, bool turned) {
  std::string file = "Pf\n" + std::to_string(width) + " " +
                     std::to_string(rows.size() / static_cast<std::size_t>(width)) +
                     (turned ? "\n1.0\n" : "\n-1.0\n");
  for (const float z : rows) {
    auto word = std::bit_cast<std::uint32_t>(z);
    if (turned) word = __builtin_bswap32(word);
    char bytes[4];
    std::memcpy(bytes, &word, 4);
    file.append(bytes, 4);
  }
  return file;
}

TEST(FinePicture, KeepsEachOf65536Levels) {
  const FineImage image = Noise(97, 83);
  const ByteBuffer png = EncodeFinePng(image)->Joined();
  for (const auto& [format, bytes] : {std::pair{"PNG", std::vector(png.begin(), png.end())},
                                      {"PGM", Bytes(Pgm(image, true))},
                                      {"PGM", Bytes(Pgm(image, false))}}) {
    EXPECT_EQ(FinePictureFormat(bytes), format);
    const auto read = DecodeFinePicture(bytes, Nearness::kBright);
    ASSERT_TRUE(read.has_value()) << read.error().message;
    EXPECT_EQ(read->damage, "");
    EXPECT_EQ(read->image.width(), 97);
    EXPECT_TRUE(std::ranges::equal(read->image.pixels(), image.pixels())) << format;
    const auto dark = DecodeFinePicture(bytes, Nearness::kDark);
    EXPECT_EQ(dark->image.Row(9)[8], 65535 - image.Row(9)[8]);
    // Cut short, what is there counts.
    const auto cut = DecodeFinePicture(std::span(bytes).first(bytes.size() * 2 / 3), {});
    ASSERT_TRUE(cut.has_value()) << format;
    EXPECT_NE(cut->damage, "");
    EXPECT_EQ(cut->image.Row(0)[96], image.Row(0)[96]);
    EXPECT_EQ(cut->image.Row(82)[96], 0);
  }
  const auto eight = DecodeFinePicture(Bytes("P5 2 1 255\n\x01\xff"), Nearness::kBright);
  EXPECT_EQ(eight->image.pixels()[0], 257);
  EXPECT_EQ(eight->image.pixels()[1], 65535);
}

TEST(FinePicture, HeightsOfAnyUnitAreStretched) {
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  // The lower row comes first.
  const std::vector<float> rows = {-3.5F, kInfinity, 96.5F, 46.5F, std::nanf(""), 21.5F};
  for (const bool turned : {false, true}) {
    const auto bytes = Bytes(Pfm(3, rows, turned));
    EXPECT_EQ(FinePictureFormat(bytes), "PFM");
    const auto near = DecodeFinePicture(bytes, Nearness::kBright).value();
    EXPECT_EQ((std::vector(near.image.pixels().begin(), near.image.pixels().end())),
              (std::vector<std::uint16_t>{32768, 0, 16384, 0, 0, 65535}));
    const auto dark = DecodeFinePicture(bytes, Nearness::kDark).value();
    EXPECT_EQ((std::vector(dark.image.pixels().begin(), dark.image.pixels().end())),
              (std::vector<std::uint16_t>{32768, 0, 49151, 65535, 0, 0}));
  }
  FineImage low = FineImage::Create(3, 1).value();
  std::ranges::copy(std::vector<std::uint16_t>{1000, 1001, 1003}, low.pixels().begin());
  StretchLevels(low);
  EXPECT_EQ((std::vector(low.pixels().begin(), low.pixels().end())),
            (std::vector<std::uint16_t>{0, 21845, 65535}));
}

TEST(FinePicture, NonsenseIsRefusedBeforeItCostsMemory) {
  for (const std::string text :
       {"P5", "P5 ", "P5\n0 5\n255\nabc", "P5\n-3 5\n255\nabc", "P5\n2 2\n65536\nabcd",
        "P5\n2 2\n0\nabcd", "P5\n32767 16000\n65535\nabcd", "P5 99999999999999999999 1 255 a",
        "P2 2 2 255", "Pf\n2 2\n0\nabcd", "Pf\n2 2\nnan\nabcd", "Pf\n32767 16000\n-1\nabcd",
        "Pf\n1 1\n-1.0\n\xff\xff\xff\xff", "P6\n1 1\n255\nabc", "Q5\n1 1\n255\na"}) {
    const auto read = DecodeFinePicture(Bytes(text), Nearness::kBright);
    ASSERT_FALSE(read.has_value()) << text;
    EXPECT_EQ(read.error().message.back(), '.');
  }
}

// A slope with a block on it.
FineImage Scene(int width, int height) {
  FineImage image = FineImage::Create(width, height).value();
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const double u = (x + 0.5) / width;
      const double v = (y + 0.5) / height;
      const bool block = u > 0.25 && u < 0.5 && v > 0.25 && v < 0.75;
      image.Row(y)[static_cast<std::size_t>(x)] =
          static_cast<std::uint16_t>(block ? 60000 : 8000 * u + 9000 * v);
    }
  }
  return image;
}

TEST(Resample, KeepsSlopesSmoothAndEdgesSharp) {
  const FineImage small = Scene(80, 60);
  for (const auto& [width, height] :
       {std::pair{320, 240}, {203, 99}, {40, 30}, {80, 60}, {31, 90}}) {
    const FineImage other = ResampleLevels(small, width, height).value();
    const FineImage truth = Scene(width, height);
    int wrong = 0;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const auto at = static_cast<std::size_t>(x);
        const int level = other.Row(y)[at];
        EXPECT_TRUE(level <= 17000 || level == 60000) << "invented " << level;
        wrong += std::abs(level - truth.Row(y)[at]) > 160;
      }
    }
    EXPECT_LE(wrong, 3 * (width + height)) << width;  // along the outline
  }
}

}  // namespace
}  // namespace plenovia
