#include "platform/ui/picture_painting.h"

#include <gtest/gtest.h>

#include <QPixmap>

#include "platform/random.h"
#include "platform/zoomed_picture.h"

namespace plenovia {
namespace {

IndexedImage NoisePicture(int width, int height) {
  Random random(7);
  Palette palette = Palette::Grays();
  for (int i = 0; i < 256; ++i) {
    const auto value = static_cast<std::uint8_t>(i);
    palette.Set(i, {value, static_cast<std::uint8_t>(255 - i), static_cast<std::uint8_t>(i * 7)});
  }
  IndexedImage picture = IndexedImage::Create(width, height, palette).value();
  for (auto& pixel : picture.pixels()) pixel = static_cast<std::uint8_t>(random.Int(0, 255));
  return picture;
}

QRgb ColourAt(const IndexedImage& picture, int x, int y) {
  const Rgb colour = picture.palette()[picture.Row(y)[static_cast<std::size_t>(x)]];
  return qRgb(colour.red, colour.green, colour.blue);
}

class PaintedPicture : public QWidget {
 public:
  PaintedPicture(const IndexedImage& picture, double zoom) : picture_(picture), zoom_(zoom) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    UseDevicePixels(painter);
    PaintPicture(painter, picture_, zoom_, {3, 2}, DevicePixels(*this, rect()));
  }

 private:
  const IndexedImage& picture_;
  double zoom_;
};

class PicturePainting : public testing::TestWithParam<double> {};

TEST_P(PicturePainting, EveryDotIsWholeDisplayPixels) {
  const double zoom = GetParam();
  const IndexedImage picture = NoisePicture(41, 23);
  QWidget window;
  PaintedPicture widget(picture, zoom);
  widget.setParent(&window);
  widget.setGeometry(13, 7, 200, 120);
  window.resize(220, 140);
  window.show();
  const QImage shown = window.grab().toImage();
  const QPointF exact = QPointF(13, 7) * window.devicePixelRatioF();
  const QPoint corner(qRound(exact.x()) + 3, qRound(exact.y()) + 2);
  int wrong = 0;
  for (int y = 0; y < ZoomedSide(23, zoom); ++y) {
    for (int x = 0; x < ZoomedSide(41, zoom); ++x) {
      const QRgb expected =
          ColourAt(picture, static_cast<int>(x / zoom), static_cast<int>(y / zoom));
      if (shown.pixel(x + corner.x(), y + corner.y()) != expected) ++wrong;
    }
  }
  EXPECT_EQ(wrong, 0);
}

INSTANTIATE_TEST_SUITE_P(Zooms, PicturePainting, testing::Values(0.25, 0.5, 1, 2, 4));

TEST(ZoomedPicture, PartsAreThoseOfTheWholeAndBlackOutside) {
  const IndexedImage picture = NoisePicture(10, 6);
  std::vector<std::uint32_t> part(6 * 5);
  RenderZoomed(picture, 2.0, {-2, 9, 4, 14}, part);
  for (int y = 0; y < 5; ++y) {
    for (int x = 0; x < 6; ++x) {
      const bool inside = x >= 2 && 9 + y < 12;
      const std::uint32_t expected =
          inside ? ColourAt(picture, (x - 2) / 2, (9 + y) / 2) : 0xFF000000U;
      EXPECT_EQ(part[static_cast<std::size_t>(y * 6 + x)], expected) << x << ", " << y;
    }
  }
}

TEST(PictureConversion, KeepsIndexesAndColours) {
  const IndexedImage picture = NoisePicture(13, 4);
  const QImage image = ToImage(picture);
  ASSERT_EQ(image.size(), QSize(13, 4));
  for (int x = 0; x < 13; ++x) {
    EXPECT_EQ(image.pixelIndex(x, 3), picture.Row(3)[static_cast<std::size_t>(x)]);
    EXPECT_EQ(image.pixel(x, 3), ColourAt(picture, x, 3));
  }
}

}  // namespace
}  // namespace plenovia
