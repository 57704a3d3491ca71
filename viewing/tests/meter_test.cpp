// The meter: what its figures are for scenes of which they are known.

#include <gtest/gtest.h>

#include "viewing/meter.h"
#include "viewing/tests/scenes.h"

namespace plenovia {
namespace {

SeparationTable Table(std::int32_t zmax, std::int32_t gap) {
  TSirdsSettings settings;
  settings.zmax = zmax;
  settings.gapValue = gap;
  return {settings, SourceKind::kShape, 500};
}

TEST(Meter, RepeatsAreMeasuredOnTheScreen) {
  const LevelHistogram flat = {{0, 100}};
  const auto light = [&](double millimetresPerPixel) {
    return ReadRepeats(flat, Table(63, 100), millimetresPerPixel).light;
  };
  EXPECT_DOUBLE_EQ(ReadRepeats(flat, Table(63, 100), 0.25).millimetres, 25);
  EXPECT_EQ(light(0.25), Light::kGreen);
  EXPECT_EQ(light(0.1), Light::kYellow);
  EXPECT_EQ(light(0.62), Light::kYellow);
  EXPECT_EQ(light(0.66), Light::kRed);
  EXPECT_EQ(light(0), Light::kNone);
}

TEST(Meter, StepsAreSeparationsThatDiffer) {
  LevelHistogram levels;
  for (int level = 0; level < 64; ++level) levels.push_back({level, 1});
  const StepsReading many = ReadSteps(levels, Table(63, 100));
  EXPECT_EQ(many.levels, 64);
  EXPECT_EQ(many.steps, 51);  // 0 to half the gap
  EXPECT_EQ(many.light, Light::kGreen);
  EXPECT_EQ(ReadSteps(levels, Table(1000, 100)).light, Light::kYellow);
  EXPECT_EQ(ReadSteps(levels, Table(1'000'000, 100)).light, Light::kRed);
  EXPECT_EQ(ReadSteps({}, Table(63, 100)).light, Light::kNone);
}

TEST(Meter, SlopesFuseAndCliffsDoNot) {
  const SeparationTable table = Table(63, 126);  // a level a pixel
  const LevelField slope = FieldOf(64, 2, [](int x, int) { return x; });
  const LevelField cliff = FieldOf(200, 2, [](int x, int) { return x < 100 ? 0 : 40; });
  const LevelField comb = FieldOf(200, 2, [](int x, int) { return x % 10 < 5 ? 0 : 40; });
  EXPECT_EQ(ReadSteepness(slope, table).share, 0);
  EXPECT_NEAR(ReadSteepness(cliff, table).share, 8.0 / 192, 1e-9);
  EXPECT_EQ(ReadSteepness(cliff, table).light, Light::kGreen);
  EXPECT_EQ(ReadSteepness(comb, table).light, Light::kRed);
  EXPECT_EQ(ReadSteepness(LevelField(3, 3), table).light, Light::kNone);
}

TEST(Meter, PatternsArePlainOrRepeatTooSoon) {
  const IndexedImage noise = NoiseTile(128, 128);
  EXPECT_EQ(ReadPattern(noise, 100).light, Light::kGreen);
  EXPECT_EQ(ReadPattern(noise, 100).repeatsAt, 0);

  IndexedImage plain = noise;
  plain.Fill(9);
  EXPECT_EQ(ReadPattern(plain, 100).plain, 1);
  EXPECT_EQ(ReadPattern(plain, 100).light, Light::kRed);

  const IndexedImage narrow = NoiseTile(32, 32);
  EXPECT_EQ(ReadPattern(narrow, 100).repeatsAt, 32);
  EXPECT_EQ(ReadPattern(narrow, 100).light, Light::kRed);
  EXPECT_EQ(ReadPattern(NoiseTile(1, 1), 100).light, Light::kRed);
  EXPECT_EQ(ReadPattern(IndexedImage(), 100).light, Light::kNone);
}

}  // namespace
}  // namespace plenovia
