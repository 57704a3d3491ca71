// The frame: start, placement, menus, what is available, leaving.

#include <QAbstractScrollArea>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QScreen>
#include <QtTest/QTest>
#include <set>

#include "app/button_bar.h"
#include "app/file_commands.h"
#include "app/tests/program.h"
#include "platform/profile_file.h"
#include "platform/ui/private_message.h"

namespace plenovia {
namespace {

class FrameTest : public ProgramTest {
 protected:
  Qt::ToolBarArea BarArea() {
    return Frame().toolBarArea(Frame().findChild<ButtonBar*>(QStringLiteral("mainBar")));
  }
  // What the window manager adds is known a little later.
  void WaitForPlace(const QRect& place) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return Frame().frameGeometry() == place; }, 3000))
        << Frame().frameGeometry().width() << " x " << Frame().frameGeometry().height();
  }
  // The offscreen display has 800 x 800 pixels.
  bool FitsTheDisplay() { return Frame().screen()->size().width() >= 800; }
  ProfileFile Saved() { return ProfileFile::Load(SettingsFile()).value(); }
};

TEST_F(FrameTest, FirstStartHasTheDefaultsAndLeavingWritesThem) {
  Start();
  if (!FitsTheDisplay()) GTEST_SKIP();
  WaitForPlace(QRect(80, 80, 640, 640));
  EXPECT_EQ(BarArea(), Qt::TopToolBarArea);
  EXPECT_EQ(Frame().LastFormat(), 1);
  EXPECT_EQ(Frame().Patterns()->GetCount(), 20);
  EXPECT_EQ(Frame().Settings(), TSirdsSettings());
  EXPECT_TRUE(Stop());
  const ProfileFile saved = Saved();
  EXPECT_EQ(saved.GetInt("WinSize", "X2", -1), 720);
  EXPECT_EQ(saved.GetInt("WinSize", "MX", -1), 0);
  EXPECT_EQ(saved.GetInt("Patterns", "Count", -1), 20);
  EXPECT_EQ(saved.GetInt("DEMO", "zmax", -1), 63);
}

TEST_F(FrameTest, ComesBackWhereItWasWithItsSettings) {
  WriteSettings(
      "[WinSize]\nX1=30\nY1=20\nX2=730\nY2=570\n[Tools]\nCntlBar=2\n[GRAPHICS]\nFormat=3\n"
      "[Patterns]\nSelect=7\nCount=5\n[DEMO]\nw=300\ndx=-12\nnote=mine\n[other]\nkey=kept\n");
  Start();
  if (!FitsTheDisplay()) GTEST_SKIP();
  WaitForPlace(QRect(30, 20, 700, 550));
  EXPECT_EQ(BarArea(), Qt::RightToolBarArea);
  EXPECT_EQ(Frame().Patterns()->GetCurrentIndex(), 7);
  EXPECT_EQ(Frame().Settings().dx, -12);
  Frame().move(100, 90);
  Run(kCmRelocateBar);
  EXPECT_EQ(BarArea(), Qt::TopToolBarArea);
  EXPECT_TRUE(Stop());
  const ProfileFile saved = Saved();
  EXPECT_EQ(saved.GetInt("WinSize", "X1", -1), 100);
  EXPECT_EQ(saved.GetInt("WinSize", "Y2", -1), 640);
  EXPECT_EQ(saved.GetInt("Tools", "CntlBar", -1), 0);
  EXPECT_EQ(saved.GetInt("GRAPHICS", "Format", -1), 3);
  EXPECT_EQ(saved.GetInt("Patterns", "Select", -1), 7);
  EXPECT_EQ(saved.GetInt("DEMO", "dx", 0), -12);
  EXPECT_EQ(saved.GetText("other", "key", ""), "kept");
}

TEST_F(FrameTest, SettingsAreWrittenWhenTheyChange) {
  WriteSettings("[DEMO]\nw=300\n");
  Start();
  Run(kCmRelocateBar);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Saved().GetInt("Tools", "CntlBar", -1) == 1; }, 3000));
  Frame().showMaximized();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Saved().GetInt("WinSize", "MX", -1) == 1; }, 3000));
  EXPECT_EQ(Saved().GetInt("DEMO", "w", -1), 300);
}

