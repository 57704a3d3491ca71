// Recipes of stereograms in windows and files, and stereograms made again by them.

#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "app/file_commands.h"
#include "app/make_again.h"
#include "app/tests/program.h"
#include "codec/graph_io.h"
#include "depthmap/ui/map_window.h"
#include "engine/recipe.h"
#include "platform/ui/text.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

class Again : public ProgramTest {
 protected:
  Again() { Start(); }

  QString Path(const std::string& name) { return PathToQString(folder_ / name); }
  Recipe RecipeIn(const std::string& name) {
    const auto picture = TGraphIO().Read_File(folder_ / name);
    return ReadRecipe(picture ? picture->comment : "").value_or(Recipe());
  }
  void SaveAs(const std::string& name) {
    DialogAnswers answers;
    answers.AddFile(Path(name));
    Run(kCmSaveAs);
  }
  void CloseAll() {
    for (QMdiSubWindow* window : Frame().Area()->subWindowList()) {
      qobject_cast<Document*>(window)->CloseUnasked();
    }
    Settle();
  }
  // The stereogram in the active window, made again with the gap 60.
  std::shared_ptr<const IndexedImage> MadeAgain() {
    TSirdsWnd* stereogram = ActivePicture();
    const auto before = stereogram->Picture();
    Frame().Settings().gapValue = 60;
    Run(kCmMakeAgain);
    Settle();
    EXPECT_EQ(ActivePicture(), stereogram);
    EXPECT_NE(stereogram->Picture(), before);
    EXPECT_EQ(stereogram->MadeBy()->settings.gapValue, 60);
    return stereogram->Picture();
  }
};

TEST_F(Again, EveryKindIsMadeAgainFromItsWindow) {
  for (const int kind : {0, 1, 2}) {
    Frame().Settings().gapValue = 100;
    if (kind == 0) Open(PictureFile("scene.png", 300, 200));
    if (kind == 1) CmFileNew(Frame().Context());
    Run(kind == 2 ? int{kCmFirstFigure + 4} : int{kCmMakeSirds});
    Settle();
    ASSERT_TRUE(ActivePicture()->IsStereogram());
    const auto anew = MadeAgain();
    CloseAll();
    if (kind == 0) Open(Path("scene.png"));
    if (kind == 1) CmFileNew(Frame().Context());
    Run(kind == 2 ? int{kCmFirstFigure + 4} : int{kCmMakeSirds});
    Settle();
    EXPECT_TRUE(SamePixels(*ActivePicture()->Picture(), *anew)) << kind;
    CloseAll();
  }
}

TEST_F(Again, AFormulaIsInTheRecipe) {
  const RecipeSource source = RecipeSourceOf({"x/(1+y*y)", 2.5});
  EXPECT_EQ(source.shape, "--reach 2.5");
  TSirdsWnd* window = AddPicture(NoisePicture(300, 200, 64));
  window->SetIsStereogram(true);
  Recipe recipe;
  recipe.source = source;
  window->SetMadeBy(recipe);
  const auto made = MadeAgain();
  EXPECT_EQ(made->width(), Frame().Settings().w);
  EXPECT_EQ(window->MadeBy()->source, source);
  DialogAnswers answers;
  recipe.source.name = "x+";
  window->SetMadeBy(recipe);
  answers.Add([](QDialog& dialog) { dialog.reject(); });
  Run(kCmMakeAgain);
  EXPECT_EQ(window->Picture(), made);
}

TEST_F(Again, F5IsMakeAgainInAStereogramOnly) {
  TSirdsWnd* source = Open(PictureFile("scene.png", 300, 200));
  QAction* make = Frame().Commands().Action(kCmMakeSirds);
  QAction* again = Frame().Commands().Action(kCmMakeAgain);
  EXPECT_FALSE(again->isEnabled());
  EXPECT_EQ(make->shortcut(), QKeySequence(Qt::Key_F5));
  QTest::keyClick(&Frame(), Qt::Key_F5);
  Settle();
  ASSERT_NE(ActivePicture(), source);
  EXPECT_TRUE(make->isEnabled());
  EXPECT_TRUE(make->shortcut().isEmpty());
  Frame().Settings().gapValue = 60;
  QTest::keyClick(&Frame(), Qt::Key_F5);
  Settle();
  EXPECT_EQ(ActivePicture()->MadeBy()->settings.gapValue, 60);
  EXPECT_EQ(Frame().Area()->subWindowList().size(), 2);
}

