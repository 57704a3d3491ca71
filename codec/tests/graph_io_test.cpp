#include "codec/graph_io.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "codec/g_intf.h"
#include "codec/gif_intf.h"
#include "platform/file_io.h"
#include "platform/random.h"
#include "testing/picture_compare.h"
#include "testing/temp_folder.h"

namespace plenovia {
namespace {

TEST(GraphIO, FilesAreKnownByTheirContentAndKeepEveryDot) {
  const TempFolder folder;
  Random random(1);
  const IndexedImage picture = RandomPicture(random, 37, 21, 256);
  for (const int format : {1, 2, 3, 4, 6}) {
    const auto path = folder / ("misleading" + std::to_string(format) + ".txt");
    TGraphIO writer;
    writer.SetGraphicFormat(format);
    ASSERT_TRUE(writer.Write_File(path, picture));
    EXPECT_EQ(TGraphIO::GetGraphicFormat(path), format);
    TGraphIO reader;
    const auto read = reader.Read_File(path);
    ASSERT_TRUE(read) << read.error().message;
    EXPECT_EQ(reader.GetPalette(), read->palette());
    if (format == 4) continue;
    EXPECT_EQ(*read, picture) << "format " << format;
  }
  EXPECT_EQ(TGifIntf::Read_File(folder / "misleading3.txt").value(), picture);
  EXPECT_EQ(TGifIntf::Read_File(folder / "misleading6.txt").error().code, ErrorCode::kUnsupported);
}

TEST(GraphIO, WhatIsNoPictureIsRefused) {
  const TempFolder folder;
  const auto path = folder / "picture.rds";
  Random random(2);
  const IndexedImage picture = RandomPicture(random, 3, 2, 4);
  TGraphIO io;
  for (const int format : {0, 5, 7, -1}) {
    io.SetGraphicFormat(format);
    EXPECT_EQ(io.Write_File(path, picture).error().code, ErrorCode::kUnsupported);
  }
  EXPECT_EQ(folder.Count(), 0);

  const std::string text = "DEPTHMAP is none of these";
  ASSERT_TRUE(
      WriteFile(path, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size())));
  EXPECT_EQ(TGraphIO::GetGraphicFormat(path), 0);
  EXPECT_EQ(io.Read_File(path).error().code, ErrorCode::kUnsupported);
  EXPECT_EQ(TGraphIO::GetGraphicFormat(folder / "missing"), 0);
  EXPECT_EQ(io.Read_File(folder / "missing").error().code, ErrorCode::kIo);
}

TEST(GraphIO, BitmapsHaveTheFewestBitsForTheirColoursAndRowsOfWholeWords) {
  Random random(3);
  struct Case {
    int colours;
    int bits;
    int bytesPerRow;
  };
  for (const Case& expected : {Case{2, 1, 8}, Case{3, 2, 12}, Case{16, 4, 20}, Case{17, 8, 40}}) {
    const BitmapInfo info =
        TGraphIO::GetBitmapInfo(RandomPicture(random, 37, 21, expected.colours));
    EXPECT_EQ(info.width, 37);
    EXPECT_EQ(info.height, 21);
    EXPECT_EQ(info.bitsPerPixel, expected.bits) << expected.colours;
    EXPECT_EQ(info.bytesPerRow, expected.bytesPerRow) << expected.colours;
  }
}

TEST(PictureFormat, TheTableGivesTheListsOfTheDialogs) {
  EXPECT_EQ(OpenFileTypes(),
            "Bitmap Files (*.BMP)|*.bmp|PCX Files (*.PCX)|*.pcx|GIF Files (*.GIF)|*.gif|"
            "Depth Map File (*.RDS)|*.rds|PNG Files (*.PNG)|*.png|"
            "All Pictures and Depth Maps|*.bmp *.pcx *.gif *.jpg *.jpeg *.rds *.png|");
  EXPECT_EQ(SaveFileTypes(),
            "Bitmap Files (*.BMP)|*.bmp|PCX Files (*.PCX)|*.pcx|GIF Files (*.GIF)|*.gif|"
            "JPEG Files (*.JPG)|*.jpg|Depth Map File (*.RDS)|*.rds|PNG Files (*.PNG)|*.png|");
  EXPECT_EQ(WizardFileTypes(),
            "Bitmap Files (*.BMP)|*.bmp|PCX Files (*.PCX)|*.pcx|GIF Files (*.GIF)|*.gif|"
            "All Pictures|*.bmp *.pcx *.gif *.jpg *.jpeg *.png|");
}

TEST(PictureFormat, WhatThePackageAndTheManualsSayIsInTheTable) {
  const auto text = [](const char* file) {
    const ByteBuffer bytes = ReadFile(std::filesystem::path(PLENOVIA_SOURCE_DIR) / file).value();
    std::string words(bytes.begin(), bytes.end());
    std::ranges::replace(words, '\n', ' ');
    return words;
  };
  std::string types = "MimeType=application/x-plenovia-depth-map;";
  for (int number = 1; const PictureFormat* format = FindFormat(GraphicFormat(number)); ++number) {
    if (format->decode == nullptr) continue;
    types.append(format->mimeType).append(";");
    EXPECT_NE(text("help/files.html").find("<td>" + std::string(format->name) + "</td>"),
              std::string::npos);
  }
  EXPECT_NE(text("packaging/plenovia.desktop").find(types + " "), std::string::npos) << types;
  EXPECT_NE(text("cli/sirds.1").find(ReadableNames()), std::string::npos);
  EXPECT_NE(text("cli/sirds.1").find(WritableExtensions()), std::string::npos);
}

TEST(PictureFormat, TheFirstRuleThatHoldsDecides) {
  const std::pair<const char*, GraphicFormat> cases[] = {
      {"PICTURE.GIF.BMP", GraphicFormat::kGif},
      {"a.pcx", GraphicFormat::kPcx},
      {"a.JpG", GraphicFormat::kJpeg},
      {"a.jpeg", GraphicFormat::kJpeg},
      {"/maps.rds/a.png", GraphicFormat::kDepthMap},
      {"a.png", GraphicFormat::kPng},
      {"a.bmp", GraphicFormat::kBmp},
      {"gif", GraphicFormat::kBmp}};
  for (const auto& [path, format] : cases) EXPECT_EQ(FormatOfPath(path), format) << path;
  EXPECT_EQ(OpenExtension(GraphicFormat::kJpeg), "BMP");
  EXPECT_EQ(SaveExtension(GraphicFormat::kJpeg), "JPG");
  EXPECT_EQ(SaveExtension(static_cast<GraphicFormat>(9)), "BMP");
}

TEST(GIntf, PackedRowsComeBack) {
  Random random(4);
  for (const int bits : {1, 4, 8}) {
    for (const std::size_t width : {1u, 7u, 8u, 9u, 64u}) {
      std::vector<std::uint8_t> pixels(width);
      for (auto& pixel : pixels) pixel = static_cast<std::uint8_t>(random.Int(0, (1 << bits) - 1));
      std::vector<std::uint8_t> row((width * static_cast<std::size_t>(bits) + 31) / 32 * 4, 0xff);
      std::vector<std::uint8_t> again(width);
      ASSERT_TRUE(TGIntf::BmpEncode(pixels, bits, row));
      ASSERT_TRUE(TGIntf::BmpDecode(row, bits, again));
      EXPECT_EQ(again, pixels);
      EXPECT_FALSE(TGIntf::BmpDecode(
          std::span(row).first((width - 1) * static_cast<std::size_t>(bits) / 8), bits, again));
    }
  }
  std::vector<std::uint8_t> nibbles(1);
  ASSERT_TRUE(TGIntf::BmpEncode(std::vector<std::uint8_t>{0xa, 0x5}, 4, nibbles));
  EXPECT_EQ(nibbles[0], 0xa5);
}

TEST(GIntf, DevicePalettesHaveDistinctColoursFromBlackToWhite) {
  for (const int count : {2, 16, 64, 216, 256}) {
    const Palette palette = TGIntf::GetDevicePalette(count);
    EXPECT_EQ(palette.size(), count);
    std::set<int> distinct;
    for (const Rgb c : palette.entries()) distinct.insert(c.red << 16 | c.green << 8 | c.blue);
    EXPECT_EQ(distinct.count(0) + distinct.count(0xffffff), 2u);
    EXPECT_GE(static_cast<int>(distinct.size()), count - 4);
  }
}

}  // namespace
}  // namespace plenovia
