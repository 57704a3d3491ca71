// How well eyes will manage a stereogram: figures with a light each.
#pragma once

#include "platform/indexed_image.h"
#include "viewing/level_field.h"
#include "viewing/level_histogram.h"
#include "viewing/separation_table.h"

namespace plenovia {

enum class Light { kNone, kGreen, kYellow, kRed };

// The distance of repeats: the widest separation of the levels that occur, on a screen of which a
// pixel measures `millimetresPerPixel`. To fuse it the eyes look at points so far apart behind the
// screen; beyond the distance of the pupils, of which 65 mm is the usual upper figure (N. A.
// Dodgson, Variation and extrema of human interpupillary distance, 2004: mean 63 mm), they would
// have to diverge: red. Green from 20 to 60 mm, yellow else. kNone when the size is not known.
struct RepeatReading {
  double millimetres = 0;
  Light light = Light::kNone;
};
inline constexpr double kComfortFrom = 20;
inline constexpr double kComfortTo = 60;
inline constexpr double kMostMillimetres = 65;
RepeatReading ReadRepeats(const LevelHistogram& histogram, const SeparationTable& separations,
                          double millimetresPerPixel);

// The depth steps that survive: of the levels that occur, how many different separations they
// get. Pixels cannot be halved, so levels that share a separation fall together. Green when half of
// the levels, or at least 12, stay apart; red when all fall together although they differ.
struct StepsReading {
  int steps = 0;
  int levels = 0;
  Light light = Light::kNone;
};
StepsReading ReadSteps(const LevelHistogram& histogram, const SeparationTable& separations);

// The share of a stereogram that was found again (FoundAgain::Share). What one eye alone sees
// beside an edge is never found, so 100 % is rare. Green from 85 %, red below 65 %.
Light LightOfFound(double share);

// Steep edges: the share of columns around which the separation changes faster than eyes can
// follow. Two points fuse as long as the difference of their separations is no larger than their
// distance (P. Burt, B. Julesz, A disparity gradient limit for binocular fusion, 1980). It is
// looked at over 8 columns; around a single step it is exceeded for as many. Green to 6 %, red
// above 18 %. `rows` holds whole rows of the source, in its own width.
struct SteepReading {
  double share = 0;
  Light light = Light::kNone;
};
SteepReading ReadSteepness(const LevelField& rows, const SeparationTable& separations);

// The pattern's plainness: can it be matched? `plain` is the share of places around which, in 9 x 3
// pixels, no colour channel varies by more than 4 % of full scale (standard deviation), about
// the least contrast that eyes see in fine detail (F. W. Campbell, J. G. Robson, Application of
// Fourier analysis to the visibility of gratings, 1968). `repeatsAt` is a distance below the gap at
// which the tile nearly repeats itself, so that eyes may lock there; 0 for none. Red with one or
// with more than half plain, green to 15 % plain.
struct PatternReading {
  double plain = 0;
  int repeatsAt = 0;
  Light light = Light::kNone;
};
PatternReading ReadPattern(const IndexedImage& tile, int gap);

}  // namespace plenovia
