// Smooth random landscapes, the same on every machine.
#pragma once

#include <cstdint>

namespace plenovia {

// Value noise: random numbers on a grid of unit squares, joined smoothly; -1..1.
double ValueNoise(std::uint64_t seed, double x, double y);

// `octaves` layers of value noise, each of twice the frequency and `gain` times the height of the
// one before; about -1..1.
double FractalNoise(std::uint64_t seed, double x, double y, int octaves, double gain);

}  // namespace plenovia