TEST_F(FrameTest, KeysAndMnemonicsAreUnique) {
  Start();
  std::set<QString> keys;
  for (const QAction* action : Frame().Commands().findChildren<QAction*>()) {
    for (const QKeySequence& key : action->shortcuts()) {
      EXPECT_TRUE(keys.insert(key.toString()).second) << key.toString().toStdString();
    }
  }
  for (const QAction* top : Frame().menuBar()->actions()) {
    std::set<QChar> letters;
    for (const QAction* item : top->menu()->actions()) {
      const qsizetype mark = item->text().indexOf(u'&');
      if (mark < 0) continue;
      EXPECT_TRUE(letters.insert(item->text()[mark + 1].toUpper()).second)
          << item->text().toStdString();
    }
  }
}

TEST_F(FrameTest, NonsenseInTheSettingsStillGivesAFrameOnTheScreen) {
  WriteSettings(
      "[WinSize]\nX1=90000\nY1=-2147483648\nX2=2147483647\nY2=2147483647\n"
      "[Tools]\nCntlBar=7\n[GRAPHICS]\nFormat=77\n[DEMO]\nscan\nw=-4\n");
  Start();
  EXPECT_EQ(BarArea(), Qt::TopToolBarArea);
  EXPECT_TRUE(Frame().screen()->virtualGeometry().contains(Frame().geometry().topLeft()));
}

TEST_F(FrameTest, NothingOfTheFrameIsOutsideTheScreen) {
  WriteSettings("[WinSize]\nX1=300\nY1=400\nX2=1000\nY2=1000\n");
  Start();
  if (!FitsTheDisplay()) GTEST_SKIP();
  WaitForPlace(QRect(100, 200, 700, 600));
}

TEST_F(FrameTest, RelocatingGoesRoundTopLeftRight) {
  Start();
  const Qt::ToolBarArea areas[] = {Qt::LeftToolBarArea, Qt::RightToolBarArea, Qt::TopToolBarArea};
  for (const Qt::ToolBarArea area : areas) {
    Run(kCmRelocateBar);
    EXPECT_EQ(BarArea(), area);
  }
}

TEST_F(FrameTest, FiguresFollowTheVersionInTheirMenu) {
  Start();
  const QList<QAction*> tops = Frame().menuBar()->actions();
  ASSERT_EQ(tops.size(), 7);
  const QList<QAction*> items = tops[4]->menu()->actions();
  ASSERT_EQ(items.size(), 33);
  EXPECT_EQ(items[0]->text(), QStringLiteral("&Version"));
  EXPECT_EQ(items[1]->text(), QStringLiteral("&Formula..."));
  EXPECT_TRUE(items[2]->isSeparator());
  EXPECT_EQ(items[3]->data().toInt(), kCmFirstFigure);
  EXPECT_TRUE(items[32]->isEnabled());
}

