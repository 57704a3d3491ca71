#include "codec/png.h"

#include <gtest/gtest.h>
#include <png.h>
#include <zlib.h>

#include <algorithm>
#include <vector>

#include "codec/tests/reader_checks.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

constexpr int kWidth = 13;
constexpr int kHeight = 11;

// A file of random samples as the library writes it, and the samples.
struct RandomPng {
  int type;
  int depth;
  int channels = 1;
  std::vector<std::uint16_t> samples;
  std::vector<png_color> palette;
  ByteBuffer bytes;

  RandomPng(Random& random, int colourType, int bits, bool interlaced, bool transparent)
      : type(colourType), depth(bits) {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(
        png, &bytes,
        [](png_structp file, png_bytep data, std::size_t count) {
          auto& to = *static_cast<ByteBuffer*>(png_get_io_ptr(file));
          to.insert(to.end(), data, data + count);
        },
        nullptr);
    png_set_IHDR(png, info, kWidth, kHeight, depth, type,
                 interlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    channels = png_get_channels(png, info);
    if (type == PNG_COLOR_TYPE_PALETTE) {
      for (int i = 0; i < (1 << depth); ++i) {
        palette.push_back({random.Byte(), random.Byte(), random.Byte()});
      }
      png_set_PLTE(png, info, palette.data(), static_cast<int>(palette.size()));
    }
    for (int i = 0; i < kWidth * kHeight * channels; ++i) {
      samples.push_back(static_cast<std::uint16_t>(random.Int(0, (1 << depth) - 1)));
    }
    if (transparent) {
      const png_byte alpha[] = {0, 100};
      const png_color_16 colour{0, samples[0], samples[1], samples[2], samples[0]};
      png_set_tRNS(png, info, alpha, 2, &colour);
    }
    png_write_info(png, info);
    png_set_packing(png);
    std::vector<std::vector<std::uint8_t>> rows(kHeight);
    std::vector<png_bytep> pointers;
    for (std::size_t i = 0; i < samples.size(); ++i) {
      auto& row = rows[i / static_cast<std::size_t>(kWidth * channels)];
      if (depth == 16) row.push_back(static_cast<std::uint8_t>(samples[i] >> 8));
      row.push_back(static_cast<std::uint8_t>(samples[i]));
    }
    for (auto& row : rows) pointers.push_back(row.data());
    png_write_image(png, pointers.data());
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
  }

  int Sample(int x, int y, int channel) const {
    return samples[static_cast<std::size_t>((y * kWidth + x) * channels + channel)];
  }
  int Level(int x, int y, int channel) const {
    const int sample = Sample(x, y, channel);
    return depth == 16 ? sample >> 8 : sample * 255 / ((1 << depth) - 1);
  }
  // The colour over white, as the reader must see it.
  Rgb Expected(int x, int y, bool transparent) const {
    if (type == PNG_COLOR_TYPE_PALETTE) {
      const png_color c = palette[static_cast<std::size_t>(Sample(x, y, 0))];
      return {c.red, c.green, c.blue};
    }
    const bool gray = channels < 3;
    int alpha = channels % 2 == 0 ? Level(x, y, channels - 1) : 255;
    if (transparent) {
      bool same = true;
      for (int i = 0; i < channels; ++i)
        same = same && Sample(x, y, i) == samples[static_cast<std::size_t>(i)];
      alpha = same ? 0 : 255;
    }
    const auto seen = [&](int channel) {
      const double level = Level(x, y, gray ? 0 : channel);
      return static_cast<std::uint8_t>(255 + (level - 255) * alpha / 255 + 0.5);
    };
    return {seen(0), seen(1), seen(2)};
  }
};

TEST(Png, RoundTripKeepsEveryIndexAndThePalette) {
  Random random(1);
  for (const int colours : {1, 2, 100, 256}) {
    const IndexedImage picture =
        RandomPicture(random, random.Int(1, 90), random.Int(1, 90), colours);
    const ByteBuffer bytes = EncodePng(picture).value().Joined();
    EXPECT_TRUE(LooksLikePng(bytes));
    EXPECT_EQ(DecodePng(bytes).value(), picture);
  }
  auto beyond = IndexedImage::Create(2, 1, Palette(std::vector<Rgb>{{9, 8, 7}})).value();
  beyond.Row(0)[0] = 0;
  beyond.Row(0)[1] = 200;
  EXPECT_EQ(Colours(DecodePng(EncodePng(beyond).value().Joined())), "090807 000000");
}

TEST(Png, EveryColourTypeAndDepthIsRead) {
  struct Kind {
    int type;
    std::vector<int> depths;
    bool mayHaveTransparent;
  };
  const Kind kinds[] = {{PNG_COLOR_TYPE_GRAY, {1, 2, 4, 8, 16}, true},
                        {PNG_COLOR_TYPE_PALETTE, {1, 2, 4, 8}, true},
                        {PNG_COLOR_TYPE_GRAY_ALPHA, {8, 16}, false},
                        {PNG_COLOR_TYPE_RGB, {8, 16}, true},
                        {PNG_COLOR_TYPE_RGB_ALPHA, {8, 16}, false}};
  Random random(2);
  for (const Kind& kind : kinds) {
    for (const int depth : kind.depths) {
      for (const bool interlaced : {false, true}) {
        for (const bool transparent : {false, true}) {
          if (transparent && !kind.mayHaveTransparent) continue;
          SCOPED_TRACE(testing::Message()
                       << "type " << kind.type << " depth " << depth << " interlaced " << interlaced
                       << " transparent " << transparent);
          const RandomPng file(random, kind.type, depth, interlaced, transparent);
          const auto picture = DecodePng(file.bytes);
          ASSERT_TRUE(picture) << picture.error().message;
          ASSERT_EQ(picture->width(), kWidth);
          ASSERT_EQ(picture->height(), kHeight);
          if (kind.type == PNG_COLOR_TYPE_PALETTE) {
            EXPECT_EQ(picture->palette().size(), 1 << depth);
          } else if ((kind.type & PNG_COLOR_MASK_COLOR) == 0) {
            EXPECT_EQ(picture->palette(), Palette::Grays());
          }
          for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
              const auto index = picture->Row(y)[static_cast<std::size_t>(x)];
              const Rgb want = file.Expected(x, y, transparent);
              const Rgb got = picture->palette()[index];
              ASSERT_TRUE(want == got)
                  << "(" << x << ", " << y << "): " << int{got.red} << " " << int{got.green} << " "
                  << int{got.blue} << " not " << int{want.red} << " " << int{want.green} << " "
                  << int{want.blue};
              ASSERT_TRUE(kind.type != PNG_COLOR_TYPE_PALETTE || index == file.Sample(x, y, 0));
            }
          }
        }
      }
    }
  }
}

