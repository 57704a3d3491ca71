// Formulas: their values, their mistakes, their limits.
#include "sources/formula.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "engine/quiet_monitor.h"

namespace plenovia {
namespace {

Result<FineImage> Draw(const std::string& text, int width, int height, int threads = 1) {
  QuietMonitor monitor;
  return DrawFormula({text}, width, height, threads, monitor);
}

TEST(Formula, ShowsItsValuesUprightAndRound) {
  constexpr int kWidth = 300;
  constexpr int kHeight = 100;
  struct {
    const char* text;
    double (*z)(double x, double y);
    double lowest, highest;
  } const cases[] = {
      {"x + y/1000", [](double x, double y) { return x + y / 1000; }, -14.955, 14.955},
      {"cos(x)*cos(y)", [](double x, double y) { return std::cos(x) * std::cos(y); }, -1, 1},
      {"-r", [](double x, double y) { return -std::hypot(x, y); }, -15.7, -0.07},
      {"mod(a, pi)", [](double x, double y) { return std::atan2(y, x) + (y < 0 ? M_PI : 0); }, 0,
       M_PI},
  };
  for (const auto& c : cases) {
    const auto image = Draw(c.text, kWidth, kHeight);
    ASSERT_TRUE(image.has_value()) << c.text;
    EXPECT_EQ(std::ranges::min(image->pixels()), 0);
    EXPECT_EQ(std::ranges::max(image->pixels()), 65535);
    double most = 0;
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < kWidth; ++x) {
        const double z = c.z((x + 0.5 - kWidth / 2.0) / 10, (kHeight / 2.0 - y - 0.5) / 10);
        const double level = (z - c.lowest) / (c.highest - c.lowest) * 65535;
        most = std::max(most, std::abs(level - image->Row(y)[static_cast<std::size_t>(x)]));
      }
    }
    EXPECT_LT(most, 0.01 * 65535) << c.text;
  }
}

TEST(Formula, WithoutAValueIsFarAndInfiniteIsTheNearestValue) {
  const auto root = Draw("sqrt(x) + 3", 64, 9).value();
  EXPECT_EQ(root.Row(4)[10], 0);
  EXPECT_EQ(root.Row(4)[63], 65535);
  const auto pole = Draw("1/x", 65, 9).value();  // infinite in the middle
  EXPECT_EQ(pole.Row(4)[32], pole.Row(4)[33]);
  EXPECT_EQ(pole.Row(4)[32], 65535);
  EXPECT_EQ(std::ranges::max(Draw("7", 20, 10)->pixels()), 0);
}

TEST(Formula, TheExamplesWorkAndDiffer) {
  EXPECT_EQ(FormulaExamples().size(), 12U);
  QuietMonitor monitor;
  std::vector<FineImage> seen;
  for (const FormulaExample& example : FormulaExamples()) {
    auto image = DrawFormula(example.formula, 96, 64, 1, monitor);
    ASSERT_TRUE(image.has_value()) << example.name;
    EXPECT_TRUE(std::ranges::equal(image->pixels(),
                                   DrawFormula(example.formula, 96, 64, 5, monitor)->pixels()));
    for (const FineImage& other : seen) {
      EXPECT_FALSE(std::ranges::equal(image->pixels(), other.pixels())) << example.name;
    }
    seen.push_back(std::move(*image));
  }
}

TEST(Formula, MistakesAreToldInASentence) {
  const std::string deep(60, '(');
  std::string conditions = "1";
  for (int i = 0; i < 90; ++i) conditions = "x>0?" + conditions + ":2";
  const std::string wrong[] = {"",
                               "  ",
                               "cos(",
                               "x +",
                               "foo(x)",
                               "x y",
                               "x=3",
                               "x,y",
                               "z",
                               "sin()",
                               "\"text\"",
                               "x\n+1",
                               "\xc3\xa9",
                               "1/0",
                               "sqrt(-1)",
                               "x+==y",
                               "max()",
                               "((x)",
                               "x?1",
                               deep + "x" + std::string(60, ')'),
                               conditions,
                               std::string(100000, '-') + "x",
                               "9^9^9^9^9^9",
                               "x = = 1"};
  for (const std::string& text : wrong) {
    const auto begin = std::chrono::steady_clock::now();
    const auto image = Draw(text, 40, 30);
    const std::string shown = text.substr(0, 40);
    ASSERT_FALSE(image.has_value()) << shown;
    EXPECT_EQ(image.error().code, ErrorCode::kInvalid) << shown;
    EXPECT_EQ(image.error().message.back(), '.') << shown;
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1)) << shown;
  }
  QuietMonitor monitor;
  for (const double reach : {0.0, -1.0, 1e9, std::nan("")}) {
    EXPECT_FALSE(DrawFormula({"x", reach}, 40, 30, 1, monitor).has_value());
  }
  EXPECT_EQ(Draw("x", 40000, 10).error().code, ErrorCode::kTooLarge);
  const auto error = CheckFormula({"cos(x)+q", 1}).error().message;
  EXPECT_NE(error.find("\"q\""), std::string::npos) << error;
  EXPECT_NE(error.find("character 8"), std::string::npos) << error;
}

}  // namespace
}  // namespace plenovia
