// The files used last, and the dialog that opens files.

#include "app/recent_files.h"

#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <fstream>

#include "app/file_commands.h"
#include "app/sample_files.h"
#include "app/tests/program.h"
#include "platform/ui/text.h"

namespace plenovia {
namespace {

TEST(RecentFilesList, KeepsTheNewestThatExistOnceAndComesBackFromTheSettings) {
  const TempFolder folder;
  ProfileFile settings = ProfileFile::Parse("[other]\nkey=1\n[Files]\nRecent9=not absolute\n");
  RecentFiles recent = RecentFiles::Load(settings);
  for (int i = 0; i < 14; ++i) {
    const auto file = folder / ("file " + std::to_string(i) + ".png");
    std::ofstream(file) << "x";
    recent.Add(file);
  }
  recent.Add(folder / "missing.png");
  recent.Add(folder.path());
  recent.Add(folder / "." / "file 5.png");
  std::filesystem::remove(folder / "file 12.png");
  const auto names = [&](const RecentFiles& files) {
    std::string all;
    for (const auto& file : files.Existing()) all += file.stem().string().substr(5) + " ";
    return all;
  };
  EXPECT_EQ(names(recent), "5 13 11 10 9 8 7 6 4 3 ");
  recent.Store(settings);
  const RecentFiles loaded = RecentFiles::Load(ProfileFile::Parse(settings.Text()));
  EXPECT_EQ(names(loaded), names(recent));
  RecentFiles().Store(settings);
  EXPECT_TRUE(RecentFiles::Load(settings).Existing().empty());
  EXPECT_EQ(settings.GetInt("other", "key", 0), 1);
}

class RecentMenu : public ProgramTest {
 protected:
  QList<QAction*> Entries() {
    auto* menu = Frame().findChild<QMenu*>(QStringLiteral("recentFiles"));
    Q_EMIT qobject_cast<QMenu*>(menu->parent())->aboutToShow();
    EXPECT_EQ(menu->menuAction()->isEnabled(), !menu->isEmpty());
    return menu->actions();
  }
};

TEST_F(RecentMenu, HoldsWhatWasOpenedAndSavedAlsoAfterTheNextStart) {
  Start();
  EXPECT_TRUE(Entries().isEmpty());
  const QString first = PictureFile("First & only.png", 30, 20);
  const QString second = PathToQString(folder_ / "second.gif");
  std::ofstream(folder_ / "broken.png") << "no picture";
  DialogAnswers answers;
  answers.AddMessage(QStringLiteral("Error Opening the Bitmap file\nbroken.png: The file is not a "
                                    "picture of a known format."),
                     QStringLiteral("Error"));
  Open(PathToQString(folder_ / "broken.png"));
  Open(first)->SetSaved(false);
  answers.AddFile(second);
  Run(kCmSaveAs);
  EXPECT_TRUE(Stop());
  app_.reset();
  Start();
  const QList<QAction*> entries = Entries();
  ASSERT_EQ(entries.size(), 2);
  EXPECT_EQ(entries[0]->statusTip(), second);
  EXPECT_TRUE(entries[1]->text().startsWith(QStringLiteral("&2 ")));
  EXPECT_TRUE(entries[1]->text().endsWith(QStringLiteral("First && only.png")));
  entries[1]->trigger();
  EXPECT_EQ(ActivePicture()->GetTitle(), QStringLiteral("first & only.png"));
  EXPECT_EQ(Entries().front()->statusTip(), first);
}

TEST_F(RecentMenu, OpenBeginsWhereItWasWithAllFilesAPreviewAndTheSamples) {
  std::filesystem::create_directory(folder_ / "pictures");
  const QString picture = PictureFile("pictures/wide.png", 400, 100);
  std::ofstream(folder_ / "pictures" / "broken.rds") << "no map";
  Start();
  DialogAnswers answers;
  answers.AddFile(picture);
  Run(kCmOpen);
  Settle();
  EXPECT_TRUE(Stop());
  app_.reset();
  Start();
  answers.Add([&](QDialog& dialog) {
    auto& files = dynamic_cast<QFileDialog&>(dialog);
    EXPECT_EQ(files.directory().path(), PathToQString(folder_ / "pictures"));
    EXPECT_TRUE(files.selectedNameFilter().contains(QStringLiteral("*.rds")));
    EXPECT_TRUE(files.selectedNameFilter().contains(QStringLiteral("*.png")));
    EXPECT_TRUE(files.sidebarUrls().contains(QUrl::fromLocalFile(SampleFolder())));
    const auto* shown = files.findChild<QLabel*>(QStringLiteral("previewPicture"));
    const auto* text = files.findChild<QLabel*>(QStringLiteral("previewText"));
    Q_EMIT files.currentChanged(PathToQString(folder_ / "pictures" / "broken.rds"));
    Q_EMIT files.currentChanged(picture);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shown->pixmap().isNull(); }));
    EXPECT_EQ(shown->pixmap().deviceIndependentSize().toSize(), QSize(200, 50));
    EXPECT_EQ(text->text(), QStringLiteral("400 x 100 pixels"));
    Q_EMIT files.currentChanged(PathToQString(folder_ / "pictures" / "broken.rds"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return text->text() == QStringLiteral("No preview"); }));
    dialog.reject();
  });
  Run(kCmOpen);
}

}  // namespace
}  // namespace plenovia
