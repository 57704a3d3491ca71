// Stereograms made in the window, and everything that may happen while one is made.

#include <QElapsedTimer>
#include <QEvent>
#include <QListWidget>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>
#include <vector>

#include "app/file_commands.h"
#include "app/sirds_commands.h"
#include "app/tests/program.h"
#include "codec/graph_io.h"
#include "engine/generation.h"
#include "engine/quiet_monitor.h"
#include "figures/sirdmath.h"
#include "platform/ui/private_message.h"
#include "platform/ui/text.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

// Writes down what the frame is told.
class MessageLog : public QObject {
 public:
  explicit MessageLog(QObject& frame) { frame.installEventFilter(this); }
  std::vector<std::string> lines;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != PrivateMessage::EventType()) return false;
    const auto* message = static_cast<PrivateMessage*>(event);
    if (message->number() != WM_PROGRESS) return false;
    const ProgressInfo& info = *message->progress();
    const auto percent = info.total > 0 ? info.done * 100 / info.total : 0;
    lines.push_back(std::to_string(message->value()) + " " + info.text + " " +
                    std::to_string(percent));
    return false;
  }
};

class Runs : public ProgramTest {
 protected:
  Runs() { Start(); }

  std::vector<TSirdsWnd*> Pictures() {
    std::vector<TSirdsWnd*> pictures;
    for (QMdiSubWindow* window : Frame().Area()->subWindowList()) {
      if (auto* picture = qobject_cast<TSirdsWnd*>(window)) pictures.push_back(picture);
    }
    return pictures;
  }
};

TEST_F(Runs, MakesWhatTheEngineMakesAndTellsTheFrame) {
  const auto picture = NoisePicture(400, 400, 64);
  AddPicture(picture);
  const MessageLog log(Frame());
  Run(kCmMakeSirds);
  Settle();
  const std::vector<std::string> expected{"1  0",
                                          "3 Generating Dots 0",
                                          "4 Shifting Dots 12",
                                          "4 Shifting Dots 25",
                                          "4 Shifting Dots 37",
                                          "4 Shifting Dots 50",
                                          "4 Shifting Dots 62",
                                          "4 Shifting Dots 75",
                                          "4 Shifting Dots 87",
                                          "2  0"};
  EXPECT_EQ(log.lines, expected);

  TSirdsWnd* made = ActivePicture();
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(made->GetTitle(), QStringLiteral("picture{sird}"));
  EXPECT_TRUE(made->IsStereogram());
  EXPECT_FALSE(made->IsSaved());
  QuietMonitor quiet;
  const auto pattern = Frame().Patterns()->GetCurrentBitmap();
  const auto direct = MakeSirdFromBitmap(*picture, 1.0, {*pattern, Frame().Settings(), quiet});
  EXPECT_TRUE(SamePixels(*made->Picture(), *direct));
  EXPECT_TRUE(Available(kCmMakeSirds));
  made->SetSaved(true);
}

TEST_F(Runs, EachFigureOfTheMenuIsThatOfTheEngineWithACaption) {
  QuietMonitor quiet;
  const auto pattern = Frame().Patterns()->GetCurrentBitmap();
  for (int command = kCmFirstFigure; command <= kCmLastFigure; ++command) {
    Run(command);
    Settle();
    const auto made = ActivePicture()->Picture();
    FigureRun run;
    run.level = &_GetFigureLevel;
    run.code = kCmFirstFigure - 1 - command;
    auto expected = *MakeSirdFromFigure(run, {*pattern, Frame().Settings(), quiet});
    EXPECT_NE(*made, expected) << "no caption under figure " << command;
    for (int y = expected.height() - 22; y < expected.height(); ++y) {
      std::copy_n(made->Row(y).begin(), made->width(), expected.Row(y).begin());
    }
    EXPECT_TRUE(SamePixels(*made, expected)) << command;
    Frame().GetActiveChild()->CloseUnasked();
  }
}

TEST_F(Runs, AStereogramIsNotMadeIntoAnother) {
  AddPicture(NoisePicture(200, 200, 64))->SetIsStereogram(true);
  DialogAnswers answers;
  answers.AddMessage(QStringLiteral("The active window is already a SIRD.\n"
                                    "Make Again (F5) makes it anew with the settings of now."),
                     QStringLiteral("Note"));
  Run(kCmMakeSirds);
  EXPECT_EQ(Pictures().size(), 1U);
}