TEST(Png, TruncationAndCorruptionAreNoticed) {
  Random random(3);
  const RandomPng indexed(random, PNG_COLOR_TYPE_PALETTE, 4, false, true);
  const RandomPng coloured(random, PNG_COLOR_TYPE_RGB, 8, true, false);
  for (const ByteBuffer& file : {indexed.bytes, coloured.bytes}) {
    bool rowsMissing = false;
    for (std::size_t size = 0; size < file.size(); ++size) {
      const auto cut = DecodePng(std::span(file).first(size));
      EXPECT_EQ(cut ? cut->damage : cut.error().message, kTruncated) << size << " bytes";
      rowsMissing = rowsMissing || cut;
    }
    EXPECT_TRUE(rowsMissing) << "a part is shown";
    for (std::size_t i = 0; i < file.size(); ++i) {
      ByteBuffer broken = file;
      broken[i] ^= 0x10;
      // Every byte is under a checksum, or part of one, or names or measures a chunk.
      const auto picture = DecodePng(broken);
      EXPECT_TRUE(!picture || !picture->damage.empty()) << "byte " << i << " changed";
    }
  }
}

TEST(Png, ASizeThatTheBytesCannotFillIsRefused) {
  Random random(4);
  ByteBuffer bytes = RandomPng(random, PNG_COLOR_TYPE_GRAY, 8, false, false).bytes;
  const auto claim = [&](int width, int height) {
    for (std::size_t i = 0; i < 4; ++i) {
      bytes[16 + i] = static_cast<std::uint8_t>(width >> (24 - 8 * i));
      bytes[20 + i] = static_cast<std::uint8_t>(height >> (24 - 8 * i));
    }
    const auto sum = crc32(0, bytes.data() + 12, 17);
    for (std::size_t i = 0; i < 4; ++i) {
      bytes[29 + i] = static_cast<std::uint8_t>(sum >> (24 - 8 * i));
    }
    return DecodePng(bytes);
  };
  EXPECT_EQ(claim(20000, 20000).error().message, "The file is too short for its size in pixels.");
  EXPECT_EQ(claim(40000, 10).error().code, ErrorCode::kTooLarge);
}

}  // namespace
}  // namespace plenovia
