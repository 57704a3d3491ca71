#include "engine/ui/figure_caption.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "images/ui/figure_titles.h"

namespace plenovia {
namespace {

// The first column right of a title's caption; 0 when nothing is drawn.
int EndOfCaption(const QString& title, int width, int height = 60) {
  constexpr std::uint8_t kGround = 200;
  auto picture = IndexedImage::Create(width, height, Palette::Grays()).value();
  for (int y = 0; y < height; ++y) std::ranges::fill(picture.Row(y), kGround);
  DrawFigureCaption(picture, title);
  int end = 0;
  for (int y = 0; y < height; ++y) {
    const auto row = picture.Row(y);
    for (int x = end; x < width; ++x) {
      if (row[static_cast<std::size_t>(x)] != kGround) end = x + 1;
    }
  }
  return end;
}

TEST(FigureCaption, OfEveryFigureFitsAtTheDefaultWidth) {
  ASSERT_EQ(FigureTitles().size(), 30);
  for (const QString& title : FigureTitles()) {
    EXPECT_EQ(EndOfCaption(title.toLower(), 400), EndOfCaption(title.toLower(), 1200))
        << title.toStdString();
  }
}

TEST(FigureCaption, LeavesOutWhatDoesNotFit) {
  const QString title = QStringLiteral("torus");
  const int whole = EndOfCaption(title, 400);
  const int shorter = EndOfCaption(title, whole - 3);
  const int alone = EndOfCaption(title, shorter - 3);
  EXPECT_LT(shorter, whole - 20);
  EXPECT_LT(alone, shorter - 20);
  EXPECT_GT(alone, 20);
  EXPECT_EQ(EndOfCaption(title, alone - 3), 0);
  EXPECT_EQ(EndOfCaption(title, 400, 15), 0);
}

}  // namespace
}  // namespace plenovia