TEST_F(Again, TheFileTellsWhatMadeItUnlessThatIsLeftOut) {
  Frame().Settings().zmax = 5;
  Open(PictureFile("scene.png", 300, 200));
  Run(kCmMakeSirds);
  Settle();
  const Recipe made = *ActivePicture()->MadeBy();
  EXPECT_EQ(made.source, (RecipeSource{RecipeKind::kPicture, "scene.png"}));
  EXPECT_EQ(made.pattern, "pat00.gif");
  EXPECT_GT(made.settings.zmax, 5) << "the range that was used";
  for (const char* name : {"a.png", "a.gif", "a.jpg"}) {
    SaveAs(name);
    EXPECT_EQ(RecipeIn(name), made) << name;
  }
  DialogAnswers answers;
  answers.Add([&](QDialog& dialog) {
    dialog.findChild<QCheckBox*>(QStringLiteral("choice"))->setChecked(false);
    dialog.findChild<QLineEdit*>()->setText(Path("b.png"));
    dialog.findChild<QLineEdit*>()->setFocus();
    QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
  });
  Run(kCmSaveAs);
  EXPECT_EQ(TGraphIO().Read_File(folder_ / "b.png")->comment, "");
  EXPECT_TRUE(Stop());
  std::ifstream settings(SettingsFile());
  const std::string text{std::istreambuf_iterator<char>(settings), {}};
  EXPECT_NE(text.find("Recipes=0"), std::string::npos);
}

TEST_F(Again, AFileWithARecipeIsAStereogramAndFindsItsSource) {
  Open(PictureFile("scene.png", 300, 200));
  Run(kCmMakeSirds);
  Settle();
  SaveAs("made.png");
  const auto anew = MadeAgain();
  const auto isMadeAgain = [&] {
    Settle();
    ASSERT_TRUE(ActivePicture()->IsStereogram());
    EXPECT_TRUE(SamePixels(*MadeAgain(), *anew));
    CloseAll();
  };
  CloseAll();
  Open(Path("made.png"));
  isMadeAgain();  // beside the file

  std::filesystem::create_directories(folder_ / "other" / "deep");
  std::filesystem::rename(folder_ / "made.png", folder_ / "other" / "made.png");
  Open(Path("other/made.png"));
  isMadeAgain();  // among the recent files

  std::filesystem::rename(folder_ / "scene.png", folder_ / "other" / "deep" / "renamed.png");
  Open(Path("other/made.png"));
  DialogAnswers answers;
  answers.AddFile(QString());
  Run(kCmMakeAgain);
  EXPECT_TRUE(ActivePicture()->IsSaved()) << "cancelled";
  answers.Add([&](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Where is scene.png?"));
    dialog.reject();
  });
  Run(kCmMakeAgain);
  answers.AddFile(Path("other/deep/renamed.png"));
  isMadeAgain();

  Open(Path("other/deep/renamed.png"));
  Run(kCmZoomIn);
  Open(Path("other/made.png"));
  ActivePicture()->SetMadeBy([&] {
    Recipe recipe = *ActivePicture()->MadeBy();
    recipe.source.name = "renamed.png";
    return recipe;
  }());
  isMadeAgain();  // an open window, whose zoom does not count
}

TEST_F(Again, ADamagedRecipeIsIgnoredWithAWord) {
  Open(PictureFile("scene.gif", 300, 200));
  Run(kCmMakeSirds);
  Settle();
  SaveAs("made.gif");
  CloseAll();
  std::fstream file(folder_ / "made.gif", std::ios::in | std::ios::out | std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), {}};
  file.seekp(static_cast<std::streamoff>(bytes.find("zoom: 100") + 6));
  file << "-";
  file.close();
  Open(Path("made.gif"));
  EXPECT_FALSE(ActivePicture()->IsStereogram());
  EXPECT_TRUE(Frame().Status().Note().contains(
      QStringLiteral("made.gif: The recipe in the file is damaged. It is ignored.")))
      << Frame().Status().Note().toStdString();
  EXPECT_FALSE(Available(kCmMakeAgain));
}

TEST_F(Again, WhenItIsStoppedTheOldOneStays) {
  AddPicture(NoisePicture(1500, 1500, 64));
  Run(kCmMakeSirds);
  Settle();
  TSirdsWnd* made = ActivePicture();
  const auto old = made->Picture();
  RunAnd(kCmMakeAgain, [&] { Run(kCmStopProcess); });
  EXPECT_EQ(made->Picture(), old);
  RunAnd(kCmMakeAgain, [&] { made->CloseUnasked(); });
  EXPECT_EQ(Frame().Area()->subWindowList().size(), 1);
}

}  // namespace
}  // namespace plenovia
