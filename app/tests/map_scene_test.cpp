// Scenes drawn with the mouse: made into stereograms, saved and opened again.

#include <linux/capability.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QToolButton>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <vector>

#include "app/tests/program.h"
#include "depthmap/ui/tests/map_hand.h"
#include "engine/depth_source.h"
#include "engine/quiet_monitor.h"
#include "engine/separation.h"
#include "engine/tests/stereogram_truth.h"
#include "platform/ui/text.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

using Picture = std::shared_ptr<const IndexedImage>;

class Scene : public ProgramTest, protected MapHand {
 protected:
  Scene() {
    Start();
    window = NewMap();
  }

  void Give(int command) override { Run(command); }

  TMapWindow* ActiveMap() { return qobject_cast<TMapWindow*>(Frame().GetActiveChild()); }
  TMapWindow* NewMap() {
    Run(kCmNew);
    Settle();
    return ActiveMap();
  }
  void DrawPolygon(int level, const std::vector<QPoint>& vertices) {
    SetLevel(level);
    Give(kPolygonTool);
    for (const QPoint vertex : vertices) Click(vertex);
    DoubleClick(vertices.front());
  }

  Picture MakeSirds(const std::function<void()>& during = [] {}) {
    Frame().Area()->setActiveSubWindow(window);
    RunAnd(kCmMakeSirds, during);
    auto* made = qobject_cast<TSirdsWnd*>(Frame().Area()->subWindowList().constLast());
    return made != nullptr ? made->Picture() : nullptr;
  }

  void SaveAs(const fs::path& path, bool fails = false) {
    DialogAnswers answers;
    answers.AddFile(PathToQString(path));
    if (fails) answers.Add([](QDialog& dialog) { dialog.accept(); });
    Run(kCmSaveAs);
  }

  TempFolder files_;
};

std::vector<std::string> Objects(const TMapWindow& map) {
  std::vector<std::string> texts;
  for (auto* object = map.Objects().Head(); object != nullptr;
       object = TDepthList::Below(*object)) {
    texts.push_back(Text(*object));
  }
  return texts;
}

std::string Bytes(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class SceneByMethod : public Scene, public testing::WithParamInterface<ScanMethodNumber> {};

TEST_P(SceneByMethod, LevelsAreFoundInTheStereogram) {
  constexpr int kBox = 8;
  constexpr int kEllipse = 16;
  constexpr int kTriangle = 24;
  constexpr int kSide = 400;
  Draw(kSquareBoxTool, kBox, {60, 40}, {180, 180});
  Draw(kCircleTool, kEllipse, {350, 190}, {210, 50});
  DrawPolygon(kTriangle, {{110, 230}, {290, 230}, {200, 380}});
  const auto drawn = [](int x, int y) {
    if (y >= 230 && std::abs(x - 200) * 150 < 90 * (380 - y)) return kTriangle;
    if ((x - 280) * (x - 280) + (y - 120) * (y - 120) < 70 * 70) return kEllipse;
    return x >= 60 && x < 180 && y >= 40 && y < 180 ? kBox : 0;
  };

  StereogramRule rule;
  rule.settings.scanMethod = GetParam();
  Frame().Settings() = rule.settings;
  Frame().Patterns()->SelectPattern(0);
  const Picture picture = MakeSirds();
  ASSERT_TRUE(picture);
  ASSERT_EQ(picture->width(), kSide);

  const ScanMethod& method = ScanMethodOf(GetParam());
  const int start = method.StartColumn(rule.settings.gapValue);
  const int width = kSide + 2 * start;
  const LevelPicture levels(width, kSide, [&](int x, int y) { return drawn(x - start, y); });
  QuietMonitor monitor;
  const auto found = Reveal(*picture, {.anchor = method.anchor}, monitor);
  ASSERT_TRUE(found);
  const RevealScore score = ScoreReveal(*found, levels, rule);
  EXPECT_GT(score.counted, kSide * kSide / 4);
  EXPECT_GE(score.Fraction(), 0.97);
  for (const QPoint place : {QPoint(150, 110), QPoint(280, 120), QPoint(200, 270)}) {
    const auto index = static_cast<std::size_t>(place.y() * kSide + place.x() + start);
    EXPECT_NEAR(LevelFromSeparation(found->separation[index], rule.settings, rule.kind, width),
                drawn(place.x(), place.y()), 1);
  }
}

INSTANTIATE_TEST_SUITE_P(Methods, SceneByMethod, testing::Values(kLeftToRight, kMcMahon, kFeucht));

TEST_F(Scene, AnEditDuringARunChangesTheRowsThatFollow) {
  const Picture before = MakeSirds();
  const Picture mixed = MakeSirds([this] {
    Frame().Area()->setActiveSubWindow(window);
    Draw(kSquareBoxTool, 20, {40, 2}, {360, 398});
  });
  const Picture after = MakeSirds();
  ASSERT_TRUE(before && mixed && after);
  const auto same = [&](const Picture& other, int y) {
    return std::ranges::equal(mixed->Row(y), other->Row(y));
  };
  int y = mixed->height() - 1;
  while (y >= 0 && same(before, y)) --y;
  const int edited = y;
  while (y >= 0 && same(after, y)) --y;
  EXPECT_LT(edited, 390) << "the lowest rows are made first";
  EXPECT_GT(edited, 2);
  EXPECT_EQ(y, -1) << "a row that is neither";
}

TEST_F(Scene, SavedMapOpensWithTheSameObjects) {
  int level = 0;
  for (const int tool : {kLineTool, kCurveTool, kSquareBoxTool, kRoundBoxTool, kCircleTool}) {
    level += 50;
    Draw(tool, level, {200 - level / 5, 150}, {100, 50 + level});
  }
  DrawPolygon(255, {{10, 10}, {90, 20}, {30, 90}});
  Give(kMoveTool);
  Drag({40, 40}, {140, 45});
  SaveAs(files_ / "My Scene.rds");
  EXPECT_TRUE(window->IsSaved());

  DialogAnswers answers;
  answers.AddFile(PathToQString(files_ / "My Scene.rds"));
  Run(kCmOpen);
  Settle();
  TMapWindow* opened = ActiveMap();
  ASSERT_TRUE(opened != nullptr && opened != window);
  EXPECT_EQ(Objects(*opened), Objects(*window));
  EXPECT_EQ(opened->GetTitle(), QStringLiteral("my scene.rds 2"));
  EXPECT_EQ(opened->ClientSize(), window->ClientSize());
  EXPECT_TRUE(opened->IsSaved());
}

// While it lives, no file can grow as large as a depth map.
class FullDisk {
 public:
  FullDisk() : onSignal_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &limit_);
    const rlimit tight{20, limit_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &limit_);
    std::signal(SIGXFSZ, onSignal_);
  }

 private:
  void (*onSignal_)(int);
  rlimit limit_{};
};

