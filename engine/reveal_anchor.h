// Which column a pair of pixels of a stereogram speaks for.
#pragma once

namespace plenovia {

enum class RevealAnchor {
  kRight,   // its right pixel
  kCentre,  // the middle between the two, rounded up
};

}  // namespace plenovia
