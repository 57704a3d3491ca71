// Texts as depth: their place, their profiles, and what cannot be drawn.
#include "sources/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "platform/random.h"
#include "sources/distance.h"

namespace plenovia {
namespace {

TEST(Text, IsAsLargeAsFitsAndInTheMiddle) {
  for (const auto& [lines, width, height] : {std::tuple{"HELLO", 400, 100},
                                             {"A\nB\nC", 200, 300},
                                             {"W", 90, 400},
                                             {"\xc3\x84\xe2\x82\xac", 300, 300}}) {
    const auto image = DrawText({.lines = lines}, width, height);
    ASSERT_TRUE(image.has_value()) << image.error().message;
    int left = width, right = 0, top = height, bottom = 0;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const auto level = image->Row(y)[static_cast<std::size_t>(x)];
        ASSERT_TRUE(level == 0 || level == 65535);
        if (level == 0) continue;
        left = std::min(left, x);
        right = std::max(right, x);
        top = std::min(top, y);
        bottom = std::max(bottom, y);
      }
    }
    EXPECT_NEAR((left + right) / 2.0, width / 2.0, width * 0.05) << lines;
    EXPECT_GE(left, 0.03 * width) << lines;
    EXPECT_LE(right, 0.97 * width);
    EXPECT_GE(top, 0.03 * height);
    EXPECT_LE(bottom, 0.97 * height);
    EXPECT_TRUE(right - left > 0.7 * width || bottom - top > 0.5 * height) << lines;
  }
}

TEST(Text, RoundLettersRiseFromTheirOutline) {
  const FineImage flat = DrawText({.lines = "O"}, 200, 200).value();
  const FineImage round =
      DrawText({.lines = "O", .profile = TextProfile::kRound}, 200, 200).value();
  EXPECT_EQ(std::ranges::max(round.pixels()), 65535);
  for (int y = 1; y < 199; ++y) {
    for (std::size_t x = 1; x < 199; ++x) {
      EXPECT_EQ(round.Row(y)[x] != 0, flat.Row(y)[x] != 0);
      const bool inside = flat.Row(y)[x - 1] != 0 && flat.Row(y)[x] != 0 && flat.Row(y)[x + 1] != 0;
      if (inside && flat.Row(y - 1)[x] != 0 && flat.Row(y + 1)[x] != 0) {
        EXPECT_GT(round.Row(y)[x], 20000);
      }
    }
  }
}

TEST(Text, DistancesAreExact) {
  constexpr int kWidth = 33;
  constexpr int kHeight = 21;
  Random random(3);
  std::vector<std::uint8_t> inside(kWidth * kHeight);
  for (auto& pixel : inside) pixel = random.Int(0, 20) > 0 ? 1 : 0;
  const auto squares = SquaredDistances(kWidth, kHeight, inside);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      int nearest = 1 << 20;
      for (int v = -1; v <= kHeight; ++v) {
        for (int u = -1; u <= kWidth; ++u) {
          const bool around = u < 0 || v < 0 || u == kWidth || v == kHeight;
          if (!around && inside[static_cast<std::size_t>(v * kWidth + u)] != 0) continue;
          nearest = std::min(nearest, (u - x) * (u - x) + (v - y) * (v - y));
        }
      }
      EXPECT_EQ(squares[static_cast<std::size_t>(y * kWidth + x)], nearest) << x << ' ' << y;
    }
  }
}

TEST(Text, WhatCannotBeDrawnIsTold) {
  const auto code = [](const Text& text, int width, int height) {
    const auto image = DrawText(text, width, height);
    EXPECT_FALSE(image.has_value());
    EXPECT_EQ(image.error().message.back(), '.');
    return image.error().code;
  };
  EXPECT_EQ(code({.lines = ""}, 90, 90), ErrorCode::kInvalid);
  EXPECT_EQ(code({.lines = " \n "}, 90, 90), ErrorCode::kInvalid);
  EXPECT_EQ(code({.lines = "a\xff"}, 90, 90), ErrorCode::kInvalid);
  EXPECT_EQ(code({.lines = std::string(3000, 'x')}, 900, 90), ErrorCode::kInvalid);
  EXPECT_EQ(code({.lines = "far too long for this"}, 30, 30), ErrorCode::kInvalid);
  EXPECT_EQ(code({.lines = "a", .font = "No Such Font At All"}, 90, 90), ErrorCode::kIo);
  EXPECT_EQ(code({.lines = "a", .font = "/no/such/file.ttf"}, 90, 90), ErrorCode::kIo);
  EXPECT_EQ(code({.lines = "a", .font = "/dev/null"}, 90, 90), ErrorCode::kIo);
  EXPECT_EQ(code({.lines = "a"}, 0, 90), ErrorCode::kInvalid);
}

}  // namespace
}  // namespace plenovia
