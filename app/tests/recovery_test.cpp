#include "app/recovery.h"

#include <QSpinBox>
#include <filesystem>

#include "app/desk.h"
#include "app/file_commands.h"
#include "app/tests/program.h"
#include "platform/ui/text.h"

namespace plenovia {
namespace {

namespace fs = std::filesystem;

class RecoveryTest : public ProgramTest {
 protected:
  fs::path Base() const { return folder_.path() / "recovery"; }
  int Files() const {
    if (!fs::exists(Base())) return 0;
    int files = 0;
    for (const auto& entry : fs::recursive_directory_iterator(Base())) {
      if (entry.path().extension() == ".rds") ++files;
    }
    return files;
  }
  TMapWindow* NewMap() {
    CmFileNew(Frame().Context());
    Settle();
    return ActiveMap();
  }
  TMapWindow* ActiveMap() { return qobject_cast<TMapWindow*>(Frame().GetActiveChild()); }
  // As if the program ended here: its folder stays, and nobody holds its lock.
  void LeaveBehind() const {
    fs::path own;
    for (const auto& entry : fs::directory_iterator(Base())) own = entry.path();
    fs::copy(own, Base() / "dead", fs::copy_options::recursive);
    fs::remove(Base() / "dead" / "lock");
  }
  QString Question(const std::string& names) const {
    return ToQString("Plenovia ended before these depth maps were saved:\n " + names +
                     "\nOpen them as they were? No gives them up, Cancel keeps them for the next "
                     "time.");
  }
};

TEST_F(RecoveryTest, KeepsUnsavedMapsUntilTheyAreSavedOrClosed) {
  Start();
  Recovery recovery(Frame().Context(), PathToQString(Base()));
  TMapWindow* map = NewMap();
  recovery.KeepNow();
  EXPECT_EQ(Files(), 0) << "nothing was done in it";
  map->SetMapSize({70, 60});
  recovery.KeepNow();
  EXPECT_EQ(Files(), 1);
  TMapWindow* second = NewMap();
  second->SetMapSize({50, 60});
  recovery.KeepNow();
  EXPECT_EQ(Files(), 2);
  ASSERT_TRUE(map->Save(PathToQString(folder_ / "map.rds")));
  recovery.KeepNow();
  EXPECT_EQ(Files(), 1);
  map->RunCommand(kCmUndo);
  recovery.KeepNow();
  EXPECT_EQ(Files(), 2);
  for (TMapWindow* each : {map, second}) each->CloseUnasked();
  Settle();
  recovery.KeepNow();
  EXPECT_EQ(Files(), 0);
}

TEST_F(RecoveryTest, OffersWhatAProgramLeftAndLosesItOnlyWhenItIsKeptElsewhere) {
  Start();
  {
    Recovery recovery(Frame().Context(), PathToQString(Base()));
    TMapWindow* map = NewMap();
    ASSERT_TRUE(map->Save(PathToQString(folder_ / "Hill.rds")));
    map->SetMapSize({77, 66});
    TMapWindow* other = NewMap();
    other->SetMapSize({55, 44});
    recovery.KeepNow();
    LeaveBehind();
    for (TMapWindow* each : {map, other}) each->CloseUnasked();
    Settle();
  }
  EXPECT_EQ(Files(), 2) << "only what was left behind";
  Recovery recovery(Frame().Context(), PathToQString(Base()));
  const auto offer = [&](QMessageBox::StandardButton button) {
    DialogAnswers answers;
    answers.AddMessage(Question("hill.rds\n untitled"), QStringLiteral("Recovery"), button);
    recovery.Offer();
    Settle();
  };
  offer(QMessageBox::Cancel);
  EXPECT_EQ(Files(), 2);
  offer(QMessageBox::Yes);
  EXPECT_EQ(Frame().Area()->subWindowList().size(), 2);
  EXPECT_EQ(ActiveMap()->GetTitle(), QStringLiteral("untitled"));
  EXPECT_EQ(ActiveMap()->GetBitmapInfo().width, 55);
  EXPECT_TRUE(ActiveMap()->NeedsSaving());
  auto* hill = qobject_cast<TMapWindow*>(Frame().Area()->subWindowList().first());
  EXPECT_EQ(ToPath(hill->File()), folder_ / "Hill.rds");
  EXPECT_EQ(hill->GetBitmapInfo().width, 77);
  EXPECT_TRUE(hill->NeedsSaving());
  EXPECT_EQ(Files(), 2) << "they are kept again, here";
  EXPECT_FALSE(fs::exists(Base() / "dead"));
  recovery.Offer();  // asks nothing: this program lives
  for (TMapWindow* each : {hill, ActiveMap()}) each->CloseUnasked();
  Settle();
  recovery.KeepNow();
  EXPECT_EQ(Files(), 0);
}

TEST_F(RecoveryTest, NewMapsHaveTheSizeUsedLast) {
  WriteSettings("[SIRDS]\n");
  Start();
  const auto side = [&] { return NewMap()->GetBitmapInfo().width; };
  const int record = Frame().Settings().w;
  EXPECT_EQ(side(), record);
  {
    DialogAnswers answers;
    answers.Add([](QDialog& dialog) {
      dialog.findChild<QSpinBox*>(QStringLiteral("mapWidth"))->setValue(123);
      dialog.accept();
    });
    Run(kCmMapSize);
  }
  EXPECT_EQ(ActiveMap()->GetBitmapInfo().width, 123);
  EXPECT_EQ(side(), 123);
  EXPECT_EQ(ActiveMap()->LevelAtHand(), 16);
  Frame().Settings().w = record + 10;
  EXPECT_EQ(side(), record + 10) << "a newer choice";
  for (QMdiSubWindow* window : Frame().Area()->subWindowList()) {
    qobject_cast<Document*>(window)->CloseUnasked();
  }
}

}  // namespace
}  // namespace plenovia