TEST_F(Runs, WhileOneRunsOnlyStoppingAndWhatIsAlwaysThereAreAvailable) {
  AddPicture(NoisePicture(1500, 1500, 64));
  std::vector<int> available;
  RunAnd(kCmMakeSirds, [&] {
    for (const CommandRow& row : CommandTable()) {
      if (row.number != 0 && Frame().Commands().Action(row.number)->isEnabled()) {
        available.push_back(row.number);
      }
    }
    Run(kCmStopProcess);
    EXPECT_TRUE(Available(kCmOpen));
  });
  const std::vector<int> expected{kCmPrinterSetup, kCmVideoInformation, kCmFullScreen,
                                  kCmLiveView,     kCmWizard,           kCmGrayImage,
                                  kCmSettings,     kCmPatterns,         kCmVersion,
                                  kCmFormula,      kCmCascade,          kCmTile,
                                  kCmArrangeIcons, kCmCloseAll,         kCmHelpIndex,
                                  kCmHelpSirds,    kCmGraphicsLib,      kCmAbout,
                                  kCmRelocateBar,  kCmStopProcess};
  EXPECT_EQ(available, expected);
  EXPECT_EQ(Pictures().size(), 1U) << "a stopped run makes no window";
}

TEST_F(Runs, StoppedRunsOfMapsAndFiguresCloseTheirWindows) {
  Frame().Settings().w = 1200;
  Frame().Settings().h = 1200;
  RunAnd(kCmFirstFigure, [&] { Run(kCmStopProcess); });
  EXPECT_TRUE(Pictures().empty());

  CmFileNew(Frame().Context());
  RunAnd(kCmMakeSirds, [&] { Run(kCmStopProcess); });
  EXPECT_TRUE(Pictures().empty());
  EXPECT_EQ(Frame().GetActiveChild()->GetWindowKind(), kDepthMapWindow);
  EXPECT_FALSE(Frame().IsBusy());
}

TEST_F(Runs, EndWithTheWindowOfTheirSourcePictureButGoOnWithoutAnyOther) {
  TSirdsWnd* source = AddPicture(NoisePicture(1500, 1500, 64));
  RunAnd(kCmMakeSirds, [&] { source->close(); });
  EXPECT_TRUE(Pictures().empty());

  const auto closePictures = [&] {
    for (TSirdsWnd* picture : Pictures()) picture->CloseUnasked();
  };
  CmFileNew(Frame().Context());
  QMdiSubWindow* map = Frame().GetActiveChild();
  RunAnd(kCmMakeSirds, [&] { delete map; });
  EXPECT_EQ(Pictures().size(), 1U) << "who makes a stereogram of a map keeps the map";
  closePictures();
  for (const int command : {int{kCmMakeSirds}, int{kCmFirstFigure}}) {
    TSirdsWnd* other = AddPicture(NoisePicture(50, 50, 64));
    source = AddPicture(NoisePicture(1200, 1200, 64));
    RunAnd(command, [&] { other->close(); });
    EXPECT_EQ(Pictures().size(), 2U) << command;
    closePictures();
  }
}

TEST_F(Runs, CancelInTheCloseQuestionKeepsThePictureAndTheRun) {
  Frame().Settings().useBmp = 1;
  for (const bool closesFrame : {false, true}) {
    const auto old = NoisePicture(1200, 1200, 64);
    TSirdsWnd* window = AddPicture(old);
    window->SetSaved(false);
    DialogAnswers answers;
    answers.AddMessage(QStringLiteral("Save\n picture\n before closing?"),
                       QStringLiteral("Confirm"), QMessageBox::Cancel);
    RunAnd(kCmFirstFigure, [&] {
      EXPECT_FALSE(closesFrame ? Frame().close() : window->close());
      EXPECT_EQ(window->Picture(), old);
    });
    ASSERT_EQ(Pictures(), std::vector{window});
    EXPECT_NE(window->Picture(), old) << "the result has appeared";
    EXPECT_TRUE(Frame().isVisible());
    window->CloseUnasked();
  }
}

TEST_F(Runs, ResultsAreNamedApart) {
  AddPicture(NoisePicture(100, 100, 64));
  AddPicture(NoisePicture(100, 100, 64));
  EXPECT_EQ(ActivePicture()->GetTitle(), QStringLiteral("picture 2"));
  CmFileNew(Frame().Context());
  Document* map = Frame().GetActiveChild();
  std::vector<QString> titles;
  for (int n = 0; n < 3; ++n) {
    Frame().Area()->setActiveSubWindow(map);
    Run(kCmMakeSirds);
    Settle();
    titles.push_back(ActivePicture()->GetTitle());
    if (n == 1) ActivePicture()->CloseUnasked();
  }
  EXPECT_EQ(titles, (std::vector<QString>{QStringLiteral("untitled{sird}"),
                                          QStringLiteral("untitled{sird} 2"),
                                          QStringLiteral("untitled{sird} 2")}));
}

