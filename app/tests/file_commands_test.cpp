// Opening and saving as a user does it.

#include <QAbstractScrollArea>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <fstream>
#include <iterator>

#include "app/tests/program.h"
#include "codec/graph_io.h"
#include "depthmap/depth_map_file.h"
#include "depthmap/ui/map_window.h"
#include "platform/file_io.h"
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
  const QString path = PictureFile("Some Picture.GIF", 300, 40);
  DialogAnswers answers;
  answers.AddFile(path);
  Run(kCmOpen);
  Settle();
  TSirdsWnd* window = ActivePicture();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->GetTitle(), QStringLiteral("some picture.gif"));
  EXPECT_TRUE(window->IsSaved());
  EXPECT_EQ(window->ClientSize(), QSize(300, 40));
  EXPECT_EQ(Frame().LastFormat(), 3);
  EXPECT_TRUE(SamePixels(*window->Picture(), *NoisePicture(300, 40, 64)));
}

TEST_F(Files, CancelledDialogsChangeNothing) {
  DialogAnswers answers;
  answers.AddFile(QString());
  Run(kCmOpen);
  AddPicture(NoisePicture(9, 9, 4))->SetSaved(false);
  answers.AddFile(QString());
  Run(kCmSave);
  EXPECT_FALSE(ActivePicture()->IsSaved());
  EXPECT_EQ(Frame().LastFormat(), 1);
}

TEST_F(Files, UnreadableFilesGiveAMessageAndNoWindow) {
  std::ofstream(folder_ / "broken.png") << "no picture";
  std::ofstream(folder_ / "broken.RDS") << "no map";
  DialogAnswers answers;
  answers.AddMessage(QStringLiteral("Error Opening the Bitmap file\nbroken.png: "
                                    "The file is not a picture of a known format."),
                     QStringLiteral("Error"));
  EXPECT_EQ(Open(Path("broken.png")), nullptr);
  EXPECT_EQ(Frame().LastFormat(), 0);
  answers.AddMessage(QStringLiteral("Invalid Depth Map file"), QStringLiteral("Error"));
  answers.AddMessage(QStringLiteral("Error Opening the Depth Map file\nbroken.rds: "
                                    "The file is not a valid depth map."),
                     QStringLiteral("Error"));
  Open(Path("broken.RDS"));
  EXPECT_EQ(Frame().LastFormat(), 5);
  EXPECT_TRUE(Frame().Area()->subWindowList().isEmpty());
}

TEST_F(Files, DamagedFilesShowWhatCouldBeReadAndSaySo) {
  const auto cut = [&](const QString& file, const std::string& name) {
    auto bytes = ReadFile(ToPath(file)).value();
    bytes.resize(bytes.size() * 2 / 3);
    EXPECT_TRUE(WriteFile(folder_ / name, bytes));
    Open(Path(name));
  };
  cut(PictureFile("whole.bmp", 300, 40), "cut.bmp");
  ASSERT_NE(ActivePicture(), nullptr);
  EXPECT_EQ(ActivePicture()->ClientSize(), QSize(300, 40));
  EXPECT_EQ(Frame().Status().Note(),
            QStringLiteral("cut.bmp: The file is truncated. What could be read is shown."));

  // A depth map, known by its contents: two boxes, of which the second one is gone.
  TDepthList list(90, 80);
  list.AddObject(std::make_unique<TDepthObj>(nullptr, DepthRect{5, 5, 350, 30}, SquareBoxObj, 9));
  ASSERT_TRUE(WriteDepthMap(list, folder_ / "whole.txt"));
  cut(Path("whole.txt"), "cut.txt");
  EXPECT_EQ(Frame().LastFormat(), 5);
  const auto* map = qobject_cast<TMapWindow*>(Frame().GetActiveChild());
  ASSERT_NE(map, nullptr);
  EXPECT_EQ(map->ClientSize(), QSize(350, 30));
  EXPECT_TRUE(Frame().Status().Note().startsWith(QStringLiteral("cut.txt: The depth map ")));
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
  const auto told = [](QDialog& dialog) {
    EXPECT_TRUE(static_cast<QMessageBox&>(dialog).text().contains(QStringLiteral(".rds")));
    dialog.accept();
  };
  answers.AddFile(Path("map.rds"));
  answers.Add(told);
  Run(kCmSave);
  EXPECT_FALSE(window->IsSaved());
  EXPECT_EQ(window->GetTitle(), QStringLiteral("picture"));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "map.rds"));

  answers.AddMessage(QStringLiteral("Save\n picture\n before closing?"), QStringLiteral("Confirm"),
                     QMessageBox::Yes);
  answers.AddFile(Path("again.rds"));
  answers.Add(told);
  EXPECT_FALSE(window->close()) << "what could not be saved stays open";
  answers.AddMessage(QStringLiteral("Save\n picture\n before closing?"), QStringLiteral("Confirm"),
                     QMessageBox::Yes);
  answers.AddFile(Path("good.png"));
  EXPECT_TRUE(window->close());
  EXPECT_TRUE(std::filesystem::exists(folder_ / "good.png"));
}

