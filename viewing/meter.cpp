#include "viewing/meter.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <vector>

namespace plenovia {

RepeatReading ReadRepeats(const LevelHistogram& histogram, const SeparationTable& separations,
                          double millimetresPerPixel) {
  if (histogram.empty() || !(millimetresPerPixel > 0)) return {};
  std::int64_t widest = 0;
  for (const LevelCount& entry : histogram) widest = std::max(widest, separations(entry.level));
  const double millimetres = static_cast<double>(widest) * millimetresPerPixel;
  if (millimetres > kMostMillimetres) return {millimetres, Light::kRed};
  const bool comfortable = millimetres >= kComfortFrom && millimetres <= kComfortTo;
  return {millimetres, comfortable ? Light::kGreen : Light::kYellow};
}

StepsReading ReadSteps(const LevelHistogram& histogram, const SeparationTable& separations) {
  constexpr int kEnough = 12;
  std::set<std::int64_t> different;
  for (const LevelCount& entry : histogram) different.insert(separations(entry.level));
  StepsReading reading{static_cast<int>(different.size()), static_cast<int>(histogram.size())};
  if (reading.levels == 0) return reading;
  if (reading.steps >= kEnough || 2 * reading.steps >= reading.levels) {
    reading.light = Light::kGreen;
  } else {
    reading.light = reading.steps < 2 ? Light::kRed : Light::kYellow;
  }
  return reading;
}

Light LightOfFound(double share) {
  if (share >= 0.85) return Light::kGreen;
  return share >= 0.65 ? Light::kYellow : Light::kRed;
}

SteepReading ReadSteepness(const LevelField& rows, const SeparationTable& separations) {
  constexpr std::size_t kReach = 8;
  std::int64_t steep = 0;
  std::int64_t counted = 0;
  std::vector<std::int64_t> row(static_cast<std::size_t>(rows.width()));
  for (int y = 0; y < rows.height(); ++y) {
    std::ranges::transform(rows.Row(y), row.begin(), separations);
    for (std::size_t x = 0; x + kReach < row.size(); ++x) {
      ++counted;
      steep += std::abs(row[x + kReach] - row[x]) > static_cast<std::int64_t>(kReach);
    }
  }
  if (counted == 0) return {};
  const double share = static_cast<double>(steep) / static_cast<double>(counted);
  const Light light = share <= 0.06 ? Light::kGreen : Light::kYellow;
  return {share, share > 0.18 ? Light::kRed : light};
}

namespace {

// The tile's colour channels, one after the other, read as if tiles lay all around it.
class Channels {
 public:
  explicit Channels(const IndexedImage& tile) : tile_(tile) {
    for (int i = 0; i < 256; ++i) {
      const Rgb c = tile.palette()[i];
      const auto index = static_cast<std::size_t>(i);
      values_[0][index] = c.red;
      values_[1][index] = c.green;
      values_[2][index] = c.blue;
    }
  }
  int At(std::size_t channel, int x, int y) const {
    const auto row = tile_.Row((y + tile_.height()) % tile_.height());
    const int column = (x + tile_.width()) % tile_.width();
    return values_[channel][row[static_cast<std::size_t>(column)]];
  }
  int Difference(int x, int other, int y) const {
    int sum = 0;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      sum += std::abs(At(channel, x, y) - At(channel, other, y));
    }
    return sum;
  }
  bool IsPlainAround(int x, int y) const {
    constexpr double kLeast = 0.04 * 255;
    constexpr int kCount = 9 * 3;
    for (std::size_t channel = 0; channel < 3; ++channel) {
      double sum = 0;
      double squares = 0;
      for (int v = y - 1; v <= y + 1; ++v) {
        for (int u = x - 4; u <= x + 4; ++u) {
          const double value = At(channel, u, v);
          sum += value;
          squares += value * value;
        }
      }
      if (squares / kCount - sum / kCount * (sum / kCount) > kLeast * kLeast) return false;
    }
    return true;
  }

 private:
  const IndexedImage& tile_;
  std::array<std::array<std::uint8_t, 256>, 3> values_{};
};

// The mean difference of pixels at each distance up to `most`, from every few rows.
std::vector<double> Differences(const Channels& channels, const IndexedImage& tile, int most) {
  std::vector<double> means;
  const int step = std::max(1, tile.height() / 16);
  for (int distance = 0; distance <= most; ++distance) {
    std::int64_t sum = 0;
    std::int64_t counted = 0;
    for (int y = 0; y < tile.height(); y += step) {
      for (int x = 0; x < tile.width(); ++x, ++counted) {
        sum += channels.Difference(x, (x + distance) % tile.width(), y);
      }
    }
    means.push_back(static_cast<double>(sum) / static_cast<double>(counted));
  }
  return means;
}

// The least distance at which the tile nearly repeats itself although it does not close by.
int RepeatDistance(const std::vector<double>& differences) {
  constexpr std::size_t kNear = 4;
  double mean = 0;
  for (const double difference : differences) mean += difference;
  mean /= static_cast<double>(differences.size());
  for (std::size_t at = kNear; at + kNear < differences.size(); ++at) {
    const double here = differences[at];
    if (here < 0.25 * mean && here < 0.5 * differences[at - kNear / 2] &&
        here < 0.5 * differences[at + kNear / 2]) {
      return static_cast<int>(at);
    }
  }
  return 0;
}

}  // namespace

PatternReading ReadPattern(const IndexedImage& tile, int gap) {
  if (tile.empty()) return {};
  const Channels channels(tile);
  const int step = std::max(1, std::max(tile.width(), tile.height()) / 64);
  int plain = 0;
  int counted = 0;
  for (int y = 0; y < tile.height(); y += step) {
    for (int x = 0; x < tile.width(); x += step, ++counted) plain += channels.IsPlainAround(x, y);
  }
  PatternReading reading;
  reading.plain = static_cast<double>(plain) / counted;
  reading.repeatsAt = RepeatDistance(Differences(channels, tile, std::clamp(gap, 1, 1024)));
  if (reading.repeatsAt > 0 || reading.plain > 0.5) {
    reading.light = Light::kRed;
  } else {
    reading.light = reading.plain <= 0.15 ? Light::kGreen : Light::kYellow;
  }
  return reading;
}

}  // namespace plenovia