TEST_F(Runs, TheFrameAsksOnceForThePictureThatIsDrawnOver) {
  Frame().Settings().useBmp = 1;
  const auto old = NoisePicture(1200, 1200, 64);
  AddPicture(old)->SetSaved(false);
  const QString file = PathToQString(folder_.path() / "old.png");
  AddPicture(NoisePicture(50, 50, 64))->SetSaved(false);
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) {
    dialog.findChild<QListWidget*>()->item(1)->setCheckState(Qt::Unchecked);
    dialog.accept();
  });
  answers.AddFile(file);
  Frame().Area()->activatePreviousSubWindow();
  RunAnd(kCmFirstFigure, [&] { EXPECT_FALSE(Frame().close()); });
  EXPECT_FALSE(Frame().isVisible());
  EXPECT_TRUE(SamePixels(*TGraphIO().Read_File(ToPath(file)), *old));
}

TEST_F(Runs, ALaterFigureInTheSameWindowEndsTheEarlierOne) {
  Frame().Settings().useBmp = 1;
  const auto old = NoisePicture(1200, 1200, 64);
  AddPicture(old);
  Run(kCmFirstFigure + 3);
  const auto expected = ActivePicture()->Picture();
  Frame().GetActiveChild()->CloseUnasked();
  TSirdsWnd* window = AddPicture(old);
  RunAnd(kCmFirstFigure, [&] { Run(kCmFirstFigure + 3); });
  ASSERT_EQ(Pictures(), std::vector{window});
  EXPECT_TRUE(SamePixels(*window->Picture(), *expected));

  window->SetImage(old);
  window->SetSaved(false);
  RunAnd(kCmFirstFigure, [&] { RunAnd(kCmFirstFigure + 3, [&] { Run(kCmStopProcess); }); });
  EXPECT_TRUE(Pictures().empty()) << "stopping drops the picture";
  EXPECT_FALSE(Frame().IsBusy());
}

TEST_F(Runs, TheResultMayBeClosed) {
  Frame().Settings().w = 1200;
  Frame().Settings().h = 1200;
  RunAnd(kCmFirstFigure, [&] { ActivePicture()->close(); });
  EXPECT_TRUE(Pictures().empty());
  RunAnd(kCmFirstFigure, [&] { delete ActivePicture(); });
  EXPECT_TRUE(Pictures().empty());
  RunAnd(kCmFirstFigure, [&] { Run(kCmCloseAll); });
  EXPECT_TRUE(Pictures().empty());
  EXPECT_FALSE(Frame().IsBusy());
}

TEST_F(Runs, TheFrameClosesOnceTheRunHasStopped) {
  AddPicture(NoisePicture(1500, 1500, 64));
  RunAnd(kCmMakeSirds, [&] {
    EXPECT_FALSE(Frame().close());
    EXPECT_TRUE(Frame().isVisible());
  });
  EXPECT_FALSE(Frame().isVisible());
  EXPECT_TRUE(std::filesystem::exists(SettingsFile()));
}

TEST_F(Runs, AFigureMayBeMadeInsideARunAndBothEnd) {
  AddPicture(NoisePicture(1200, 1200, 64));
  RunAnd(kCmMakeSirds, [&] {
    Run(kCmFirstFigure + 3);
    EXPECT_TRUE(Frame().IsBusy()) << "the first run goes on";
  });
  EXPECT_FALSE(Frame().IsBusy());
  ASSERT_EQ(Pictures().size(), 3U);
  for (TSirdsWnd* picture : Pictures()) {
    EXPECT_TRUE(picture->Picture());
    picture->SetSaved(true);
  }
}

TEST_F(Runs, ClosingTheFrameStopsRunsInsideRuns) {
  AddPicture(NoisePicture(1500, 1500, 64));
  Frame().Settings().w = 1200;
  Frame().Settings().h = 1200;
  RunAnd(kCmMakeSirds, [&] { RunAnd(kCmFirstFigure, [&] { Frame().close(); }); });
  EXPECT_FALSE(Frame().isVisible());
}

TEST_F(Runs, WindowsAnswerAndStoppingIsFastDuringALargeRun) {
  AddPicture(NoisePicture(4000, 3000, 64));
  qint64 longest = 0;
  QElapsedTimer sinceTurn;
  QElapsedTimer sinceStop;
  QTimer turns;
  int turn = 0;
  QObject::connect(&turns, &QTimer::timeout, &turns, [&] {
    if (sinceTurn.isValid() && turn > 1) longest = std::max(longest, sinceTurn.elapsed());
    sinceTurn.start();
    if (++turn == 5) {
      sinceStop.start();
      Run(kCmStopProcess);
    }
  });
  turns.start(0);
  Run(kCmMakeSirds);
  const qint64 stopped = sinceStop.elapsed();
  turns.stop();
  // Four times the time on a quiet machine without sanitizers.
  EXPECT_GT(turn, 4);
  EXPECT_LT(longest, 200);
  EXPECT_LT(stopped, 400);
  EXPECT_EQ(Pictures().size(), 1U);
}

}  // namespace
}  // namespace plenovia
