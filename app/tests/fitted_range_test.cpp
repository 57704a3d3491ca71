// Depth ranges that are fitted to the source: the result, its notice, and the way back.

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

#include "app/tests/program.h"
#include "documents/ui/notice_bar.h"
#include "engine/depth_source.h"
#include "engine/fit_depth_range.h"
#include "engine/quiet_monitor.h"
#include "engine/tests/stereogram_truth.h"
#include "testing/picture_compare.h"

namespace plenovia {
namespace {

std::shared_ptr<const IndexedImage> Ramp() {
  IndexedImage ramp = IndexedImage::Create(512, 60, Palette::Grays(256)).value();
  for (int y = 0; y < ramp.height(); ++y) {
    for (int x = 0; x < ramp.width(); ++x) {
      ramp.Row(y)[static_cast<std::size_t>(x)] = static_cast<std::uint8_t>(x / 2);
    }
  }
  return std::make_shared<const IndexedImage>(std::move(ramp));
}

class FittedRanges : public ProgramTest {
 protected:
  FittedRanges() {
    Start();
    AddPicture(ramp);
    Run(kCmMakeSirds);
    Settle();
    made = ActivePicture();
  }

  template <class Part>
  Part* InNotice(const char* name) {
    auto* bar = made->findChild<NoticeBar*>();
    return bar != nullptr ? bar->findChild<Part*>(QLatin1String(name)) : nullptr;
  }
  QString Text() {
    auto* text = InNotice<QLabel>("noticeText");
    return text != nullptr ? text->text() : QString();
  }
  void Press(const char* name) {
    auto* button = InNotice<QAbstractButton>(name);
    ASSERT_NE(button, nullptr) << name;
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    Settle();
  }
  IndexedImage AsSet() {
    QuietMonitor quiet;
    return MakeSirdFromBitmap(*ramp, 1.0,
                              {*Frame().Patterns()->GetCurrentBitmap(), Frame().Settings(), quiet})
        .value();
  }

