#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_io.h"
#include "platform/indexed_image.h"
#include "platform/limits.h"
#include "platform/palette.h"
#include "platform/profile_file.h"
#include "testing/temp_folder.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

std::span<const std::uint8_t> Bytes(std::string_view text) {
  return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

std::string Text(const fs::path& path) {
  const auto bytes = ReadFile(path);
  return bytes ? std::string(bytes->begin(), bytes->end()) : "error: " + bytes.error().message;
}

TEST(Palette, NearestIsTheFirstOfTheClosest) {
  const std::vector<Rgb> colours = {{0, 0, 0}, {200, 0, 0}, {200, 0, 0}, {0, 0, 100}};
  const Palette palette(colours);
  EXPECT_EQ(palette.Nearest({190, 5, 5}), 1);
  EXPECT_EQ(palette.Nearest({0, 0, 50}), 0);
  EXPECT_EQ(palette.Nearest({255, 255, 255}), 1);
  EXPECT_EQ(palette[200], Rgb{});
  EXPECT_EQ(Palette::Grays()[77], (Rgb{77, 77, 77}));
  EXPECT_EQ(Palette(std::vector<Rgb>(300)).size(), 256);
}

TEST(PictureSize, LimitsHoldBeforeAnythingIsAllocated) {
  EXPECT_TRUE(CheckPictureSize(1, 32767));
  EXPECT_TRUE(CheckPictureSize(32767, 16384));
  EXPECT_EQ(CheckPictureSize(32767, 16385).error().code, ErrorCode::kTooLarge);
  EXPECT_EQ(CheckPictureSize(32768, 1).error().code, ErrorCode::kTooLarge);
  EXPECT_EQ(CheckPictureSize(0, 5).error().code, ErrorCode::kInvalid);
  EXPECT_EQ(IndexedImage::Create(5, -1, {}).error().code, ErrorCode::kInvalid);
}

TEST(IndexedImage, ScanLinesCountFromTheBottom) {
  auto image = IndexedImage::Create(3, 2, {}).value();
  image.Fill(0);
  image.ScanLine(0)[2] = 9;
  EXPECT_EQ(image.Row(1)[2], 9);
  EXPECT_EQ(image.pixels()[5], 9);
}

TEST(WriteFile, ReplacesTheWholeFileOrNothing) {
  TempFolder folder;
  const fs::path file = folder / "a file";
  ASSERT_TRUE(WriteFile(file, Bytes("first")));
  chmod(file.c_str(), 04640);
  fs::create_symlink("a file", folder / "link");
  fs::create_symlink("turn", folder / "round");
  fs::create_symlink("round", folder / "turn");

  const std::vector<std::span<const std::uint8_t>> pieces = {Bytes("one "), Bytes(""),
                                                             Bytes("two")};
  ASSERT_TRUE(WriteFile(folder / "link", pieces));
  EXPECT_EQ(Text(file), "one two");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));

  fs::create_directory(folder / "folder");
  for (const fs::path& wrong :
       {folder / "folder", folder / "missing" / "file", file / "below", folder / "round"}) {
    const auto written = WriteFile(wrong, Bytes("x"));
    ASSERT_FALSE(written) << wrong;
    EXPECT_EQ(written.error().code, ErrorCode::kIo);
  }
  EXPECT_TRUE(fs::is_symlink(folder / "round"));
  EXPECT_EQ(folder.Count(), 5);
  EXPECT_EQ(Text(file), "one two");
}

TEST(WriteFile, TakesManyPieces) {
  TempFolder folder;
  std::string text;
  for (int i = 0; i < 5000; ++i) text += static_cast<char>('a' + i % 26);
  std::vector<std::span<const std::uint8_t>> pieces;
  for (std::size_t i = 0; i < text.size(); i += 2) pieces.push_back(Bytes(text).subspan(i, 2));
  ASSERT_TRUE(WriteFile(folder / "f", pieces));
  EXPECT_EQ(Text(folder / "f"), text);
}

