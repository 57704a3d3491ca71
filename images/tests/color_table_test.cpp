#include "images/color_table.h"

#include <gtest/gtest.h>

namespace plenovia {
namespace {

TEST(ColourTable, RowsAreFullExceptThatShortPalettesShowWhatTheyHave) {
  struct Case {
    int entries;
    int cells;
    int height;
    int windowHeight;
  };
  for (const Case& c : {Case{256, 256, 384, 414}, Case{255, 240, 360, 412}, Case{20, 16, 24, 60},
                        Case{16, 16, 24, 54}, Case{15, 15, 24, 54}, Case{2, 2, 24, 54}}) {
    SCOPED_TRACE(c.entries);
    const Palette palette = Palette::Grays(c.entries);
    EXPECT_EQ(ColourCells(palette).size(), static_cast<std::size_t>(c.cells));
    EXPECT_EQ(ColourTableHeight(palette), c.height);
    EXPECT_EQ(ColourTableWindowHeight(palette), c.windowHeight);
  }
}

TEST(ColourTable, CellsAreNumberedFromOneAndTheirTextIsInverted) {
  Palette palette = Palette::Grays();
  palette.Set(37, {255, 0, 7});
  const auto cells = ColourCells(palette);
  EXPECT_EQ(cells[0].number, 1);
  EXPECT_EQ(cells[0].fill, (Rgb{0, 0, 0}));
  EXPECT_EQ(cells[0].text, (Rgb{255, 255, 255}));
  EXPECT_EQ(cells[37].number, 38);
  EXPECT_EQ(cells[37].left, 5 * 24);
  EXPECT_EQ(cells[37].top, 2 * 24);
  EXPECT_EQ(cells[37].text, (Rgb{0, 255, 248}));
}

}  // namespace
}  // namespace plenovia
