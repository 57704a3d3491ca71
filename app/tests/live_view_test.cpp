// Live View in the program: what it follows, what it makes, and where it is at the next start.

#include <QTest>

#include "app/desk.h"
#include "app/live_host.h"
#include "app/program_state.h"
#include "app/tests/program.h"
#include "depthmap/ui/tests/map_hand.h"
#include "live/ui/live_panel.h"
#include "platform/profile_file.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

class LiveViewTest : public ProgramTest, protected MapHand {
 protected:
  void Give(int command) override { Run(command); }

  LiveHost& Live() { return Frame().Live(); }
  LiveModel& Model() { return Live().Model(); }
  // Opens the dock; stereograms are shown dot for dot.
  void Open() {
    Frame().resize(900, 700);
    QObject::connect(&Model(), &LiveModel::PictureMade, &Model(),
                     [this](const std::shared_ptr<const LivePicture>& picture) {
                       if (picture->isWhole) shown_ = picture;
                     });
    QObject::connect(&Model(), &LiveModel::RequestChanged, &Model(), [this] { measured_ = false; });
    QObject::connect(&Model(), &LiveModel::Measured, &Model(), [this] { measured_ = true; });
    Run(kCmLiveView);
    Live().Dock().Fill();
    Model().SetFit(false);
    Settle();
  }
  // The stereogram that is shown once nothing changes any more.
  IndexedImage Shown() {
    Settle();
    EXPECT_TRUE(QTest::qWaitFor([this] { return measured_; }, 20000));
    return shown_ && shown_->stereogram ? *shown_->stereogram : IndexedImage();
  }
  // What the button "Make" opens.
  IndexedImage Made() {
    Q_EMIT Live().Dock().MakeAsked();
    Settle();
    return ActivePicture() != nullptr && ActivePicture()->IsStereogram()
               ? *ActivePicture()->Picture()
               : IndexedImage();
  }

  std::shared_ptr<const LivePicture> shown_;
  bool measured_ = false;  // what is shown is the latest
};

TEST_F(LiveViewTest, ShowsWhatMakeGives) {
  Start();
  Open();
  Run(kCmFirstFigure + 3);
  IndexedImage shown = Shown();
  EXPECT_EQ(shown.width(), 400);
  EXPECT_TRUE(SamePixels(Made(), shown)) << "a figure";

  TSirdsWnd* picture = ProgramTest::Open(PictureFile("source.png", 300, 200));
  shown = Shown();
  EXPECT_EQ(shown.width(), 300);
  EXPECT_TRUE(SamePixels(Made(), shown)) << "a picture";

  Frame().Area()->setActiveSubWindow(picture);
  Model().Edit([](TSirdsSettings& record) { record.gapValue = 80; });
  Frame().Patterns()->SelectPattern(4);
  Q_EMIT Frame().Context().state.PatternChanged();
  shown = Shown();
  EXPECT_TRUE(SamePixels(Made(), shown)) << "with other settings and pattern";

  EXPECT_EQ(Model().Source(), picture) << "its stereogram is the active window";
  picture->SetSaved(true);
  picture->close();
  Settle();
  EXPECT_EQ(Shown().width(), 400) << "a figure again";
}

TEST_F(LiveViewTest, FollowsTheEditor) {
  Start();
  Open();
  Run(kCmNew);
  Settle();
  window = qobject_cast<TMapWindow*>(Frame().GetActiveChild());
  ASSERT_NE(window, nullptr);
  SetLevel(40);
  Give(kSquareBoxTool);
  Drag({50, 40}, {150, 120});
  const IndexedImage drawn = Shown();
  EXPECT_EQ(drawn.height(), window->Objects().GridHeight());

  Give(kMoveTool);
  Drag({100, 80}, {160, 90});
  const IndexedImage moved = Shown();
  EXPECT_NE(moved, drawn);
  Run(kCmUndo);
  EXPECT_EQ(Shown(), drawn);
  Run(kDeleteObject);
  EXPECT_NE(Shown(), drawn);
  const IndexedImage left = Shown();
  EXPECT_EQ(left, Made());
}

TEST_F(LiveViewTest, KeysChooseTheViewAndSettingsKeepIt) {
  Start();
  Open();
  LivePanel* panel = Live().Dock().Panel();
  panel->Pane().setFocus();
  Frame().activateWindow();
  for (int view = kLiveViews; view >= 2; --view) {
    QTest::keyClick(&panel->Pane(), static_cast<Qt::Key>(Qt::Key_0 + view));
    Shown();
    ASSERT_TRUE(shown_);
    EXPECT_EQ(static_cast<int>(shown_->view), view);
    EXPECT_FALSE(shown_->colours.pixels.empty());
  }
  ASSERT_TRUE(Stop());
  const auto kept = ProfileFile::Load(SettingsFile()).value();
  EXPECT_EQ(kept.GetInt("LiveView", "Open", -1), 1);
  EXPECT_EQ(kept.GetInt("LiveView", "View", -1), 2);

  Start();
  EXPECT_TRUE(Live().Dock().isVisible());
  EXPECT_EQ(Model().Shown().view, LiveView::kDepth);
  Run(kCmLiveView);
  EXPECT_FALSE(Live().Dock().isVisible());
}

TEST_F(LiveViewTest, TakesWildSettingsAndComesAndGoesWhileItWorks) {
  WriteSettings("[LiveView]\nOpen=1\nView=99\nWidth=-5\nFloats=1\nX=999999\nY=-999999\nHeight=0\n");
  Start();
  Live().Dock().Fill();
  for (int i = 0; i < 60; ++i) {
    Model().SetView(static_cast<LiveView>(i % kLiveViews + 1));
    if (i % 7 == 0) ProgramTest::Open(PictureFile("source.png", 200 + i, 150));
    if (i % 3 == 0) Run(kCmLiveView);
    if (i % 11 == 0) Frame().Context().desk.CloseDocuments();
    Settle();
  }
}

}  // namespace
}  // namespace plenovia
