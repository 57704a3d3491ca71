#include "images/print_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "images/print_file.h"
#include "platform/file_io.h"
#include "testing/picture_compare.h"
#include "testing/temp_folder.h"

namespace plenovia {
namespace {

IndexedImage Blank(int width, int height) {
  auto picture = IndexedImage::Create(width, height, Palette()).value();
  picture.Fill(0);
  return picture;
}

TEST(PrintLayout, FillsThePageWithoutLeavingIt) {
  struct Case {
    int width, height;
    int pageWidth, pageHeight;
    int printedWidth, printedHeight;
    bool fits;
  };
  for (const Case& c :
       {Case{400, 300, 2440, 3300, 2400, 1800, true}, Case{400, 300, 3300, 2440, 3200, 2400, true},
        Case{4800, 100, 2440, 3300, 2400, 50, false}, Case{100, 400, 2440, 3300, 815, 3260, true},
        Case{400, 100, 3300, 2440, 3260, 815, true}, Case{2440, 10, 2440, 3300, 2400, 9, false},
        Case{2439, 3299, 2440, 3300, 2400, 3246, true}, Case{10, 3300, 2440, 3300, 9, 3260, false},
        Case{49, 49, 2440, 3300, 2400, 2400, true}, Case{32767, 1, 640, 480, 600, 1, false},
        Case{5, 5, 30, 10, 1, 1, true}}) {
    SCOPED_TRACE(testing::Message() << c.width << "x" << c.height);
    const PrintLayout layout = LayOutOnPage(Blank(c.width, c.height), c.pageWidth, c.pageHeight);
    EXPECT_EQ(layout.left, 20);
    EXPECT_EQ(layout.top, 20);
    EXPECT_EQ(layout.width, c.printedWidth);
    EXPECT_EQ(layout.height, c.printedHeight);
    EXPECT_EQ(layout.fits, c.fits);
  }
}

TEST(PrintLayout, EveryDotHasTheColourOfThePixelItLiesIn) {
  Random random(8);
  const IndexedImage picture = RandomPicture(random, 23, 17, 256);
  for (const auto& [width, height] :
       {std::pair{23, 17}, {92, 68}, {100, 75}, {100, 9}, {7, 5}, {1, 1}}) {
    const PrintLayout layout{20, 20, width, height, true};
    std::vector<std::uint32_t> whole(static_cast<std::size_t>(width * height));
    RenderForPrint(picture, layout, 0, whole);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const Rgb c =
            picture
                .palette()[picture.Row(y * 17 / height)[static_cast<std::size_t>(x * 23 / width)]];
        ASSERT_EQ(whole[static_cast<std::size_t>(y * width + x)],
                  0xFF000000U | static_cast<unsigned>(c.red << 16 | c.green << 8 | c.blue))
            << width << ": " << x << ", " << y;
      }
    }
    const int top = height / 3;
    std::vector<std::uint32_t> band(static_cast<std::size_t>(width * (height - top)));
    RenderForPrint(picture, layout, top, band);
    EXPECT_TRUE(std::equal(band.begin(), band.end(), whole.end() - std::ssize(band)));
  }
}

TEST(PrintFile, TakesTheFirstFreeNumber) {
  const TempFolder folder;
  for (const char* expected : {"a.b.pdf", "a.b-2.pdf", "a.b-3.pdf"}) {
    const auto file = FreePrintFile(folder / "a.b.pdf");
    EXPECT_EQ(file.filename(), expected);
    ASSERT_TRUE(WriteFile(file, std::vector<std::uint8_t>{1}));
  }
}

}  // namespace
}  // namespace plenovia
