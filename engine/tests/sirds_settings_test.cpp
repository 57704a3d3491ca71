#include "engine/sirds_settings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "testing/temp_folder.h"

namespace plenovia {
namespace {

SirdsSettingsEntry DefaultEntry() {
  SirdsSettingsEntry entry;
  entry.dx = entry.dy = entry.da = entry.zmin = "0";
  entry.zmax = "63";
  entry.gapValue = "100";
  entry.w = entry.h = "400";
  return entry;
}

struct NumberCase {
  std::string SirdsSettingsEntry::*typed;
  std::string_view text;
  std::int32_t TSirdsSettings::*field;
  std::int32_t value;
};

TEST(Normalise, NumbersOutOfRangeAreReplaced) {
  using E = SirdsSettingsEntry;
  using S = TSirdsSettings;
  const std::vector<NumberCase> cases = {
      {&E::gapValue, "50", &S::gapValue, 100},
      {&E::gapValue, "51", &S::gapValue, 51},
      {&E::gapValue, "150", &S::gapValue, 150},
      {&E::gapValue, "151", &S::gapValue, 100},
      {&E::gapValue, "", &S::gapValue, 100},
      {&E::w, "150", &S::w, 200},
      {&E::w, "201", &S::w, 201},
      {&E::w, "1200", &S::w, 1200},
      {&E::w, "1201", &S::w, 400},
      {&E::w, "", &S::w, 200},
      {&E::h, "0", &S::h, 400},
      {&E::h, "1200", &S::h, 1200},
      {&E::h, "-5", &S::h, 400},
      {&E::dx, "201", &S::dx, 0},
      {&E::dx, "-200", &S::dx, -200},
      {&E::da, "190", &S::da, 0},
      {&E::da, "-180", &S::da, -180},
      {&E::dy, " +12abc", &S::dy, 12},
      {&E::dy, "abc", &S::dy, 0},
      {&E::h, "99999999999999999999", &S::h, 400},
      {&E::dx, "00000000000000000001", &S::dx, 0},  // only 19 characters count
  };
  for (const NumberCase& c : cases) {
    SirdsSettingsEntry entry = DefaultEntry();
    entry.*c.typed = c.text;
    EXPECT_EQ(Normalise(entry).*c.field, c.value) << '"' << c.text << '"';
  }
}

TEST(Normalise, FieldsSettleInOrder) {
  SirdsSettingsEntry entry = DefaultEntry();
  entry.gapValue = "120";
  entry.w = "230";
  entry.zmin = "80";
  entry.zmax = "20";
  entry.scanPosition = 2;
  entry.depthByColor = false;
  const TSirdsSettings settings = Normalise(entry);
  EXPECT_EQ(settings.w, 240);
  EXPECT_EQ(settings.zmin, 20);
  EXPECT_EQ(settings.zmax, 80);
  EXPECT_EQ(settings.scanMethod, kFeucht);
  EXPECT_EQ(settings.depthSel, kDepthByBrightness);
}

TEST(Replacements, NameEachTextThatIsNotTakenAsTyped) {
  using E = SirdsSettingsEntry;
  SirdsSettingsEntry entry = DefaultEntry();
  entry.w = " 0400 ";
  entry.h = "+300";
  entry.da = "-0";
  EXPECT_TRUE(Replacements(entry).empty());
  entry.gapValue = "20";
  entry.w = "150";
  entry.h = "200px";
  entry.dy = "";
  entry.da = "-";
  entry.zmin = "80";
  entry.zmax = "20";
  EXPECT_EQ(Replacements(entry), (std::vector<Replacement>{{&E::w, 200},
                                                           {&E::h, 200},
                                                           {&E::gapValue, 100},
                                                           {&E::dy, 0},
                                                           {&E::da, 0},
                                                           {&E::zmin, 20},
                                                           {&E::zmax, 80}}));
}

TEST(RestoreDefaults, KeepsUseBmp) {
  TSirdsSettings settings{.dx = 5, .gapValue = 60, .useBmp = 1, .scanMethod = kFeucht};
  RestoreDefaults(settings);
  EXPECT_EQ(settings, (TSirdsSettings{.useBmp = 1}));
}

TEST(SettingsFile, KeepsEveryFieldAndEverythingElse) {
  const TSirdsSettings settings{.dx = -7,
                                .dy = 8,
                                .da = -180,
                                .zmax = 99,
                                .zmin = 3,
                                .w = 500,
                                .h = 300,
                                .gapValue = 75,
                                .depthSel = 2,
                                .marker = 0,
                                .useBmp = 1,
                                .scanMethod = 3,
                                .bigMarker = 1};
  TempFolder folder;
  ProfileFile profile;
  profile.SetText("Other", "Key", "kept");
  StoreSirdsSettings(settings, profile);
  ASSERT_TRUE(profile.Save(folder / "a.ini"));
  const auto loaded = ProfileFile::Load(folder / "a.ini");
  ASSERT_TRUE(loaded);
  EXPECT_EQ(LoadSirdsSettings(*loaded), settings);
  EXPECT_EQ(loaded->GetText("OTHER", "key", ""), "kept");
}

TEST(SettingsFile, MissingKeysAreDefaultsAndWildOnesAreSettled) {
  ProfileFile profile;
  profile.SetInt("DEMO", "ShiftDir", 1);
  EXPECT_EQ(LoadSirdsSettings(profile), TSirdsSettings{.scanMethod = 1});
  profile.SetInt("demo", "SHIFTDIR", 9);
  profile.SetText("DEMO", "h", "tall");
  profile.SetInt("DEMO", "zmin", 100);
  const TSirdsSettings settings = LoadSirdsSettings(profile);
  EXPECT_EQ(settings, (TSirdsSettings{.zmax = 100, .zmin = 63}));
}

}  // namespace
}  // namespace plenovia
