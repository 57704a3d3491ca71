#include "engine/match_cost.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "engine/byte_lanes.h"
#include "platform/random.h"

namespace plenovia {

namespace {

using Channels = std::vector<std::array<std::uint8_t, 256>>;

Channels ChannelsOf(const Palette& palette) {
  Channels channels(3);
  for (std::size_t i = 0; i < 256; ++i) {
    const Rgb colour = palette[static_cast<int>(i)];
    channels[0][i] = colour.red;
    channels[1][i] = colour.green;
    channels[2][i] = colour.blue;
  }
  return channels;
}

double MeanDifference(const IndexedImage& picture, const Channels& channels) {
  constexpr int kSamples = 20000;
  const auto pixels = picture.pixels();
  if (pixels.empty()) return 0;
  Random random(1);
  std::int64_t sum = 0;
  for (int i = 0; i < kSamples; ++i) {
    const std::uint8_t a = pixels[random.Next() % pixels.size()];
    const std::uint8_t b = pixels[random.Next() % pixels.size()];
    for (const auto& channel : channels) sum += std::abs(channel[a] - channel[b]);
  }
  return static_cast<double>(sum) / kSamples;
}

// Channels whose differences are costs; one channel when all three are the same.
Channels Scaled(Channels channels, double meanDifference) {
  if (channels[0] == channels[1] && channels[1] == channels[2]) {
    channels.resize(1);
    meanDifference /= 3;
  }
  const double factor = meanDifference > 0 ? MatchCost::kChanceCost / meanDifference : 0;
  for (auto& channel : channels) {
    const double darkest = *std::min_element(channel.begin(), channel.end());
    for (auto& value : channel) {
      value = static_cast<std::uint8_t>(std::min(255.0, std::round((value - darkest) * factor)));
    }
  }
  return channels;
}

}  // namespace

MatchCost::MatchCost(const IndexedImage& picture, SeparationRange range, RevealAnchor anchor)
    : picture_(picture),
      range_(range),
      anchor_(anchor),
      lanes_((static_cast<std::size_t>(range.count()) / kByteLanes + 1) * kByteLanes) {
  const Channels channels = ChannelsOf(picture.palette());
  channels_ = Scaled(channels, MeanDifference(picture, channels));
  const std::size_t times = anchor == RevealAnchor::kRight ? 1 : 2;
  stride_ = static_cast<std::size_t>(picture.width()) * times +
            static_cast<std::size_t>(range.largest) + lanes_;
}

int MatchCost::PairsAt(int x) const {
  const int widest =
      anchor_ == RevealAnchor::kRight ? x : std::min(2 * x + 1, 2 * (picture_.width() - 1 - x));
  return std::clamp(widest - range_.smallest + 1, 0, range_.count());
}

int MatchCost::PairCost(int x, int y, int separation) const {
  const int left = anchor_ == RevealAnchor::kRight ? x - separation : x - separation / 2;
  const int right = left + separation;
  if (left < 0 || right >= picture_.width()) return kChanceCost;
  return Difference(y, left, right);
}

// The left pixels of a column's pairs lie one after the other in scratch.left, so do the right ones
// in scratch.right: reversed, and with the centre as anchor each pixel twice, because every second
// step of the separation moves the left pixel and the others the right one.
void MatchCost::Spread(std::span<const std::uint8_t> row, Scratch& scratch) const {
  const std::size_t times = anchor_ == RevealAnchor::kRight ? 1 : 2;
  const std::size_t length = row.size() * times;
  scratch.left.resize(stride_ * channels_.size());
  scratch.right.resize(stride_ * channels_.size());
  for (std::size_t c = 0; c < channels_.size(); ++c) {
    std::uint8_t* left = scratch.left.data() + c * stride_ + length;
    std::uint8_t* right = scratch.right.data() + c * stride_;
    for (const std::uint8_t pixel : row) {
      const std::uint8_t value = channels_[c][pixel];
      for (std::size_t i = 0; i < times; ++i) *--left = *right++ = value;
    }
  }
}

template <std::size_t kChannels, bool kCentre>
void MatchCost::Compare(const Scratch& scratch, std::span<std::uint8_t> costs) const {
  const auto width = static_cast<std::size_t>(picture_.width());
  const auto smallest = static_cast<std::size_t>(range_.smallest);
  const ByteLanes highest = SameLanes(kHighestCost);
  for (std::size_t x = 0; x < width; ++x) {
    const std::size_t behind = width - 1 - x;
    const std::uint8_t* left = scratch.left.data() + smallest + (kCentre ? 2 * behind : behind);
    const std::uint8_t* right = scratch.right.data() + (kCentre ? 2 * x + smallest + 1 : x);
    std::uint8_t* cost = costs.data() + x * lanes_;
    for (std::size_t i = 0; i < lanes_; i += kByteLanes) {
      ByteLanes sum{};
      for (std::size_t c = 0; c < kChannels; ++c) {
        const std::uint8_t* other = right + c * stride_;
        const ByteLanes pixels = kCentre ? LoadLanes(other + i) : SameLanes(*other);
        sum += Min(AbsDifference(LoadLanes(left + c * stride_ + i), pixels), highest);
      }
      StoreLanes(cost + i, Min(sum, highest));
    }
  }
}

void MatchCost::Row(int y, std::uint8_t padding, Scratch& scratch,
                    std::span<std::uint8_t> costs) const {
  Spread(picture_.Row(y), scratch);
  const bool centre = anchor_ == RevealAnchor::kCentre;
  if (channels_.size() == 1) {
    centre ? Compare<1, true>(scratch, costs) : Compare<1, false>(scratch, costs);
  } else {
    centre ? Compare<3, true>(scratch, costs) : Compare<3, false>(scratch, costs);
  }
  for (int x = 0; x < picture_.width(); ++x) {
    std::uint8_t* cost = costs.data() + static_cast<std::size_t>(x) * lanes_;
    std::fill(cost + PairsAt(x), cost + range_.count(), kChanceCost);
    std::fill(cost + range_.count(), cost + lanes_, padding);
  }
}

}  // namespace plenovia
