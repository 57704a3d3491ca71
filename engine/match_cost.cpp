#include "engine/match_cost.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

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
  const double factor = meanDifference > 0 ? kChanceCost / meanDifference : 0;
  for (auto& channel : channels) {
    const double darkest = *std::min_element(channel.begin(), channel.end());
    for (auto& value : channel) {
      value = static_cast<std::uint8_t>(std::min(255.0, std::round((value - darkest) * factor)));
    }
  }
  return channels;
}

void CopyReversed(const std::uint8_t* from, std::size_t count, std::uint8_t* to) {
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  for (; count >= kWord; count -= kWord, to += kWord) {
    std::uint64_t word = 0;
    std::memcpy(&word, from + count - kWord, kWord);
    word = __builtin_bswap64(word);
    std::memcpy(to, &word, kWord);
  }
  std::reverse_copy(from, from + count, to);
}

}  // namespace

MatchCost::MatchCost(const IndexedImage& picture, SeparationRange range, RevealAnchor anchor)
    : picture_(picture), range_(range), anchor_(anchor) {
  const Channels channels = ChannelsOf(picture.palette());
  channels_ = Scaled(channels, MeanDifference(picture, channels));
  const std::size_t times = anchor == RevealAnchor::kRight ? 1 : 2;
  stride_ = static_cast<std::size_t>(picture.width()) * times +
            static_cast<std::size_t>(range.largest + range.count()) + kMostByteLanes;
  pairs_.reserve(static_cast<std::size_t>(picture.width()));
  for (int x = 0; x < picture.width(); ++x)
    pairs_.push_back(static_cast<std::uint16_t>(PairsAt(x)));
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
PairRow MatchCost::Row(int y, Scratch& scratch) const {
  const auto row = picture_.Row(y);
  const bool centre = anchor_ == RevealAnchor::kCentre;
  scratch.pixels.resize(stride_ * channels_.size());
  scratch.left.resize(scratch.pixels.size());
  if (centre) scratch.right.resize(scratch.pixels.size());
  for (std::size_t c = 0; c < channels_.size(); ++c) {
    std::uint8_t* pixels = scratch.pixels.data() + c * stride_;
    std::uint8_t* left = scratch.left.data() + c * stride_;
    const auto& channel = channels_[c];
    for (std::size_t x = 0; x < row.size(); ++x) pixels[x] = channel[row[x]];
    if (!centre) {
      CopyReversed(pixels, row.size(), left);
      continue;
    }
    std::uint8_t* right = scratch.right.data() + c * stride_;
    for (std::size_t x = 0; x < row.size(); ++x) {
      right[2 * x] = right[2 * x + 1] = pixels[x];
      left[2 * x] = left[2 * x + 1] = pixels[row.size() - 1 - x];
    }
  }
  const auto smallest = static_cast<std::size_t>(range_.smallest);
  return {.pixels = scratch.pixels.data(),
          .left = scratch.left.data() + smallest,
          .right = centre ? scratch.right.data() + smallest + 1 : scratch.pixels.data(),
          .stride = stride_,
          .channels = channels_.size(),
          .centre = centre,
          .width = row.size(),
          .smallest = smallest,
          .count = static_cast<std::size_t>(range_.count()),
          .pairs = pairs_.data()};
}

}  // namespace plenovia
