#include "engine/ui/sett_dialog.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <memory>
#include <stdexcept>

namespace plenovia {
namespace {

class SettDialog : public testing::Test {
 protected:
  SettDialog() { Open(); }

  void Open() {
    dialog = std::make_unique<TSettDialog>(nullptr, settings);
    dialog->show();
  }
  template <class Control>
  Control& Get(const char* name) {
    auto* control = dialog->findChild<Control*>(QLatin1String(name));
    if (control == nullptr) throw std::runtime_error(name);
    return *control;
  }
  void Type(const char* edit, const char* text) {
    Get<QLineEdit>(edit).selectAll();
    QTest::keyClicks(&Get<QLineEdit>(edit), QLatin1String(text));
  }
  std::string Text(const char* edit) { return Get<QLineEdit>(edit).text().toStdString(); }
  void Click(const char* name) { Get<QAbstractButton>(name).click(); }
  void Choose(int scanMethod) { Get<QComboBox>("list113").setCurrentIndex(scanMethod - 1); }

  TSirdsSettings settings{.dx = -7,
                          .dy = 8,
                          .da = -90,
                          .zmax = 99,
                          .zmin = 11,
                          .w = 640,
                          .h = 480,
                          .gapValue = 120,
                          .depthSel = kDepthByBrightness,
                          .marker = 0,
                          .useBmp = 1,
                          .scanMethod = kFeucht};
  const TSirdsSettings before = settings;
  TSirdsSettings defaults = [] {
    TSirdsSettings record;
    record.useBmp = 1;
    return record;
  }();
  std::unique_ptr<TSettDialog> dialog;
};

TEST_F(SettDialog, ShowsTheRecordAndGivesItBackUnchanged) {
  EXPECT_EQ(Text("edit104"), "640");
  EXPECT_EQ(Text("edit105"), "480");
  EXPECT_EQ(Text("edit107"), "120");
  EXPECT_EQ(Text("edit101"), "-7");
  EXPECT_EQ(Text("edit102"), "8");
  EXPECT_EQ(Text("edit110"), "-90");
  EXPECT_EQ(Text("edit103"), "11");
  EXPECT_EQ(Text("edit114"), "99");
  EXPECT_EQ(Get<QComboBox>("list113").currentText(), QStringLiteral("Feucht"));
  EXPECT_TRUE(Get<QRadioButton>("radio112").isChecked());
  EXPECT_FALSE(Get<QRadioButton>("radio108").isChecked());
  QTest::keyClick(dialog.get(), Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(settings, before);
}

TEST_F(SettDialog, OkTakesEveryControl) {
  Type("edit104", "300");
  Type("edit105", " 200px");
  Type("edit107", "77");
  Type("edit101", "-200");
  Type("edit102", "201");
  Type("edit110", "180");
  Type("edit103", "80");
  Type("edit114", "20");
  Click("check109");
  Click("check111");
  Click("check115");
  Click("radio108");
  Choose(kLeftToRight);
  Click("button1");
  EXPECT_EQ(settings, (TSirdsSettings{.dx = -200,
                                      .dy = 0,
                                      .da = 180,
                                      .zmax = 80,
                                      .zmin = 20,
                                      .w = 300,
                                      .h = 200,
                                      .gapValue = 77,
                                      .depthSel = kDepthByColor,
                                      .marker = 1,
                                      .useBmp = 0,
                                      .scanMethod = kLeftToRight,
                                      .fitRange = 0}));
}

TEST_F(SettDialog, ANarrowWidthIsWidenedAsReopeningShows) {
  Type("edit107", "100");
  Type("edit104", "150");
  Click("button1");
  Open();
  EXPECT_EQ(Text("edit104"), "200");
}

TEST_F(SettDialog, WhatIsTypedReplacesTheWidth) {
  QTest::keyClicks(dialog->focusWidget(), QStringLiteral("600"));
  EXPECT_EQ(Text("edit104"), "600");
}

TEST_F(SettDialog, TellsWhatOkReplaces) {
  const auto note = [this] { return Get<QLabel>("note").text().toStdString(); };
  EXPECT_EQ(note(), "");
  Type("edit107", "20");
  EXPECT_EQ(note(), "Gap Value 20 becomes 100.");
  Get<QLineEdit>("edit104").clear();
  EXPECT_EQ(note(), "Width becomes 200. Gap Value 20 becomes 100.");
  Click("check106");
  EXPECT_EQ(note(), "");
}

TEST_F(SettDialog, CancelLeavesTheRecord) {
  Type("edit104", "999");
  Choose(kMcMahon);
  QTest::keyClick(dialog.get(), Qt::Key_Escape);
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_EQ(settings, before);
}

TEST_F(SettDialog, RestoreDefaultsIsInForceAtOnce) {
  Click("check106");
  EXPECT_EQ(settings, defaults);
  EXPECT_EQ(Text("edit104"), "400");
  EXPECT_TRUE(Get<QRadioButton>("radio108").isChecked());
  EXPECT_TRUE(Get<QCheckBox>("check106").isChecked());
  Click("button2");
  EXPECT_EQ(settings, defaults);
}

TEST_F(SettDialog, OkReadsNothingWhileRestoreDefaultsIsChecked) {
  Click("check106");
  Choose(kFeucht);
  Click("button1");
  EXPECT_EQ(settings, defaults);
}

TEST_F(SettDialog, UncheckedAgainOkReadsTheControls) {
  Click("check106");
  Click("check106");
  Choose(kFeucht);
  EXPECT_EQ(Get<QComboBox>("list113").count(), 4);
  Click("button1");
  defaults.scanMethod = kFeucht;
  EXPECT_EQ(settings, defaults);
}

TEST_F(SettDialog, TabFollowsTheEye) {
  const QStringList order = {
      QStringLiteral("edit105"),  QStringLiteral("edit107"),  QStringLiteral("edit101"),
      QStringLiteral("edit102"),  QStringLiteral("edit110"),  QStringLiteral("edit103"),
      QStringLiteral("edit114"),  QStringLiteral("check109"), QStringLiteral("check111"),
      QStringLiteral("radio108"), QStringLiteral("list113"),  QStringLiteral("check115"),
      QStringLiteral("check106"), QStringLiteral("button1"),  QStringLiteral("button2"),
      QStringLiteral("edit104")};
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  EXPECT_EQ(dialog->focusWidget()->objectName(), order.last());
  for (const QString& next : order) {
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(dialog->focusWidget()->objectName().toStdString(), next.toStdString());
  }
}

}  // namespace
}  // namespace plenovia
