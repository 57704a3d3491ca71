#include "sources/resample.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "engine/depth_source.h"

namespace plenovia {

namespace {

constexpr int kSmallestEdge = 4 * FineDepth::kLevelParts;
constexpr int kEdgeToSlope = 3;

// A row or column of levels.
using Line = std::vector<std::uint16_t>;

// Marks, for each pixel of a line, whether an edge lies between it and the next one.
void FindEdges(const Line& line, std::vector<bool>& edges) {
  const auto step = [&](std::size_t i) {
    return i + 1 < line.size() ? std::abs(int{line[i + 1]} - int{line[i]}) : 0;
  };
  edges.assign(line.size(), false);
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    const int beside = std::max(i > 0 ? step(i - 1) : 0, step(i + 1));
    const bool alone = line.size() == 2;
    edges[i] = step(i) >= kSmallestEdge && (alone || step(i) > kEdgeToSlope * beside);
  }
}

// Fills `to` from `from`; the middles of both lie over each other.
class LineResampler {
 public:
  void Run(const Line& from, Line& to) {
    FindEdges(from, edges_);
    const double scale = static_cast<double>(from.size()) / static_cast<double>(to.size());
    for (std::size_t i = 0; i < to.size(); ++i) {
      const double at = (static_cast<double>(i) + 0.5) * scale - 0.5;
      to[i] = scale > 1 ? Mean(from, at, scale / 2) : Between(from, at);
    }
  }

 private:
  std::uint16_t Between(const Line& from, double at) const {
    const double inside = std::clamp(at, 0.0, static_cast<double>(from.size() - 1));
    const auto left = static_cast<std::size_t>(inside);
    const std::size_t right = std::min(left + 1, from.size() - 1);
    const double part = inside - static_cast<double>(left);
    if (edges_[left]) return from[part < 0.5 ? left : right];
    return static_cast<std::uint16_t>(std::lround(from[left] * (1 - part) + from[right] * part));
  }

  // Of the pixels up to `reach` from a place that no edge parts from it.
  std::uint16_t Mean(const Line& from, double at, double reach) const {
    const double end = static_cast<double>(from.size() - 1);
    const auto middle = static_cast<std::size_t>(std::lround(std::clamp(at, 0.0, end)));
    const auto first = static_cast<std::size_t>(std::ceil(std::max(0.0, at - reach + 0.5)));
    const auto last = static_cast<std::size_t>(std::floor(std::min(end, at + reach - 0.5)));
    std::size_t low = middle;
    std::size_t high = middle;
    while (low > first && !edges_[low - 1]) --low;
    while (high < last && !edges_[high]) ++high;
    std::uint64_t sum = 0;
    for (std::size_t i = low; i <= high; ++i) sum += from[i];
    const std::uint64_t count = high - low + 1;
    return static_cast<std::uint16_t>((sum + count / 2) / count);
  }

  std::vector<bool> edges_;
};

}  // namespace

Result<FineImage> ResampleLevels(const FineImage& image, int width, int height) {
  auto wide = FineImage::Create(width, image.height());
  if (!wide) return wide;
  auto result = FineImage::Create(width, height);
  if (!result) return result;
  LineResampler resampler;
  Line from(static_cast<std::size_t>(image.width()));
  Line to(static_cast<std::size_t>(width));
  for (int y = 0; y < image.height(); ++y) {
    std::ranges::copy(image.Row(y), from.begin());
    resampler.Run(from, to);
    std::ranges::copy(to, wide->Row(y).begin());
  }
  from.resize(static_cast<std::size_t>(image.height()));
  to.resize(static_cast<std::size_t>(height));
  for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
    for (int y = 0; y < image.height(); ++y) from[static_cast<std::size_t>(y)] = wide->Row(y)[x];
    resampler.Run(from, to);
    for (int y = 0; y < height; ++y) result->Row(y)[x] = to[static_cast<std::size_t>(y)];
  }
  return result;
}

}  // namespace plenovia