// While it lives, nothing can be written into a folder of our own. The super-user gives up the
// right to do so, and nothing else: the working folder, say, can still be read.
class LockedFolder {
 public:
  explicit LockedFolder(const fs::path& folder) : folder_(folder) {
    fs::permissions(folder_, static_cast<fs::perms>(0555));
    EXPECT_EQ(syscall(SYS_capget, &header_, rights_), 0);
    const __u32 all = rights_[0].effective;
    rights_[0].effective &= ~CAP_TO_MASK(CAP_DAC_OVERRIDE);
    EXPECT_EQ(syscall(SYS_capset, &header_, rights_), 0);
    rights_[0].effective = all;
  }
  LockedFolder(const LockedFolder&) = delete;
  LockedFolder& operator=(const LockedFolder&) = delete;
  ~LockedFolder() {
    EXPECT_EQ(syscall(SYS_capset, &header_, rights_), 0);
    fs::permissions(folder_, fs::perms::owner_all);
  }

 private:
  fs::path folder_;
  __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct rights_[_LINUX_CAPABILITY_U32S_3]{};
};

TEST_F(Scene, AFailedSaveLeavesTheOldFileAndTheMapUnsaved) {
  const fs::path file = files_ / "map.rds";
  SaveAs(file);
  const std::string old = Bytes(file);
  ASSERT_FALSE(old.empty());
  Draw(kCircleTool, 9, {10, 10}, {90, 90});
  const auto expectUnsaved = [&](const char* why) {
    EXPECT_FALSE(window->IsSaved()) << why;
    EXPECT_EQ(Bytes(file), old) << why;
    EXPECT_EQ(std::distance(fs::directory_iterator(files_.path()), {}), 1) << why;
  };
  {
    const FullDisk full;
    SaveAs(file, true);
  }
  expectUnsaved("full disk");
  {
    const LockedFolder locked(files_.path());
    SaveAs(file, true);
  }
  expectUnsaved("locked folder");
  SaveAs(file);
  EXPECT_TRUE(window->IsSaved());
  EXPECT_GT(Bytes(file).size(), old.size());
}

TEST_F(Scene, PaletteShowsTheToolOfTheActiveWindow) {
  const auto pressed = [this] {
    std::string names;
    const auto* palette = Frame().findChild<QWidget*>(QStringLiteral("toolsPalette"));
    for (const auto* button : palette->findChildren<QToolButton*>()) {
      if (button->isChecked()) names += button->objectName().toStdString();
    }
    return names;
  };
  TMapWindow* first = window;
  Give(kSquareBoxTool);
  TMapWindow* second = NewMap();
  EXPECT_EQ(pressed(), "button1251");
  Give(kPolygonTool);
  EXPECT_EQ(pressed(), "button1260");
  EXPECT_EQ(first->CurrentTool(), kSquareBoxTool);
  Frame().Area()->setActiveSubWindow(first);
  EXPECT_EQ(pressed(), "button1258");
  delete first;
  Settle();
  EXPECT_EQ(Frame().GetActiveChild(), second);
  EXPECT_EQ(pressed(), "button1260");
}

}  // namespace
}  // namespace plenovia
