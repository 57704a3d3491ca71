#include <gtest/gtest.h>

#include <QPointer>
#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "depthmap/ui/tests/map_window_fixture.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

TEST_F(MapWindow, ClosingAsksForAnUnsavedMap) {
  const QPointer<TMapWindow> alive(window);
  const QString question = QStringLiteral("Save\n untitled\n before closing?");
  const QString title = QStringLiteral("Confirm");
  const auto closeWith = [&](QMessageBox::StandardButton button) {
    DialogAnswers answers;
    answers.AddMessage(question, title, button);
    window->close();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  };
  frame.messages.clear();
  closeWith(QMessageBox::Cancel);
  ASSERT_TRUE(alive);
  EXPECT_TRUE(frame.messages.empty());
  closeWith(QMessageBox::Yes);
  ASSERT_TRUE(alive) << "it was not saved";
  EXPECT_EQ(frame.messages, std::vector<int>{WM_SAVECHILD});
  closeWith(QMessageBox::No);
  EXPECT_FALSE(alive);

  window = Open(50, 50);
  const QPointer<TMapWindow> saved(window);
  frame.savePath = PathToQString(folder / "saved.rds");
  frame.messages.clear();
  closeWith(QMessageBox::Yes);
  EXPECT_FALSE(saved);
  EXPECT_EQ(frame.messages, (std::vector<int>{WM_SAVECHILD, WM_UPDATESTATUS}));
  EXPECT_TRUE(fs::exists(folder / "saved.rds"));
}

TEST_F(MapWindow, WrittenMapIsReadTheSame) {
  EXPECT_FALSE(window->WriteDepthMap(PathToQString(folder / "no folder" / "map.rds")));
  EXPECT_FALSE(window->IsSaved());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("map.rds"));
  Draw(kCurveTool, 9, {60, 60}, {10, 10});
  const fs::path path = folder / "HILL.Rds";
  ASSERT_TRUE(window->WriteDepthMap(PathToQString(path)));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("hill.rds"));
  EXPECT_TRUE(window->IsSaved());

  window = Open(50, 50);
  EXPECT_EQ(window->ReadDepthMap(PathToQString(path)), DepthMapState::kWhole);
  EXPECT_EQ(Top(), "2(60,60,10,10)=9");
  EXPECT_EQ(window->ClientSize(), QSize(400, 400));
  EXPECT_TRUE(window->IsSaved());
  EXPECT_EQ(window->windowTitle(), kUntitled);
}

TEST_F(MapWindow, FilesWithoutAMapLeaveTheWindowAsItIs) {
  const auto write = [&](const char* name, const std::string& content) {
    std::ofstream(folder / name, std::ios::binary) << content;
    return PathToQString(folder / name);
  };
  const std::string head("DEPTHMAP\0\0\0\0\0\0\0\0\1", 17);
  const std::string one("\1\0\0\0", 4);
  const std::array<QString, 3> files{write("other.rds", "DEPTHMAPS and more than enough bytes"),
                                     write("early.rds", head + one),
                                     write("none.rds", head + std::string(4, '\0'))};
  for (const QString& file : files) {
    DialogAnswers answers;
    answers.AddMessage(QStringLiteral("Invalid Depth Map file"), QStringLiteral("Error"));
    EXPECT_FALSE(window->ReadDepthMap(file)) << file.toStdString();
  }
  EXPECT_FALSE(window->ReadDepthMap(PathToQString(folder / "missing.rds")));
  EXPECT_EQ(Top(), "3(0,0,400,400)=0");
  EXPECT_FALSE(window->IsSaved());

  // A triangle with a broken vertex count over a whole background.
  const std::string polygon("\5\0\0\0\7\0\0\0\xFF\xFF\xFF\xFF", 12);
  const std::string box =
      std::string("\3\0\0\0", 4) + std::string(12, '\0') + std::string("\x32\0\0\0\x32\0\0\0", 8);
  const QString damaged = write("damaged.rds", head + std::string("\2\0\0\0", 4) + polygon + box);
  EXPECT_EQ(window->ReadDepthMap(damaged), DepthMapState::kDamaged);
  EXPECT_EQ(window->GetBitmapInfo().width, 50);
}

TEST_F(MapWindow, LevelsFollowEditsAndOutliveTheWindow) {
  const std::shared_ptr<const LevelGrid> levels = window->Levels();
  const auto at = [&](int x, int y) {
    std::vector<std::int32_t> row(400);
    levels->LevelRow(y, row);
    return row[static_cast<std::size_t>(x)];
  };
  EXPECT_EQ(at(30, 30), 0);
  Draw(kSquareBoxTool, 50, {10, 10}, {60, 60});
  EXPECT_EQ(at(30, 30), 50);
  window->RunCommand(kMoveTool);
  Drag({30, 30}, {130, 30});
  EXPECT_EQ(at(30, 30), 0);
  EXPECT_EQ(at(130, 30), 50);
  delete window;
  EXPECT_EQ(at(130, 30), 50);
}

}  // namespace
}  // namespace plenovia
