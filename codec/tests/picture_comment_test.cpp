// What the program writes into picture files beside the picture.
#include "codec/picture_comment.h"

#include <gif_lib.h>
#include <gtest/gtest.h>
#include <png.h>

#include <algorithm>
#include <cstdio>
#include <string>
// The library's header needs <cstdio>.
#include <jpeglib.h>

#include "codec/byte_stream.h"
#include "codec/graph_io.h"
#include "codec/jpeg.h"
#include "codec/png.h"
#include "codec/tests/reader_checks.h"
#include "platform/random.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

std::string ReadByLibpng(ByteBuffer& file) {
  ByteReader source(file);
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_read_fn(png, &source, [](png_structp from, png_bytep to, std::size_t count) {
    static_cast<ByteReader*>(png_get_io_ptr(from))->Take(to, count);
  });
  png_read_png(png, info, 0, nullptr);
  png_textp texts = nullptr;
  const bool found = png_get_text(png, info, &texts, nullptr) == 1;
  std::string comment = found ? texts[0].text : "none";
  if (found) {
    EXPECT_STREQ(texts[0].key, "Comment");
  }
  png_destroy_read_struct(&png, &info, nullptr);
  return comment;
}

std::string ReadByGiflib(ByteBuffer& file) {
  ByteReader source(file);
  GifFileType* gif = DGifOpen(
      &source,
      [](GifFileType* from, GifByteType* to, int count) {
        const bool whole =
            static_cast<ByteReader*>(from->UserData)->Take(to, static_cast<std::size_t>(count));
        return whole ? count : 0;
      },
      nullptr);
  EXPECT_EQ(DGifSlurp(gif), GIF_OK);
  std::string comment;
  const SavedImage& image = gif->SavedImages[0];
  for (int i = 0; i < image.ExtensionBlockCount; ++i) {
    const ExtensionBlock& block = image.ExtensionBlocks[i];
    comment.append(block.Bytes, block.Bytes + block.ByteCount);
  }
  DGifCloseFile(gif, nullptr);
  return comment;
}

std::string ReadByLibjpeg(ByteBuffer& file) {
  jpeg_error_mgr errors;
  jpeg_decompress_struct info;
  info.err = jpeg_std_error(&errors);
  jpeg_create_decompress(&info);
  jpeg_save_markers(&info, JPEG_COM, 0xffff);
  jpeg_mem_src(&info, file.data(), file.size());
  jpeg_read_header(&info, TRUE);
  std::string comment = "none";
  if (const jpeg_marker_struct* marker = info.marker_list; marker != nullptr) {
    comment.assign(marker->data, marker->data + marker->data_length);
  }
  jpeg_start_decompress(&info);
  std::vector<JSAMPLE> row(3 * info.output_width);
  for (JSAMPROW line = row.data(); info.output_scanline < info.output_height;) {
    jpeg_read_scanlines(&info, &line, 1);
  }
  jpeg_finish_decompress(&info);
  EXPECT_EQ(errors.num_warnings, 0);
  jpeg_destroy_decompress(&info);
  return comment;
}

struct Case {
  GraphicFormat format;
  std::string (*readByLibrary)(ByteBuffer& file);
};

class Comment : public testing::TestWithParam<Case> {
 protected:
  ByteBuffer File(std::string_view comment) const {
    return EncodePicture(GetParam().format, picture_, 0, comment).value().Joined();
  }

  Random random_{1};
  IndexedImage picture_ = RandomPicture(random_, 45, 37, 200);
};

TEST_P(Comment, IsReadHereAndByTheLibraries) {
  std::string comment = "Plenovia was here\n";
  for (const std::size_t size : {18u, 254u, 255u, 256u, 600u, 4096u}) {
    comment.resize(size, '~');
    ByteBuffer file = File(comment);
    const auto read = DecodePicture(file);
    ASSERT_TRUE(read) << read.error().message;
    EXPECT_EQ(read->comment, comment);
    EXPECT_EQ(read->damage, "");
    EXPECT_EQ(GetParam().readByLibrary(file), comment);
  }
}

TEST_P(Comment, LeavesAllOtherBytesOfTheFile) {
  ByteBuffer plain = File("");
  ByteBuffer with = File("Plenovia was here\n");
  EXPECT_EQ(DecodePicture(plain)->comment, "");
  if (GetParam().format == GraphicFormat::kGif) {
    EXPECT_EQ(plain[4], '7');
    EXPECT_EQ(with[4], '9') << "a file with a comment is of the later version";
    with[4] = '7';
  }
  const auto front = std::ranges::mismatch(plain, with).in1 - plain.begin();
  std::ranges::reverse(plain);
  std::ranges::reverse(with);
  const auto back = std::ranges::mismatch(plain, with).in1 - plain.begin();
  EXPECT_GE(front + back, std::ssize(plain));
}

TEST_P(Comment, OfOthersIsNotTaken) {
  EXPECT_EQ(DecodePicture(File("plenovia was not here"))->comment, "");
  const std::string longest = "Plenovia " + std::string(20000, '.');
  EXPECT_EQ(DecodePicture(File(longest))->comment, longest.substr(0, kLongestComment));
}

INSTANTIATE_TEST_SUITE_P(Formats, Comment,
                         testing::Values(Case{GraphicFormat::kPng, ReadByLibpng},
                                         Case{GraphicFormat::kGif, ReadByGiflib},
                                         Case{GraphicFormat::kJpeg, ReadByLibjpeg}),
                         [](const auto& test) {
                           return std::string(FormatName(test.param.format));
                         });

TEST(PngComment, WithAWrongChecksumIsNotTaken) {
  Random random(2);
  ByteBuffer file = EncodePng(RandomPicture(random, 5, 4, 16), "Plenovia 1").value().Joined();
  ASSERT_EQ(FindPngComment(file), "Plenovia 1");
  const std::string text(file.begin(), file.end());
  file[text.find("Plenovia 1") + kCommentMark.size()] = '2';
  const auto read = DecodePng(file);
  EXPECT_EQ(read->comment, "");
  EXPECT_EQ(read->damage, "The PNG file is damaged.");
}

TEST(Comments, AreLookedForInAnyBytes) {
  Random random(3);
  const IndexedImage picture = RandomPicture(random, 3, 3, 4);
  const ByteBuffer png = EncodePng(picture, "Plenovia 1").value().Joined();
  const ByteBuffer jpeg = EncodeJpeg(picture, "Plenovia 1").value().Joined();
  for (const auto& [file, find] : {std::pair(png, &FindPngComment), {jpeg, &FindJpegComment}}) {
    for (std::size_t size = 0; size < file.size(); ++size) {
      const std::vector<std::uint8_t> part(file.data(), file.data() + size);
      const std::string found = find(part);
      EXPECT_TRUE(found.empty() || found == "Plenovia 1") << size;
    }
  }
}

}  // namespace
}  // namespace plenovia
