// The list of the figures.
#pragma once

#include <span>

#include "figures/figures.h"

namespace plenovia::figures {

struct Figure {
  const char* title;  // ASCII, at most 39 characters
  HeightFunction height;
};

// In the order of their numbers. Numbers are stored in settings, so new figures go to the end.
std::span<const Figure> AllFigures();

}  // namespace plenovia::figures
