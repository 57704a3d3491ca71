// Recipes on their way through picture files.

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "codec/graph_io.h"
#include "engine/recipe.h"
#include "engine/tests/random_recipe.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

class RecipeFiles : public testing::TestWithParam<GraphicFormat> {};

TEST_P(RecipeFiles, KeepAnyRecord) {
  Random random(1);
  for (int round = 0; round < 300; ++round) {
    const Recipe recipe = RandomRecipe(random);
    const IndexedImage picture = RandomPicture(random, 7, 5, random.Int(2, 256));
    const auto file = EncodePicture(GetParam(), picture, 1, RecipeText(recipe));
    const auto read = DecodePicture(file->Joined());
    ASSERT_TRUE(read) << read.error().message;
    EXPECT_EQ(read->damage, "");
    EXPECT_EQ(ReadRecipe(read->comment).value(), recipe);
  }
}

TEST_P(RecipeFiles, ThatAreDamagedGiveTheWholeRecipeOrNone) {
  Random random(2);
  const Recipe recipe = RandomRecipe(random);
  const IndexedImage picture = RandomPicture(random, 7, 5, 16);
  const ByteBuffer file = EncodePicture(GetParam(), picture, 1, RecipeText(recipe))->Joined();
  for (std::size_t size = 0; size < file.size(); ++size) {
    const std::vector<std::uint8_t> part(file.data(), file.data() + size);
    const auto read = DecodePicture(part);
    if (!read || read->comment.empty()) continue;
    const auto found = ReadRecipe(read->comment);
    EXPECT_TRUE(!found || *found == recipe) << "cut off after " << size << " bytes";
  }
}

INSTANTIATE_TEST_SUITE_P(Formats, RecipeFiles,
                         testing::Values(GraphicFormat::kPng, GraphicFormat::kGif,
                                         GraphicFormat::kJpeg),
                         [](const auto& test) { return std::string(FormatName(test.param)); });

}  // namespace
}  // namespace plenovia
