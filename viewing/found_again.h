// What eyes will find in a stereogram, held against the depth that it was made from.
#pragma once

#include <cstdint>

#include "engine/reveal.h"
#include "viewing/level_field.h"
#include "viewing/level_histogram.h"
#include "viewing/rgb_picture.h"
#include "viewing/separation_table.h"

namespace plenovia {

inline constexpr std::uint32_t kWrongColour = OpaqueColour(214, 40, 40);

inline constexpr std::uint32_t kOutsideColour = OpaqueColour(52, 56, 64);

struct FoundAgain {
  // The depth found as gray, near is bright; what differs in kWrongColour, and kOutsideColour where
  // no pair can lie inside the picture.
  RgbPicture picture;
  std::int64_t counted = 0;  // pixels whose pair lies inside the picture
  std::int64_t found = 0;    // of these, those within one pixel of the right separation
  double Share() const {
    return counted == 0 ? 0.0 : static_cast<double>(found) / static_cast<double>(counted);
  }
};

// The separations, and one more at either side, among which those of these levels are to be looked
// for; as RevealOptions has them, at most 1024 and none below 4. 0 to 0 when there are no levels.
struct SearchedSeparations {
  int smallest = 0;
  int largest = 0;
};
SearchedSeparations SeparationsToSearch(const LevelHistogram& histogram,
                                        const SeparationTable& separations);

// `truth` holds the levels of the rows as they were shifted and has the size of `revealed`; one
// that is empty says that nothing is known, then nothing counts and nothing differs.
FoundAgain CompareFound(const RevealedDepth& revealed, const LevelField& truth,
                        const SeparationTable& separations, RevealAnchor anchor);

}  // namespace plenovia
