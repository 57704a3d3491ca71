// The recipe of a stereogram: written by `make`, told by `info`, taken by `make --like`.
#include <filesystem>
#include <sstream>

#include "cli/tests/fixture.h"
#include "codec/graph_io.h"
#include "engine/recipe.h"
#include "testing/picture_compare.h"

namespace plenovia {

namespace {

class RecipeOptions : public SirdsTest {
 protected:
  Recipe RecipeIn(const std::string& file) {
    const auto picture = TGraphIO().Read_File(file);
    return ReadRecipe(picture ? picture->comment : "").value_or(Recipe());
  }
  void Make(std::vector<std::string> words) {
    words.insert(words.begin(), "make");
    const Finished run = Sirds(words);
    ASSERT_EQ(run.status, 0) << run.err;
  }
};

TEST_F(RecipeOptions, TheFileTellsWhatMadeIt) {
  Make({scene_, "-o", out_, "--pattern", tile_, "--gap", "77", "--scan", "smooth", "--fit"});
  const Recipe recipe = RecipeIn(out_);
  EXPECT_EQ(recipe.source, (RecipeSource{RecipeKind::kPicture, "scene.bmp"}));
  EXPECT_EQ(recipe.pattern, "tile.gif");
  EXPECT_EQ(recipe.settings.gapValue, 77);
  const std::string told = Sirds({"info", out_}).out;
  EXPECT_NE(told.find("\nsource: scene.bmp (picture)\npattern: tile.gif\noptions: --scan smooth "
                      "--gap 77 --zmin "),
            std::string::npos)
      << told;
  EXPECT_EQ(told.find(folder_.path().filename().string()), std::string::npos) << "names a folder";

  // The options that are told make the same picture again.
  std::vector<std::string> words{scene_, "-o", Path("again.gif"), "--pattern", tile_};
  std::istringstream options(told.substr(told.find("options: ") + 9));
  for (std::string word; options >> word;) words.push_back(word);
  Make(words);
  EXPECT_TRUE(SamePixels(Read(out_), Read(Path("again.gif"))));

  Make({scene_, "-o", out_, "--pattern", tile_, "--no-recipe"});
  EXPECT_EQ(Sirds({"info", out_}).out.find("recipe"), std::string::npos);
}

TEST_F(RecipeOptions, LikeMakesTheSameAgain) {
  Make({scene_, "-o", out_, "--gap", "60", "--zmax", "90", "--no-markers", "--pattern", "5"});
  Make({scene_, "-o", Path("like.gif"), "--like", out_});
  EXPECT_TRUE(SamePixels(Read(out_), Read(Path("like.gif"))));

  Make({map_, "-o", Path("map.jpg"), "--like", out_, "--markers", "--gap", "100"});
  const Recipe recipe = RecipeIn(Path("map.jpg"));
  EXPECT_EQ(recipe.source, (RecipeSource{RecipeKind::kDepthMap, "map.rds"}));
  EXPECT_EQ(recipe.pattern, "pat05.gif");
  EXPECT_EQ(recipe.settings, (TSirdsSettings{.zmax = 90})) << "what is given goes before";

  Make({"figure:1", "-o", out_, "--width", "210", "--dx", "9", "--da", "-30"});
  Make({"figure:1", "-o", Path("like.png"), "--like", out_});
  EXPECT_EQ(Contents("out.png"), Contents("like.png"));
}

TEST_F(RecipeOptions, AFormulaAndWhatShapesItAreKept) {
  Make({"formula:x/(1+y*y)", "-o", out_, "--reach", "8", "--width", "220", "--height", "90"});
  const Recipe recipe = RecipeIn(out_);
  EXPECT_EQ(recipe.source.name, "x/(1+y*y)");
  EXPECT_EQ(recipe.source.shape, "--reach 8");
  EXPECT_NE(Sirds({"info", out_}).out.find(" --width 220 --height 90 --reach 8\n"),
            std::string::npos);
  Make({"formula:" + recipe.source.name, "-o", Path("like.png"), "--like", out_});
  EXPECT_EQ(Contents("out.png"), Contents("like.png"));
  Make({"formula:" + recipe.source.name, "-o", Path("other.png"), "--like", out_, "--reach", "3"});
  EXPECT_EQ(RecipeIn(Path("other.png")).source.shape, "--reach 3");
}

TEST_F(RecipeOptions, TheZoomOfAWindowIsTakenToo) {
  Make({scene_, "-o", out_});
  Recipe recipe = RecipeIn(out_);
  recipe.source.zoom = 200;
  TGraphIO codec;
  codec.SetGraphicFormat(static_cast<int>(GraphicFormat::kPng));
  ASSERT_TRUE(codec.Write_File(Path("zoomed.png"), picture_, RecipeText(recipe)));
  Make({scene_, "-o", out_, "--like", Path("zoomed.png")});
  EXPECT_EQ(Read(out_).width(), 2 * picture_.width());
}

TEST_F(RecipeOptions, ThePatternIsFoundByItsPictureOrAskedFor) {
  const std::string moved = Path("moved");
  std::filesystem::create_directory(moved);
  Make({scene_, "-o", moved + "/a.png", "--pattern", tile_});
  const auto like = [&] { return Sirds({"make", scene_, "-o", out_, "--like", moved + "/a.png"}); };
  const Finished missing = like();
  EXPECT_EQ(missing.status, 1);
  EXPECT_NE(missing.err.find("tile.gif"), std::string::npos) << missing.err;
  std::filesystem::copy_file(tile_, moved + "/tile.gif");
  EXPECT_EQ(like().status, 0) << "it lies beside the stereogram";
  std::filesystem::copy_file(scene_, moved + "/tile.gif",
                             std::filesystem::copy_options::overwrite_existing);
  EXPECT_EQ(like().status, 1) << "another picture of its name is not it";
}

TEST_F(RecipeOptions, AFileWithoutARecipeInOrderIsRefused) {
  EXPECT_EQ(Sirds({"make", scene_, "-o", out_, "--like", scene_}).status, 1);
  Make({scene_, "-o", Path("a.gif")});
  std::string bytes = Contents("a.gif");
  bytes.replace(bytes.find("zoom: 100"), 9, "zoom: 00x");
  Write("a.gif", bytes);
  const std::vector<std::string> like{"make", scene_, "-o", out_, "--like", Path("a.gif")};
  EXPECT_EQ(Sirds(like).err, "sirds: " + Path("a.gif") + ": The recipe in the file is damaged.\n");
  const Finished info = Sirds({"info", Path("a.gif")});
  EXPECT_EQ(info.status, 0);
  EXPECT_NE(info.err.find("The recipe in the file is damaged."), std::string::npos);

  // Options that are not a source's are never taken.
  Recipe hostile = MakeRecipe({}, "p.gif", pattern_, TSirdsSettings());
  TGraphIO codec;
  codec.SetGraphicFormat(static_cast<int>(GraphicFormat::kGif));
  for (const char* shape : {"-o /tmp/b.png", "--reach", "--reach x", "--background a.png"}) {
    hostile.source.shape = shape;
    ASSERT_TRUE(codec.Write_File(Path("a.gif"), picture_, RecipeText(hostile)));
    EXPECT_EQ(Sirds(like).status, 1) << shape;
  }
}

}  // namespace

}  // namespace plenovia
