#include "images/ui/clipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QColor>
#include <QGuiApplication>
#include <QMimeData>
#include <utility>

#include "images/ui/picture_from_image.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

// Nobody else has the clipboard here, so the answer comes at once.
Result<IndexedImage> Pasted(ClipboardPictures& clipboard) {
  Result<IndexedImage> pasted = Failure(ErrorCode::kIo, "no answer yet");
  clipboard.ReadPicture([&](Result<IndexedImage> picture) { pasted = std::move(picture); });
  return pasted;
}

TEST(Clipboard, PicturesComeBackWithTheirPalettes) {
  ClipboardPictures clipboard;
  Random random(5);
  for (const int colours : {1, 2, 16, 100, 256}) {
    const IndexedImage picture = RandomPicture(random, 61, 43, colours);
    CopyToClipboard(picture);
    ASSERT_TRUE(clipboard.HasPicture());
    const auto pasted = Pasted(clipboard);
    ASSERT_TRUE(pasted);
    EXPECT_TRUE(SamePixels(picture, *pasted));
    EXPECT_EQ(pasted->palette(), picture.palette());
  }
}

TEST(Clipboard, PixelsBeyondThePaletteStayBlack) {
  auto picture = IndexedImage::Create(3, 1, Palette::Grays(2)).value();
  picture.pixels()[0] = 0;
  picture.pixels()[1] = 1;
  picture.pixels()[2] = 200;
  ClipboardPictures clipboard;
  CopyToClipboard(picture);
  const auto pasted = Pasted(clipboard);
  ASSERT_TRUE(pasted);
  EXPECT_TRUE(SamePixels(picture, *pasted));
  EXPECT_TRUE(SameColours(picture, *pasted));
}

TEST(Clipboard, WithoutAPictureThereIsAnError) {
  ClipboardPictures clipboard;
  QGuiApplication::clipboard()->clear();
  EXPECT_FALSE(clipboard.HasPicture());
  EXPECT_FALSE(Pasted(clipboard));
  QGuiApplication::clipboard()->setText(QStringLiteral("text"));
  EXPECT_FALSE(clipboard.HasPicture());
  CopyToClipboard(IndexedImage());
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("text"));

  auto* nonsense = new QMimeData;
  nonsense->setImageData(QStringLiteral("no image"));
  QGuiApplication::clipboard()->setMimeData(nonsense);
  EXPECT_TRUE(clipboard.HasPicture());
  ASSERT_FALSE(Pasted(clipboard));
  EXPECT_EQ(Pasted(clipboard).error().code, ErrorCode::kCorrupt);

  CopyToClipboard(QImage(32768, 1, QImage::Format_Mono));
  ASSERT_FALSE(Pasted(clipboard));
  EXPECT_EQ(Pasted(clipboard).error().code, ErrorCode::kTooLarge);
}

TEST(PictureFromImage, PalettesAndGraysKeepTheirOrder) {
  QImage mono(9, 2, QImage::Format_Mono);
  mono.setColorTable({qRgb(200, 0, 0), qRgb(0, 0, 200)});
  mono.fill(0);
  mono.setPixel(8, 1, 1);
  auto picture = PictureFromImage(mono);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->palette(), Palette(std::vector<Rgb>{{200, 0, 0}, {0, 0, 200}}));
  EXPECT_EQ(picture->Row(1)[8], 1);
  EXPECT_EQ(picture->Row(1)[7], 0);

  QImage gray(5, 1, QImage::Format_Grayscale8);
  gray.fill(77);
  picture = PictureFromImage(gray);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->palette(), Palette::Grays());
  EXPECT_EQ(picture->Row(0)[4], 77);
}

TEST(PictureFromImage, TrueColourIsCompositedOverWhite) {
  for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
                            QImage::Format_RGBA8888, QImage::Format_RGB888, QImage::Format_RGB32}) {
    SCOPED_TRACE(format);
    QImage image(3, 2, format);
    image.fill(QColor(10, 200, 30));
    const bool alpha = image.hasAlphaChannel();
    if (alpha) image.setPixel(0, 0, qRgba(0, 0, 0, 0));
    if (alpha) image.setPixel(1, 0, qRgba(255, 0, 0, 102));
    const auto picture = PictureFromImage(image);
    ASSERT_TRUE(picture);
    const auto at = [&](std::size_t x) { return picture->palette()[picture->Row(0)[x]]; };
    EXPECT_EQ(at(0), (alpha ? Rgb{255, 255, 255} : Rgb{10, 200, 30}));
    EXPECT_EQ(at(1), (alpha ? Rgb{255, 153, 153} : Rgb{10, 200, 30}));
    EXPECT_EQ(at(2), (Rgb{10, 200, 30}));
  }
}

}  // namespace
}  // namespace plenovia