TEST_F(Files, SaveKnowsTheFileAndSaveAsProposesOne) {
  TSirdsWnd* opened = Open(PictureFile("Shark.gif", 300, 200));
  DialogAnswers answers;
  opened->MakeGray();
  Run(kCmSave);
  EXPECT_EQ(Open(Path("Shark.gif"))->Picture()->palette(), opened->Picture()->palette());

  Run(kCmMakeSirds);
  Settle();
  TSirdsWnd* made = ActivePicture();
  ASSERT_TRUE(made->IsStereogram());
  answers.Add([this](QDialog& dialog) {
    auto& asked = static_cast<QFileDialog&>(dialog);
    EXPECT_EQ(asked.selectedFiles().value(0), Path("Shark-stereogram.gif"));
    auto* warning = asked.findChild<QLabel*>(QStringLiteral("warning"));
    ASSERT_NE(warning, nullptr);
    EXPECT_TRUE(warning->text().isEmpty());
    asked.selectNameFilter(asked.nameFilters()[3]);
    Q_EMIT asked.filterSelected(asked.nameFilters()[3]);
    asked.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("a.jpg"));
    EXPECT_TRUE(warning->text().contains(QStringLiteral("JPEG")));
    asked.reject();
  });
  Run(kCmSave);
  answers.AddFile(Path("result.png"));
  Run(kCmSave);
  EXPECT_EQ(made->File(), Path("result.png"));
  EXPECT_TRUE(Frame().Status().Note().contains(QStringLiteral("result.png")));
  EXPECT_TRUE(Available(kCmSave)) << "a second format costs no new run";
  answers.AddFile(Path("no such folder/result.png"));
  answers.Add([](QDialog& dialog) { dialog.accept(); });
  answers.AddFile(QString());
  Run(kCmSaveAs);
  EXPECT_EQ(made->File(), Path("result.png"));
}

TEST_F(Files, WhatASaveReplacesIsInTheTrash) {
  qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder_.path().string()));
  Open(PictureFile("old.bmp", 30, 20));
  const QString other = PictureFile("other name.bmp", 50, 40);
  DialogAnswers answers;
  answers.AddFile(other);
  Run(kCmSaveAs);
  TGraphIO codec;
  EXPECT_EQ(codec.Read_File(folder_ / "other name.bmp")->width(), 30);
  const auto trashed = folder_ / "Trash" / "files" / "other name.bmp";
  ASSERT_TRUE(std::filesystem::exists(trashed));
  EXPECT_EQ(codec.Read_File(trashed)->width(), 50);
  std::ifstream info(folder_ / "Trash" / "info" / "other name.bmp.trashinfo");
  const std::string text{std::istreambuf_iterator<char>(info), {}};
  EXPECT_NE(text.find("Path=" + (folder_.path() / "other%20name.bmp").string() + "\n"),
            std::string::npos)
      << text;
  Run(kCmSave);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(trashed.parent_path()), {}), 1)
      << "a document's own file is replaced without a copy in the trash";
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

TEST_F(Files, OneQuestionForAllUnsavedWindows) {
  TSirdsWnd* first = AddPicture(NoisePicture(11, 7, 8));
  TSirdsWnd* second = AddPicture(NoisePicture(20, 20, 8));
  AddPicture(NoisePicture(9, 9, 8));
  first->SetSaved(false);
  second->SetSaved(false);
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) {
    const auto* list = dialog.findChild<QListWidget*>();
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(1)->text(), QStringLiteral("picture 2"));
    dialog.reject();
  });
  EXPECT_FALSE(Stop()) << "Cancel keeps everything";
  EXPECT_EQ(Frame().Area()->subWindowList().size(), 3);

  // What cannot be saved keeps everything too.
  answers.Add([](QDialog& dialog) { dialog.accept(); });
  answers.AddFile(Path("one.png"));
  answers.AddFile(QString());
  EXPECT_FALSE(Stop());
  EXPECT_TRUE(first->IsSaved());

  first->SetSaved(false);
  answers.Add([](QDialog& dialog) {
    dialog.findChild<QListWidget*>()->item(0)->setCheckState(Qt::Unchecked);
    dialog.accept();
  });
  answers.AddFile(Path("two.png"));
  EXPECT_TRUE(Stop());
  EXPECT_EQ(TGraphIO().Read_File(folder_ / "two.png")->width(), 20);
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
