// Commands on the windows of pictures, given to the frame.

#include <QMdiArea>
#include <algorithm>

#include "app/tests/program.h"

namespace plenovia {
namespace {

using PictureCommands = ProgramTest;

TEST_F(PictureCommands, GrayImageChangesTheColoursAlone) {
  Start();
  const auto picture = NoisePicture(40, 30, 64);
  TSirdsWnd* window = AddPicture(picture);
  Run(kCmGrayImage);
  const IndexedImage& gray = *window->Picture();
  EXPECT_TRUE(std::ranges::equal(gray.pixels(), picture->pixels()));
  EXPECT_EQ(gray.palette()[0], (Rgb{149, 149, 149}));  // of (0, 255, 0), cut off
  EXPECT_EQ(gray.palette()[10], (Rgb{150, 150, 150}));
  EXPECT_EQ(picture->palette()[10], (Rgb{10, 245, 30})) << "others may still show the picture";
}

TEST_F(PictureCommands, ArrangedIconsStandSideBySideAtTheBottom) {
  Start();
  QList<QMdiSubWindow*> icons;
  for (int i = 0; i < 7; ++i) {
    icons << AddPicture(NoisePicture(60, 40, 4));
    icons.back()->showMinimized();
    icons.back()->move(30, 20);
  }
  Settle();
  Run(kCmArrangeIcons);
  const QRect area = Frame().Area()->viewport()->rect();
  for (int i = 0; i < icons.size(); ++i) {
    EXPECT_TRUE(area.contains(icons[i]->geometry())) << i;
    for (int k = 0; k < i; ++k) {
      EXPECT_FALSE(icons[i]->geometry().intersects(icons[k]->geometry())) << i << " and " << k;
    }
  }
  EXPECT_EQ(icons[0]->geometry().bottom(), area.bottom());
}

}  // namespace
}  // namespace plenovia
