// Selected objects turned, mirrored, lined up and spread out.
#pragma once

#include "depthmap/depth_list.h"

namespace plenovia {

// Each of these is one step. They leave the background box as it is.

enum class Turn { kLeft, kRight };
// By 90 degrees about the middle of all; four turns bring everything back.
void TurnSelection(TDepthList& list, Turn turn);

enum class MirrorAxis { kLeftRight, kUpDown };
// About the middle of all.
void MirrorSelection(TDepthList& list, MirrorAxis axis);

// Turns the polygons and lines among them clockwise by any angle, in degrees, about the middle of
// all. Points go to the nearest pixels. False when there are none.
bool RotateSelection(TDepthList& list, double degrees);

enum class Alignment { kLeft, kCentre, kRight, kTop, kMiddle, kBottom };
// Lines them up with the edge or the middle of all; one alone with that of the map.
void AlignSelection(TDepthList& list, Alignment alignment);

enum class Spread { kAcross, kDown };
// Makes the gaps between three or more equal; the outer ones stay.
void SpreadSelection(TDepthList& list, Spread spread);

}  // namespace plenovia