TEST_F(FrameTest, AvailabilityFollowsTheActiveWindow) {
  Start();
  const auto available = [this](std::set<int> of) {
    std::set<int> found;
    for (const int command : of) {
      if (Available(command)) found.insert(command);
    }
    return found;
  };
  const std::set<int> looked{kCmNew,        kCmOpen,      kCmSave,      kCmSaveAs,      kCmZoomIn,
                             kCmZoomOut,    kCmMakeSirds, kCmGrayImage, kCmExit,        kCmTile,
                             kCmFullScreen, 1251,         1255,         kCmStopProcess, kCmPrint,
                             kCmCopy,       kCmColorTable};
  EXPECT_EQ(available(looked), (std::set<int>{kCmNew, kCmOpen, kCmExit, kCmGrayImage}));
  Run(kCmGrayImage);

  TSirdsWnd* picture = AddPicture(NoisePicture(50, 40, 16));
  std::set<int> ofPicture{kCmSave,       kCmSaveAs, kCmNew,     kCmOpen,      kCmExit,
                          kCmGrayImage,  kCmZoomIn, kCmZoomOut, kCmMakeSirds, kCmTile,
                          kCmFullScreen, kCmPrint,  kCmCopy,    kCmColorTable};
  EXPECT_EQ(available(looked), ofPicture);
  Run(kCmZoomIn);
  Run(kCmZoomIn);
  EXPECT_EQ(picture->Zoom(), 4.0);
  EXPECT_FALSE(Available(kCmZoomIn));
  for (int i = 0; i < 4; ++i) Run(kCmZoomOut);
  EXPECT_EQ(picture->Zoom(), 0.25);
  EXPECT_FALSE(Available(kCmZoomOut));

  CmFileNew(Frame().Context());
  EXPECT_EQ(available(looked),
            (std::set<int>{kCmNew, kCmOpen, kCmSave, kCmSaveAs, kCmExit, kCmGrayImage, kCmZoomIn,
                           kCmZoomOut, kCmMakeSirds, kCmTile, 1251, 1255}));
}

TEST_F(FrameTest, StatusBarTellsAboutTheActivePicture) {
  Start();
  AddPicture(NoisePicture(400, 400, 256));
  EXPECT_EQ(Frame().Status().Message(), QStringLiteral("400 x 400 x 256"));
  EXPECT_EQ(Frame().Status().ImageText(), QStringLiteral("Image: 160 K"));
  AddPicture(NoisePicture(101, 10, 16));
  EXPECT_EQ(Frame().Status().Message(), QStringLiteral("101 x 10 x 16"));
  Frame().GetActiveChild()->close();
  Frame().GetActiveChild()->close();
  Settle();
  EXPECT_EQ(Frame().Status().ImageText(), QString());
}

TEST_F(FrameTest, LeavingAsksForEachUnsavedWindowAndCancelKeepsEverything) {
  Start();
  AddPicture(NoisePicture(30, 30, 4))->SetSaved(false);
  const QString question = QStringLiteral("Save\n picture\n before closing?");
  {
    DialogAnswers answers;
    answers.AddMessage(question, QStringLiteral("Confirm"), QMessageBox::Cancel);
    EXPECT_FALSE(Stop());
  }
  DialogAnswers answers;
  answers.AddMessage(question, QStringLiteral("Confirm"), QMessageBox::No);
  EXPECT_TRUE(Stop());
  EXPECT_TRUE(std::filesystem::exists(SettingsFile()));
}

TEST_F(FrameTest, LeavingPassesOverAWindowThatClosesMeanwhile) {
  Start();
  AddPicture(NoisePicture(30, 20, 16))->SetSaved(false);
  TSirdsWnd* second = AddPicture(NoisePicture(30, 20, 16));
  second->SetSaved(false);
  DialogAnswers answers;
  answers.Add([second](QDialog& dialog) {
    second->CloseUnasked();
    dialog.findChild<QListWidget*>()->item(0)->setCheckState(Qt::Unchecked);
    dialog.accept();
  });
  EXPECT_TRUE(Stop());
}

TEST_F(FrameTest, CloseAllAsksOnceForAllAndCancelKeepsThem) {
  Start();
  for (int i = 0; i < 3; ++i) CmFileNew(Frame().Context());
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) { dialog.reject(); });
  Run(kCmCloseAll);
  EXPECT_EQ(Frame().Area()->subWindowList().size(), 3);
  answers.Add([](QDialog& dialog) {
    auto* list = dialog.findChild<QListWidget*>();
    for (int i = 0; i < list->count(); ++i) list->item(i)->setCheckState(Qt::Unchecked);
    dialog.accept();
  });
  Run(kCmCloseAll);
  Settle();
  EXPECT_TRUE(Frame().Area()->subWindowList().isEmpty());
}

