#include "codec/colour_reducer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

#include "codec/kept_colours.h"
#include "codec/reduce_rows.h"
#include "platform/random.h"

namespace plenovia {
namespace {

// The reducer's picture of `colours`, given to it in rows of 100.
std::vector<Rgb> Reduced(const std::vector<Rgb>& colours, ColourReducer& reducer) {
  const std::span<const Rgb> all = colours;
  const auto row = [&](std::size_t i) {
    return all.subspan(i, std::min<std::size_t>(100, all.size() - i));
  };
  for (std::size_t i = 0; i < all.size(); i += 100) reducer.Count(row(i));
  reducer.BuildPalette();
  std::vector<Rgb> result;
  std::vector<std::uint8_t> indexes(100);
  for (std::size_t i = 0; i < all.size(); i += 100) {
    reducer.Map(row(i), indexes);
    for (std::size_t k = 0; k < row(i).size(); ++k) result.push_back(reducer.palette()[indexes[k]]);
  }
  return result;
}

double MeanSquaredError(const std::vector<Rgb>& a, const std::vector<Rgb>& b) {
  double sum = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    sum += std::pow(a[i].red - b[i].red, 2) + std::pow(a[i].green - b[i].green, 2) +
           std::pow(a[i].blue - b[i].blue, 2);
  }
  return sum / (3 * static_cast<double>(a.size()));
}

TEST(ColourReducer, KeepsFewColoursExactlyFromDarkToBright) {
  Random random(1);
  for (const int count : {1, 2, 255, 256}) {
    std::vector<Rgb> colours{{255, 0, 0}};  // not a gray
    while (static_cast<int>(colours.size()) < count) {
      colours.push_back({random.Byte(), random.Byte(), static_cast<std::uint8_t>(colours.size())});
    }
    for (int i = 0; i < 1000; ++i) {
      colours.push_back(colours[static_cast<std::size_t>(random.Int(0, count - 1))]);
    }
    ColourReducer reducer;
    EXPECT_EQ(Reduced(colours, reducer), colours);
    EXPECT_EQ(reducer.palette().size(), count);
    for (int i = 1; i < count; ++i) {
      const auto brightness = [&](int k) {
        const Rgb c = reducer.palette()[k];
        return 299 * c.red + 587 * c.green + 114 * c.blue;
      };
      EXPECT_LE(brightness(i - 1), brightness(i));
    }
  }
}

TEST(ColourReducer, GivesGraysTheirOwnIndex) {
  const std::vector<Rgb> grays{{7, 7, 7}, {200, 200, 200}, {7, 7, 7}};
  ColourReducer reducer;
  reducer.Count(grays);
  reducer.BuildPalette();
  EXPECT_EQ(reducer.palette(), Palette::Grays());
  std::vector<std::uint8_t> indexes(3);
  reducer.Map(grays, indexes);
  EXPECT_EQ(indexes, (std::vector<std::uint8_t>{7, 200, 7}));
}

TEST(ColourReducer, SpendsItsColoursWhereThePictureIs) {
  // 257 colours and more, close together: a fixed grid of colours would miss them by far.
  Random random(2);
  std::vector<Rgb> colours;
  for (int i = 0; i < 20000; ++i) {
    colours.push_back({static_cast<std::uint8_t>(random.Int(100, 131)),
                       static_cast<std::uint8_t>(random.Int(40, 71)),
                       static_cast<std::uint8_t>(random.Int(200, 231))});
  }
  ColourReducer reducer;
  const double error = MeanSquaredError(colours, Reduced(colours, reducer));
  EXPECT_EQ(reducer.palette().size(), 256);
  EXPECT_LT(error, 3.5);  // boxes of about 5 colours a side have 2
}

TEST(ColourReducer, FindsTheCentresOfSeparateGroups) {
  Random random(3);
  std::vector<Rgb> colours;
  for (int i = 0; i < 30000; ++i) {
    const int group = random.Int(0, 215);
    const auto level = [&](int n) { return static_cast<std::uint8_t>(n * 48 + random.Int(5, 8)); };
    colours.push_back({level(group % 6), level(group / 6 % 6), level(group / 36)});
  }
  ColourReducer reducer;
  // 1.25 inside the groups, and up to 0.25 for centres rounded to whole levels.
  EXPECT_LT(MeanSquaredError(colours, Reduced(colours, reducer)), 1.5);
}

TEST(KeptColours, GivesThePictureThatTwoReadingsGive) {
  constexpr int kWidth = 301, kHeight = 333;
  Random random(4);
  for (const int levels : {1, 3, 200}) {  // of each channel
    std::vector<Rgb> colours;
    for (int i = 0; i < kWidth * kHeight; ++i) {
      const auto level = [&] { return static_cast<std::uint8_t>(random.Int(0, levels - 1)); };
      colours.push_back({level(), level(), level()});
    }
    const auto rowAt = [&](int y) {
      return std::span(colours).subspan(kWidth * static_cast<std::size_t>(y), kWidth);
    };
    const auto expected = ReduceRows(kWidth, kHeight, [&](int y, std::span<Rgb> row) {
      std::copy_n(rowAt(y).begin(), kWidth, row.begin());
      return true;
    });
    for (const int threads : {1, 2}) {
      const auto kept = KeptColours::Create(kWidth, kHeight, threads);
      ASSERT_TRUE(kept);
      for (int y = 0; y < kHeight; ++y) {
        std::vector<std::uint8_t> bytes;
        for (const Rgb c : rowAt(y)) bytes.insert(bytes.end(), {c.red, c.green, c.blue});
        kept->Add(bytes);
      }
      EXPECT_EQ(kept->Reduce().value(), expected.value());
    }
  }
  EXPECT_FALSE(KeptColours::Create(10, 10, 2));
  EXPECT_FALSE(KeptColours::Create(10000, 10000, 2));
}

}  // namespace
}  // namespace plenovia
