#include "engine/recipe.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "engine/picture_digest.h"
#include "engine/tests/random_recipe.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

// The text with what stands behind `key` in its line replaced.
std::string With(std::string text, const std::string& key, const std::string& value) {
  const std::size_t at = text.find("\n" + key + ": ") + key.size() + 3;
  return text.replace(at, text.find('\n', at) - at, value);
}

TEST(Recipe, AnyRecordComesBackFromItsText) {
  Random random(1);
  for (int round = 0; round < 2000; ++round) {
    const Recipe recipe = RandomRecipe(random);
    const std::string text = RecipeText(recipe);
    ASSERT_LE(text.size(), kLongestRecipe);
    const auto read = ReadRecipe(text);
    ASSERT_TRUE(read) << text;
    EXPECT_EQ(*read, recipe) << text;
  }
}

TEST(Recipe, NamesNoFolders) {
  Recipe recipe;
  recipe.program = "1";
  recipe.source.name = "/home/somebody/private/shark.png";
  recipe.pattern = std::string(kLongestRecipeName + 1, 'x');
  const std::string text = RecipeText(recipe);
  EXPECT_EQ(text.find("somebody"), std::string::npos);
  EXPECT_EQ(ReadRecipe(text)->source.name, "shark.png");
  EXPECT_EQ(ReadRecipe(text)->pattern, "");
  for (const char* name :
       {"..", ".", "a/b", "../a", "a%2fb", "%2E%2e", "a%00b", "a%4", "a%g1", "a\tb", "a%%"}) {
    EXPECT_FALSE(ReadRecipe(With(text, "source", name))) << name;
  }
  EXPECT_EQ(ReadRecipe(With(text, "source", "a%20b%C3%A9"))->source.name, "a b\xc3\xa9");
}

TEST(Recipe, WhatIsNotInOrderIsRefused) {
  Random random(2);
  Recipe recipe = RandomRecipe(random);
  const std::string text = RecipeText(recipe);
  for (std::size_t size = 0; size < text.size(); ++size) {
    EXPECT_FALSE(ReadRecipe(text.substr(0, size))) << "cut off after " << size << " bytes";
  }
  const std::pair<const char*, const char*> wrong[] = {
      {"kind", "film"},       {"kind", ""},           {"program", ""},
      {"zoom", "0"},          {"zoom", "1001"},       {"zoom", " 100"},
      {"zoom", "1e2"},        {"digest", "123"},      {"digest", "-123456789abcdef"},
      {"gapValue", "1"},      {"gapValue", "4097"},   {"w", "0"},
      {"h", "99999999999"},   {"ShiftDir", "0"},      {"ShiftDir", "77"},
      {"DepthSel", "3"},      {"zmin", "2147483647"}, {"Marker", "2"},
      {"zmax", "-2147483648"}};
  recipe.settings.zmin = 0;
  recipe.settings.zmax = 63;
  for (const auto& [key, value] : wrong) {
    const auto read = ReadRecipe(With(RecipeText(recipe), key, value));
    ASSERT_FALSE(read) << key << ": " << value;
    EXPECT_EQ(read.error().code, ErrorCode::kCorrupt);
  }
  const std::size_t second = text.find('\n') + 1;
  const auto inserted = [&](const std::string& line) {
    return ReadRecipe(std::string(text).insert(second, line));
  };
  EXPECT_FALSE(inserted("colour: red\n")) << "an unknown line may change the picture";
  EXPECT_FALSE(inserted("zoom: 100\n"));
  EXPECT_FALSE(inserted("\n"));
  EXPECT_EQ(inserted(std::string(kLongestRecipe, ' ')).error().code, ErrorCode::kTooLarge);
  EXPECT_FALSE(ReadRecipe(text + "end\n"));
  std::string later = text;
  later.replace(later.find("recipe 1"), 8, "recipe 2");
  EXPECT_EQ(ReadRecipe(later).error().code, ErrorCode::kUnsupported);
}

TEST(Recipe, AParameterThatTheTextDoesNotHaveIsAtItsDefault) {
  Random random(3);
  Recipe recipe = RandomRecipe(random);
  std::string text = RecipeText(recipe);
  const std::size_t at = text.find("gapValue");
  text.erase(at, text.find('\n', at) + 1 - at);
  recipe.settings.gapValue = TSirdsSettings().gapValue;
  EXPECT_EQ(ReadRecipe(text).value(), recipe);
}

TEST(PictureDigest, TellsPicturesApart) {
  Random random(4);
  IndexedImage picture = RandomPicture(random, 20, 30, 16);
  std::vector<std::uint64_t> digests{PictureDigest(picture)};
  EXPECT_EQ(PictureDigest(IndexedImage(picture)), digests[0]);
  picture.pixels()[599] ^= 1;
  digests.push_back(PictureDigest(picture));
  Palette palette = picture.palette();
  palette.Set(3, {1, 2, 3});
  picture.SetPalette(palette);
  digests.push_back(PictureDigest(picture));
  for (const auto& [width, height] : {std::pair(6, 10), {10, 6}}) {
    IndexedImage flat = IndexedImage::Create(width, height, palette).value();
    flat.Fill(0);
    digests.push_back(PictureDigest(flat));
  }
  std::ranges::sort(digests);
  EXPECT_EQ(std::ranges::adjacent_find(digests), digests.end());
  // What FNV-1a gives for 776 zero bytes: two sides and 256 black entries.
  EXPECT_EQ(PictureDigest(IndexedImage()), 0x6d119868d0d675c5u);
}

}  // namespace
}  // namespace plenovia
