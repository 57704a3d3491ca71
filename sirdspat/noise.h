// Smooth and rough random fields that close at the edges of a tile.
#pragma once

#include <cstdint>
#include <vector>

namespace plenovia {

// The plane on which a tile lives: left meets right and top meets bottom. In pixels.
struct Torus {
  int width = 0;
  int height = 0;
};

// A random number 0..1 that depends on the arguments only.
double HashUnit(std::uint64_t seed, std::int64_t a, std::int64_t b = 0);
// The same for each pixel of the torus; (x, y) may lie anywhere.
double PixelGrain(std::uint64_t seed, Torus torus, double x, double y);

// Gradient noise (Perlin, 1985), `octaves` of them, each half as strong and half as large as the
// one before. `cellX` and `cellY` are the size of the largest features in pixels, rounded so that a
// whole number fits the torus.
class Noise {
 public:
  Noise(Torus torus, double cellX, double cellY, int octaves, std::uint64_t seed);
  Noise(Torus torus, double cell, int octaves, std::uint64_t seed)
      : Noise(torus, cell, cell, octaves, seed) {}

  // About -1..1.
  double At(double x, double y) const;

 private:
  double Octave(int octave, double x, double y) const;

  Torus torus_;
  int cellsX_;
  int cellsY_;
  int octaves_;
  std::uint64_t seed_;
};

}  // namespace plenovia
