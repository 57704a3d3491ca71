// Opening and saving as a user does it.

#include <QAbstractScrollArea>
#include <fstream>

#include "app/tests/program.h"
#include "codec/graph_io.h"
#include "platform/ui/text.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

class Files : public ProgramTest {
 protected:
  Files() { Start(); }
  QString Path(const std::string& name) { return PathToQString(folder_ / name); }
};

TEST_F(Files, OpenShowsThePictureAndRemembersItsFormat) {
  const QString path = PictureFile("Some Picture.GIF", 60, 40);
  DialogAnswers answers;
  answers.AddFile(path);
  Run(kCmOpen);
  Settle();
  TSirdsWnd* window = Frame().ActivePicture();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->GetTitle(), QStringLiteral("some picture.gif"));
  EXPECT_TRUE(window->IsSaved());
  EXPECT_EQ(window->ClientSize(), QSize(60, 40));
  EXPECT_EQ(Frame().LastFormat(), 3);
  EXPECT_TRUE(SamePixels(*window->Picture(), *NoisePicture(60, 40, 64)));
}

TEST_F(Files, CancelledDialogsChangeNothing) {
  DialogAnswers answers;
  answers.AddFile(QString());
  Run(kCmOpen);
  AddPicture(NoisePicture(9, 9, 4))->SetSaved(false);
  answers.AddFile(QString());
  Run(kCmSave);
  EXPECT_FALSE(Frame().ActivePicture()->IsSaved());
  EXPECT_EQ(Frame().LastFormat(), 1);
}

TEST_F(Files, UnreadableFilesGiveAMessageAndNoWindow) {
  std::ofstream(folder_ / "broken.png") << "no picture";
  std::ofstream(folder_ / "broken.RDS") << "no map";
  DialogAnswers answers;
  answers.AddMessage(QStringLiteral("Error Opening the Bitmap file"), QStringLiteral("Error"));
  EXPECT_EQ(Open(Path("broken.png")), nullptr);
  EXPECT_EQ(Frame().LastFormat(), 0);
  answers.AddMessage(QStringLiteral("Invalid Depth Map file"), QStringLiteral("Error"));
  answers.AddMessage(QStringLiteral("Error Opening the Depth Map file"), QStringLiteral("Error"));
  Open(Path("broken.RDS"));
  EXPECT_EQ(Frame().LastFormat(), 5);
  EXPECT_TRUE(Frame().Area()->subWindowList().isEmpty());
}

TEST_F(Files, SavesInTheFormatOfTheExtension) {
  struct Case {
    const char* name;
    int format;
  };
  const Case cases[] = {{"a.bmp", 1},           {"b.PCX", 2}, {"c.gif", 3}, {"d.jpg", 4},
                        {"picture.gif.bmp", 3}, {"e.png", 6}, {"f.xyz", 1}};
  for (const Case& expected : cases) {
    TSirdsWnd* window = AddPicture(NoisePicture(40, 30, 64));
    window->SetSaved(false);
    DialogAnswers answers;
    answers.AddFile(Path(expected.name));
    Run(kCmSave);
    EXPECT_TRUE(window->IsSaved()) << expected.name;
    EXPECT_EQ(window->GetTitle(), Path(expected.name).section(u'/', -1).toLower());
    EXPECT_EQ(Frame().LastFormat(), expected.format) << expected.name;
    EXPECT_EQ(TGraphIO::GetGraphicFormat(folder_ / expected.name), expected.format);
  }
}

TEST_F(Files, FailedSaveKeepsThePictureUnsavedAndSaysWhy) {
  TSirdsWnd* window = AddPicture(NoisePicture(40, 30, 64));
  window->SetSaved(false);
  DialogAnswers answers;
  answers.AddFile(Path("map.rds"));
  Run(kCmSave);
  EXPECT_FALSE(window->IsSaved());
  EXPECT_EQ(window->GetTitle(), QStringLiteral("picture"));
  EXPECT_FALSE(Frame().Status().Message().isEmpty());
  EXPECT_FALSE(std::filesystem::exists(folder_ / "map.rds"));

  answers.AddMessage(QStringLiteral("Save\n picture\n before closing?"), QStringLiteral("Confirm"),
                     QMessageBox::Yes);
  answers.AddFile(Path("again.rds"));
  EXPECT_FALSE(window->close()) << "what could not be saved stays open";
  answers.AddMessage(QStringLiteral("Save\n picture\n before closing?"), QStringLiteral("Confirm"),
                     QMessageBox::Yes);
  answers.AddFile(Path("good.png"));
  EXPECT_TRUE(window->close());
  EXPECT_TRUE(std::filesystem::exists(folder_ / "good.png"));
}

TEST_F(Files, SavingOnCloseSavesTheWindowThatCloses) {
  TSirdsWnd* first = AddPicture(NoisePicture(11, 7, 8));
  AddPicture(NoisePicture(20, 20, 8));
  first->SetSaved(false);
  DialogAnswers answers;
  answers.AddMessage(QStringLiteral("Save\n picture\n before closing?"), QStringLiteral("Confirm"),
                     QMessageBox::Yes);
  answers.AddFile(Path("first.bmp"));
  first->close();
  TGraphIO codec;
  EXPECT_EQ(codec.Read_File(folder_ / "first.bmp")->width(), 11);
}

class Dots : public Files, public testing::WithParamInterface<int> {};

TEST_P(Dots, AreWholePixelsOfTheDisplay) {
  const int zoom = GetParam();
  const auto picture = NoisePicture(57, 43, 64);
  TSirdsWnd* window = AddPicture(picture);
  for (int z = 1; z < zoom; z *= 2) window->ZoomIn();
  window->SetClientSize(QSize(57, 43) * zoom);
  Settle();
  const auto* client = window->findChild<QAbstractScrollArea*>(QStringLiteral("client"));
  const QImage shown = client->viewport()->grab().toImage();
  int wrong = 0;
  for (int y = 0; y < 43 * zoom; ++y) {
    for (int x = 0; x < 57 * zoom; ++x) {
      const Rgb dot =
          picture->palette()[picture->Row(y / zoom)[static_cast<std::size_t>(x / zoom)]];
      if (shown.pixel(x, y) != qRgb(dot.red, dot.green, dot.blue)) ++wrong;
    }
  }
  EXPECT_EQ(wrong, 0);
}

INSTANTIATE_TEST_SUITE_P(Zooms, Dots, testing::Values(1, 2, 4));

}  // namespace
}  // namespace plenovia
