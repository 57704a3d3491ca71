// Making stereograms, and what they are made with.
#pragma once

namespace plenovia {

class TPlenoviaWnd;

// The stereogram of the active picture or depth map, in a new window.
void CmMakeSirds(TPlenoviaWnd& frame);
// The stereogram of a mathematical figure; `command` is 301 + its number. In a new window, or over
// the active picture when the settings ask for that.
void CmFigure(TPlenoviaWnd& frame, int command);
void CmWizard(TPlenoviaWnd& frame);
void CmSettings(TPlenoviaWnd& frame);
void CmPatterns(TPlenoviaWnd& frame);
// Adds the corner of the active picture to the pattern library. False when it cannot.
bool AddPatternFromPicture(TPlenoviaWnd& frame);

}  // namespace plenovia