TEST_F(FrameTest, AColourTableThatStaysWhenCloseAllIsCancelledIsStillTheOne) {
  Start();
  AddPicture(NoisePicture(50, 40, 64));
  Run(kCmColorTable);
  AddPicture(NoisePicture(30, 30, 4))->SetSaved(false);
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) { dialog.reject(); });
  Run(kCmCloseAll);
  Run(kCmColorTable);
  EXPECT_EQ(Frame().Area()->subWindowList().size(), 3);
}

TEST_F(FrameTest, FullScreenClosesByAKeyThatWasPressedThere) {
  Start();
  AddPicture(NoisePicture(50, 40, 16));
  Run(kCmFullScreen);
  QPointer<QWidget> view = Frame().findChild<QWidget*>(QStringLiteral("fullScreen"));
  ASSERT_FALSE(view.isNull());
  QTest::keyRelease(view, Qt::Key_F);
  Settle();
  ASSERT_FALSE(view.isNull());
  QTest::keyClick(view, Qt::Key_Space);
  Settle();
  EXPECT_TRUE(view.isNull());
}

TEST_F(FrameTest, OneColourTableFollowsTheCommandAndCanBeCopied) {
  Start();
  AddPicture(NoisePicture(50, 40, 64));
  TSirdsWnd* second = AddPicture(NoisePicture(50, 40, 16));
  Run(kCmColorTable);
  Settle();
  EXPECT_EQ(Frame().GetActiveChild()->GetWindowKind(), kColourTableWindow);
  EXPECT_TRUE(Available(kCmCopy));
  Frame().Area()->setActiveSubWindow(second);
  Run(kCmColorTable);
  Settle();
  EXPECT_EQ(Frame().Area()->subWindowList().size(), 3);
  Run(kCmCopy);
  EXPECT_TRUE(Available(kCmPaste));
  Run(kCmPaste);
  Settle();
  EXPECT_EQ(ActivePicture()->ClientSize(), QSize(384, 24));
  EXPECT_FALSE(ActivePicture()->IsSaved());
}

TEST_F(FrameTest, CopyTakesTheSelectionAtAnyZoom) {
  Start();
  const auto picture = NoisePicture(60, 50, 16);
  TSirdsWnd* window = AddPicture(picture);
  Run(kCmZoomIn);
  window->SetClientSize({120, 100});
  auto* view = window->findChild<QAbstractScrollArea*>(QStringLiteral("client"))->viewport();
  const auto scaled = [&](int x, int y) { return QPointF(x, y) / view->devicePixelRatioF(); };
  QTest::mousePress(view, Qt::LeftButton, {}, scaled(80, 60).toPoint());
  QTest::mouseRelease(view, Qt::LeftButton, {}, scaled(20, 40).toPoint());
  Run(kCmCopy);
  Run(kCmPaste);
  Settle();
  const auto& pasted = *ActivePicture()->Picture();
  ASSERT_EQ(pasted.width(), 30);
  ASSERT_EQ(pasted.height(), 10);
  EXPECT_EQ(pasted.Row(3)[5], picture->Row(23)[15]);
}

TEST_F(FrameTest, BoxesThatOnlyTell) {
  Start();
  DialogAnswers answers;
  answers.AddMessage(QStringLiteral("Please open or select a Bitmap Graphic window."),
                     QStringLiteral("Color Table"));
  Run(kCmColorTable);
  answers.Add([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Graphics Library"));
    dialog.reject();
  });
  Run(kCmGraphicsLib);
  answers.Add([](QDialog& dialog) {
    EXPECT_TRUE(qobject_cast<QMessageBox*>(&dialog)->text().contains(QStringLiteral("4294967296")));
    dialog.reject();
  });
  Run(kCmVideoInformation);
  answers.Add([](QDialog& dialog) {
    EXPECT_EQ(dialog.objectName(), QStringLiteral("about"));
    const auto* libraries = dialog.findChild<QLabel*>(QStringLiteral("libraries"));
    EXPECT_TRUE(libraries->text().contains(QString::fromLatin1(qVersion())));
    dialog.reject();
  });
  Run(kCmAbout);
}

}  // namespace
}  // namespace plenovia