  std::shared_ptr<const IndexedImage> ramp = Ramp();
  TSirdsWnd* made = nullptr;
};

TEST_F(FittedRanges, ShowAllLevelsOfAGrayPicture) {
  StereogramRule rule;
  rule.kind = SourceKind::kImage;
  rule.settings = Frame().Settings();
  EXPECT_EQ(rule.settings, TSirdsSettings()) << "a fit leaves the record as it is";
  const FittedRange range = FitDepthRange({0, 255}, rule.kind, rule.settings);
  rule.settings.zmax = range.zmax;
  EXPECT_EQ(Text(),
            QStringLiteral("Depth range 0 to %1 instead of 0 to 63, so that all depths show.")
                .arg(range.zmax));
  const ScanMethod& method = ScanMethodOf(rule.settings.scanMethod);
  const int start = method.StartColumn(rule.settings.gapValue);
  const LevelPicture truth(method.RunWidth(ramp->width(), rule.settings.gapValue), ramp->height(),
                           [&](int x, int) { return x < start || x >= 512 ? 0 : (x - start) / 2; });
  QuietMonitor quiet;
  const auto found = Reveal(*made->Picture(), {.anchor = method.anchor}, quiet).value();
  const RevealScore score = ScoreReveal(found, truth, rule);
  EXPECT_GT(score.counted, 512 * 60 / 4);
  EXPECT_GE(score.Fraction(), 0.97);
}

TEST_F(FittedRanges, TheRangeAsSetIsOneClickAwayAlsoWithoutTheSource) {
  for (QMdiSubWindow* window : Frame().Area()->subWindowList()) {
    if (window != made) window->close();
  }
  Settle();
  // Stopped, it leaves what was there, and can be tried again.
  const auto fitted = made->Picture();
  QTimer::singleShot(0, made, [this] {
    QTimer::singleShot(0, made, [this] { Run(kCmStopProcess); });
    InNotice<QPushButton>("noticeAction1")->click();
  });
  Settle();
  EXPECT_EQ(made->Picture(), fitted);
  Press("noticeAction1");
  EXPECT_TRUE(SamePixels(*made->Picture(), AsSet()));
  EXPECT_EQ(Frame().Area()->subWindowList().size(), 1);
  EXPECT_EQ(Text(), QString());
}

TEST_F(FittedRanges, AreNoMoreAfterTheUserSaidSoUntilTheSettingsAllowThem) {
  Press("noticeAction2");
  EXPECT_TRUE(Text().contains(QStringLiteral("SIRDS Settings"))) << Text().toStdString();
  Press("noticeAction1");
  EXPECT_TRUE(SamePixels(*made->Picture(), AsSet()));
  made->SetSaved(true);
  ASSERT_TRUE(Stop());
  app_.reset();
  for (const bool fit : {false, true}) {
    Start();
    if (fit) {
      DialogAnswers answers;
      answers.Add([](QDialog& dialog) {
        dialog.findChild<QAbstractButton*>(QStringLiteral("check115"))->click();
        dialog.accept();
      });
      Run(kCmSettings);
    }
    AddPicture(ramp);
    Run(kCmMakeSirds);
    Settle();
    made = ActivePicture();
    EXPECT_EQ(SamePixels(*made->Picture(), AsSet()), !fit);
    EXPECT_EQ(Text().isEmpty(), !fit);
    made->SetSaved(true);
    ASSERT_TRUE(Stop());
    app_.reset();
  }
}

TEST_F(FittedRanges, TheNoticeStandsAboveAWholePictureAndGoes) {
  EXPECT_EQ(made->ClientSize(), QSize(512, 60));
  auto* view = made->findChild<QWidget*>(QStringLiteral("viewport"));
  const auto* bar = made->findChild<NoticeBar*>();
  EXPECT_GE(view->mapTo(made, QPoint()).y(), bar->mapTo(made, bar->rect().bottomLeft()).y());
  for (const QObject* part : bar->children()) {
    const auto* widget = qobject_cast<const QWidget*>(part);
    EXPECT_TRUE(widget == nullptr || bar->rect().contains(widget->geometry()));
  }
  EXPECT_EQ(InNotice<QWidget>("noticeAction1")->nextInFocusChain(),
            InNotice<QWidget>("noticeAction2"));
  EXPECT_EQ(InNotice<QWidget>("noticeAction2")->nextInFocusChain(),
            InNotice<QWidget>("noticeClose"));
  const QSize with = made->size();
  Press("noticeClose");
  EXPECT_EQ(made->findChild<NoticeBar*>(), nullptr);
  EXPECT_EQ(made->ClientSize(), QSize(512, 60));
  EXPECT_EQ(made->width(), with.width());
  EXPECT_LT(made->height(), with.height());
}

// The pages of the wizard with a range that stays as offered, and with one that is typed.
class WizardRange : public ProgramTest, public testing::WithParamInterface<bool> {};

TEST_P(WizardRange, IsOfferedAndATypedOneIsTakenAsItIs) {
  const bool typed = GetParam();
  const QString file = PictureFile("depth.gif", 210, 120);
  WriteSettings("[DEMO]\nzmax=20\n[wizard]\nsource_type=1\nsource_name=" + file.toStdString() +
                "\n");
  Start();
  DialogAnswers answers;
  const auto next = [](QDialog& dialog) {
    dialog.findChild<QAbstractButton*>(QStringLiteral("button101"))->click();
  };
  answers.Add(next);
  answers.Add([&](QDialog& dialog) {
    auto* zmax = dialog.findChild<QLineEdit*>(QStringLiteral("edit114"));
    EXPECT_EQ(zmax->text(), QStringLiteral("95"));
    if (typed) zmax->setText(QStringLiteral("30"));
    next(dialog);
  });
  answers.Add(next);
  answers.Add(next);
  Run(kCmWizard);
  Settle();
  ASSERT_EQ(ActivePicture()->GetTitle(), QStringLiteral("depth.gif{sird}"));
  EXPECT_EQ(ActivePicture()->findChild<NoticeBar*>() == nullptr, typed);
  EXPECT_EQ(Frame().Settings().zmax, typed ? 30 : 20);
  EXPECT_EQ(Frame().Settings().fitRange, 1);
}

INSTANTIATE_TEST_SUITE_P(Typed, WizardRange, testing::Bool());

}  // namespace
}  // namespace plenovia