TEST(ReadFile, RefusesWhatIsNoFileOrTooLong) {
  TempFolder folder;
  EXPECT_FALSE(ReadFile(folder.path()));
  EXPECT_FALSE(ReadFile(folder / "missing"));
  EXPECT_FALSE(ReadFile("/dev/zero"));
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_FALSE(ReadFile(folder / "pipe"));
  ASSERT_TRUE(WriteFile(folder / "f", Bytes("12345")));
  EXPECT_EQ(ReadFile(folder / "f", 4).error().code, ErrorCode::kTooLarge);
  EXPECT_TRUE(ReadFile(folder / "f", 5));
}

TEST(ProfileFile, ReadsNumbersAsTheyStandAndKeepsTheRest) {
  TempFolder folder;
  const fs::path file = folder / "settings.ini";
  ASSERT_TRUE(WriteFile(file, Bytes("; a note\n[Tools]\nCntlBar=2 and more\nword=abc\nlow = -17\n"
                                    "huge=99999999999\n[Mine]\nother=kept\n")));
  auto profile = ProfileFile::Load(file).value();
  EXPECT_EQ(profile.GetInt("TOOLS", "cntlbar", 5), 2);
  EXPECT_EQ(profile.GetInt("Tools", "word", 5), 0);
  EXPECT_EQ(profile.GetInt("Tools", "low", 5), -17);
  EXPECT_EQ(profile.GetInt("Tools", "huge", 5), 2147483647);
  EXPECT_EQ(profile.GetInt("Tools", "missing", 5), 5);
  profile.SetInt("tools", "CNTLBAR", -3);
  profile.SetText("wizard", "source_name", "h\xc3\xb6rt = ; gut");
  ASSERT_TRUE(profile.Save(file));
  const auto again = ProfileFile::Load(file).value();
  EXPECT_EQ(again.GetInt("Tools", "CntlBar", 5), -3);
  EXPECT_EQ(again.GetText("wizard", "source_name", ""), "h\xc3\xb6rt = ; gut");
  EXPECT_EQ(again.GetText("Mine", "other", ""), "kept");
  EXPECT_EQ(Text(file),
            "; a note\n[Tools]\nCntlBar=-3\nword=abc\nlow = -17\nhuge=99999999999\n"
            "[Mine]\nother=kept\n\n[wizard]\nsource_name=h\xc3\xb6rt = ; gut\n");
}

TEST(ProfileFile, ChangesNothingButWhatIsSet) {
  const struct {
    std::string_view before, after;  // of n=7 set in section a
  } cases[] = {
      {"", "[a]\nn=7\n"},
      {"\n", "\n[a]\nn=7\n"},
      {"[b]\r\nn=1", "[b]\r\nn=1\n\r\n[a]\r\nn=7\r\n"},
      {"[a]\n\n\n[b]\nn=1\n", "[a]\nn=7\n\n\n[b]\nn=1\n"},
      {"[A]\r\n N = 1 \r\nn=2\r\n", "[A]\r\n N =7\r\nn=2\r\n"},
      {"\xef\xbb\xbf[a]x\nloose\n=\n", "\xef\xbb\xbf[a]x\nloose\n=\nn=7\n"},
      {"[a\n;n=1\n[ a ]\n#n=2", "[a\n;n=1\n[ a ]\n#n=2\nn=7"},
  };
  for (const auto& [before, after] : cases) {
    ProfileFile profile = ProfileFile::Parse(before);
    EXPECT_EQ(profile.Text(), before);
    profile.SetText("a", "n", "7\n[b]");
    EXPECT_EQ(profile.Text(), after);
    EXPECT_EQ(profile.GetInt("a", "n", 0), 7) << before;
  }
}

TEST(ProfileFile, MissingFilesAreEmptyAndFoldersAreErrors) {
  TempFolder folder;
  EXPECT_EQ(ProfileFile::Load(folder / "none").value().GetInt("a", "b", 7), 7);
  EXPECT_FALSE(ProfileFile::Load(folder.path()));
  ASSERT_TRUE(WriteFile(folder / "odd", Bytes(std::string_view("\0[x\n=\n]]a=b\n[a]\nb", 17))));
  EXPECT_TRUE(ProfileFile::Load(folder / "odd"));
}

}  // namespace
}  // namespace plenovia
