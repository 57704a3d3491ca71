// Numbers that look random and are the same on every machine and in every run.
#pragma once

#include <cstdint>

namespace plenovia {

// SplitMix64 (Steele, Lea and Flood, 2014).
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t Next() {
    std::uint64_t z = (state_ += 0x9e3779b97f4a7c15u);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
  }
  // A number from `low` to `high`, both included.
  int Int(int low, int high) {
    const auto range = static_cast<std::uint64_t>(static_cast<std::int64_t>(high) - low) + 1;
    return static_cast<int>(low + static_cast<std::int64_t>(Next() % range));
  }
  std::uint8_t Byte() { return static_cast<std::uint8_t>(Next() >> 56); }
  double Unit() { return static_cast<double>(Next() >> 11) * 0x1.0p-53; }  // 0 <= Unit() < 1

 private:
  std::uint64_t state_;
};

}  // namespace plenovia
