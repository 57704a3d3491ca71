#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "figures/sirdmath.h"

namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

std::string Title(std::int32_t number, std::int32_t size = 128) {
  std::vector<char> buffer(static_cast<std::size_t>(size) + 1, '#');
  _GetFigureTitle(number, buffer.data(), size);
  EXPECT_EQ(buffer.back(), '#') << "written beyond the buffer";
  return buffer.data();
}

// The levels of a picture, bottom row first, of a stereogram's geometry with the given gap.
std::vector<std::int32_t> Levels(std::int32_t number, std::int32_t side, std::int32_t gap,
                                 std::int32_t angle) {
  std::vector<std::int32_t> levels;
  for (std::int32_t y = 0; y < side; ++y) {
    for (std::int32_t x = 0; x < side; ++x) {
      levels.push_back(_GetFigureLevel(x, y, side / 2 + gap / 2, side / 2, angle, -(number + 1)));
    }
  }
  return levels;
}

std::int32_t NumberOf(const std::string& title) {
  for (std::int32_t i = 0; i < _GetFigureCount(); ++i) {
    if (Title(i) == title) return i;
  }
  ADD_FAILURE() << "no figure " << title;
  return 0;
}

class EachFigure : public testing::TestWithParam<std::int32_t> {};

TEST(FigureLibrary, TitlesAreDistinctAndFitTheMenusBuffer) {
  _InitFigureTitles();
  std::set<std::string> titles;
  for (std::int32_t i = 0; i < _GetFigureCount(); ++i) {
    const std::string title = Title(i);
    EXPECT_FALSE(title.empty());
    EXPECT_LT(title.size(), 40u);
    titles.insert(title);
  }
  EXPECT_EQ(std::ssize(titles), _GetFigureCount());
  EXPECT_GE(titles.size(), 24u);
  _UnloadFigureTitles();
}

TEST(FigureLibrary, TitlesAreCutToTheBufferAndBadNumbersAreEmpty) {
  const std::string title = Title(0);
  EXPECT_EQ(Title(0, 4), title.substr(0, 3));
  EXPECT_EQ(Title(0, 1), "");
  for (const std::int32_t number : {-1, _GetFigureCount(), kLowest, kHighest}) {
    EXPECT_EQ(Title(number), "") << number;
  }
  char untouched = '#';
  _GetFigureTitle(0, &untouched, 0);
  _GetFigureTitle(0, &untouched, kLowest);
  _GetFigureTitle(0, nullptr, 40);
  EXPECT_EQ(untouched, '#');
}

TEST(FigureLibrary, VersionFitsTwentyCharacters) {
  char version[21];
  std::fill(std::begin(version), std::end(version), '#');
  _GetLibVersion(version);
  EXPECT_GT(std::string(version).size(), 0u);
  EXPECT_LT(std::string(version).size(), 20u);
  EXPECT_EQ(version[20], '#');
  _GetLibVersion(nullptr);
}

TEST(FigureLibrary, UnknownCodesHaveLevelZero) {
  for (const std::int32_t code : {0, 1, -_GetFigureCount() - 1, kLowest, kHighest}) {
    EXPECT_EQ(_GetFigureLevel(200, 200, 200, 200, 0, code), 0) << code;
  }
}

TEST(FigureLibrary, FiguresStandUprightAndTurnCounterClockwise) {
  const auto level = [](const char* title, std::int32_t x, std::int32_t y, std::int32_t angle) {
    return _GetFigureLevel(200 + x, 200 + y, 200, 200, angle, -(NumberOf(title) + 1));
  };
  // The heart's point is below, its notch above and its lobes beside the notch.
  EXPECT_GT(level("Heart", 0, -120, 0), 0);
  EXPECT_EQ(level("Heart", 0, 120, 0), 0);
  EXPECT_GT(level("Heart", 60, 110, 0), 0);
  // The star has a tip above; a quarter turn brings it to the left.
  EXPECT_GT(level("Pentagram star", 0, 140, 0), 0);
  EXPECT_EQ(level("Pentagram star", 0, -140, 0), 0);
  EXPECT_GT(level("Pentagram star", -140, 0, 90), 0);
  EXPECT_EQ(level("Pentagram star", 140, 0, 90), 0);
}

TEST_P(EachFigure, SpansTheRangeAtTheDefaultSize) {
  for (const std::int32_t gap : {0, 100}) {
    const auto levels = Levels(GetParam(), 400, gap, 0);
    const auto [least, most] = std::minmax_element(levels.begin(), levels.end());
    EXPECT_EQ(*least, 0);
    EXPECT_GE(*most, 22);
    EXPECT_LE(*most, 24);
    EXPECT_GE(std::count_if(levels.begin(), levels.end(), [](auto v) { return v > 0; }), 20000);
  }
}

TEST_P(EachFigure, TurnsWithTheAngleAndComesBackAfterAFullTurn) {
  const auto still = Levels(GetParam(), 100, 0, 0);
  const auto turned = Levels(GetParam(), 100, 0, 25);
  std::int64_t changed = 0;
  for (std::size_t i = 0; i < still.size(); ++i) changed += still[i] != turned[i];
  EXPECT_GE(changed, 400);
  EXPECT_EQ(turned, Levels(GetParam(), 100, 0, 25 - 360));
  EXPECT_EQ(turned, Levels(GetParam(), 100, 0, 25 + 360 * 1000));
}

TEST_P(EachFigure, StaysInRangeForAnyArguments) {
  const std::int32_t code = -(GetParam() + 1);
  const auto expectInRange = [&](std::int32_t x, std::int32_t y, std::int32_t cx, std::int32_t cy,
                                 std::int32_t angle) {
    const std::int32_t level = _GetFigureLevel(x, y, cx, cy, angle, code);
    EXPECT_TRUE(level >= 0 && level <= 24)
        << level << " at " << x << ' ' << y << ' ' << cx << ' ' << cy << ' ' << angle;
  };
  const std::int32_t values[] = {kLowest, -200, -1, 0, 1, 2, 16383, kHighest};
  for (const std::int32_t x : values) {
    for (const std::int32_t y : values) {
      for (const std::int32_t cx : values) {
        for (const std::int32_t cy : values) expectInRange(x, y, cx, cy, x ^ cy);
      }
    }
  }
  for (const std::int32_t centre : {1, 7, 150, 16383}) {
    for (std::int32_t i = -60; i <= 60; ++i) {
      for (std::int32_t j = -60; j <= 60; ++j) {
        expectInRange(centre + i * centre / 60, centre + j * centre / 60, centre, centre, 7 * j);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Figures, EachFigure, testing::Range(0, _GetFigureCount()),
                         [](const auto& number) {
                           std::string name = Title(number.param);
                           std::erase_if(name, [](char c) { return !std::isalnum(c); });
                           return name;
                         });

}  // namespace
