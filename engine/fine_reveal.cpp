#include "engine/fine_reveal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <new>
#include <span>
#include <vector>

#include "platform/parallel_for.h"

namespace plenovia {

namespace {

// Around each pixel the separations are taken for a plane; the one is found that brings both sides
// of the pairs together best, by the least squares of their colours (Lucas and Kanade, "An
// iterative image registration technique with an application to stereo vision", 1981).
constexpr int kRounds = 4;
constexpr int kAcross = 8;       // pixels of the neighbourhood to each side
constexpr int kUp = 4;           // and above and below
constexpr float kSurface = 1.5;  // separations that differ more belong to another surface
constexpr float kFarthest = 1;   // from the whole separation that a part may lead

// The picture's colours as numbers, one channel for a gray picture or three.
class Colours {
 public:
  explicit Colours(const IndexedImage& picture) : picture_(picture) {
    bool gray = true;
    for (std::size_t i = 0; i < 256; ++i) {
      const Rgb c = picture.palette()[static_cast<int>(i)];
      channels_[0][i] = c.red;
      channels_[1][i] = c.green;
      channels_[2][i] = c.blue;
      gray = gray && c.red == c.green && c.green == c.blue;
    }
    count_ = gray ? 1 : 3;
  }
  std::size_t count() const { return count_; }
  void CopyRow(int y, std::size_t channel, std::span<float> to) const {
    std::ranges::transform(picture_.Row(y), to.begin(),
                           [&](std::uint8_t index) { return channels_[channel][index]; });
  }

 private:
  const IndexedImage& picture_;
  std::array<std::array<float, 256>, 3> channels_{};
  std::size_t count_ = 3;
};

// A value between two pixels, and how it changes by the pixel.
struct Sample {
  float value;
  float slope;
};

Sample At(std::span<const float> row, float x) {
  const auto pixel = std::min(static_cast<std::size_t>(x), row.size() - 2);
  const float slope = row[pixel + 1] - row[pixel];
  return {row[pixel] + slope * (x - static_cast<float>(pixel)), slope};
}

// Works on bands of rows, with room of its own.
class Refiner {
 public:
  Refiner(const Colours& colours, int width, int height, RevealAnchor anchor)
      : colours_(colours),
        width_(static_cast<std::size_t>(width)),
        height_(height),
        centre_(anchor == RevealAnchor::kCentre),
        pixels_(width_) {}

  // From the separations of one round to those of the next, in the rows first..end-1.
  void Run(int first, int end, std::span<const std::uint16_t> whole, std::span<const float> from,
           std::span<float> to) {
    const int top = std::max(0, first - kUp);
    const int bottom = std::min(height_, end + kUp);
    const std::size_t count = static_cast<std::size_t>(bottom - top) * width_;
    weight_.assign(count, 0);
    pull_.assign(count, 0);
    for (int y = top; y < bottom; ++y) {
      for (std::size_t c = 0; c < colours_.count(); ++c) {
        colours_.CopyRow(y, c, pixels_);
        Weigh(RowOf(from, y), std::span(weight_).subspan(Offset(y - top), width_),
              std::span(pull_).subspan(Offset(y - top), width_));
      }
    }
    for (int y = first; y < end; ++y) {
      for (int x = 0; x < static_cast<int>(width_); ++x) {
        const std::size_t at = Offset(y) + static_cast<std::size_t>(x);
        to[at] = Refined(x, y, top, static_cast<float>(whole[at]), from);
      }
    }
  }

 private:
  std::size_t Offset(int y) const { return static_cast<std::size_t>(y) * width_; }
  std::span<const float> RowOf(std::span<const float> all, int y) const {
    return all.subspan(Offset(y), width_);
  }

  // What each pixel says about its separation: with which weight, and the separation times that.
  void Weigh(std::span<const float> separations, std::span<float> weight,
             std::span<float> pull) const {
    const std::span<const float> row = pixels_;
    for (std::size_t x = 0; x < width_; ++x) {
      const float s = separations[x];
      const float right = static_cast<float>(x) + (centre_ ? s / 2 : 0);
      const float left = right - s;
      if (!(s > 0) || left < 0 || right > static_cast<float>(width_ - 1)) continue;
      const Sample a = At(row, right);
      const Sample b = At(row, left);
      const float change = centre_ ? (a.slope + b.slope) / 2 : b.slope;
      weight[x] += change * change;
      pull[x] += change * (change * s - (a.value - b.value));
    }
  }

  // The middle of the plane that fits best around a pixel; without one, what it was.
  float Refined(int x, int y, int top, float whole, std::span<const float> from) const {
    const float here = from[Offset(y) + static_cast<std::size_t>(x)];
    if (whole == 0) return 0;
    // Sums of weights by 1, i, j, i*i, i*j, j*j, and of pulls by 1, i, j.
    std::array<double, 6> w{};
    std::array<double, 3> p{};
    const int left = std::max(0, x - kAcross);
    const int right = std::min(static_cast<int>(width_) - 1, x + kAcross);
    for (int v = std::max(0, y - kUp); v <= std::min(height_ - 1, y + kUp); ++v) {
      const float* const separations = from.data() + Offset(v);
      const float* const weights = weight_.data() + Offset(v - top);
      const float* const pulls = pull_.data() + Offset(v - top);
      float w0 = 0, w1 = 0, w2 = 0, p0 = 0, p1 = 0;
      for (int u = left; u <= right; ++u) {
        if (std::abs(separations[u] - here) > kSurface) continue;
        const auto i = static_cast<float>(u - x);
        w0 += weights[u];
        w1 += weights[u] * i;
        w2 += weights[u] * i * i;
        const float pull = pulls[u] - weights[u] * here;
        p0 += pull;
        p1 += pull * i;
      }
      const double j = v - y;
      w[0] += w0;
      w[1] += w1;
      w[2] += w0 * j;
      w[3] += w2;
      w[4] += w1 * j;
      w[5] += w0 * j * j;
      p[0] += p0;
      p[1] += p1;
      p[2] += p0 * j;
    }
    const float middle = here + static_cast<float>(Solve(w, p));
    return std::abs(middle - whole) <= kFarthest ? middle : whole;
  }

  // The first unknown of the equations of a plane, or 0 when they have no clear solution.
  static double Solve(const std::array<double, 6>& w, const std::array<double, 3>& p) {
    const double a = w[3] * w[5] - w[4] * w[4];
    const double b = w[2] * w[4] - w[1] * w[5];
    const double c = w[1] * w[4] - w[2] * w[3];
    const double determinant = w[0] * a + w[1] * b + w[2] * c;
    if (!(determinant > 1e-3 * w[0] * w[3] * w[5])) return w[0] > 0 ? p[0] / w[0] : 0;
    return (p[0] * a + p[1] * b + p[2] * c) / determinant;
  }

  const Colours& colours_;
  std::size_t width_;
  int height_;
  bool centre_;
  std::vector<float> pixels_;
  std::vector<float> weight_;
  std::vector<float> pull_;
};

// The middle one of the separations around each pixel, in the order of their size: single ones that
// are wrong go, edges stay.
PixelVector<std::uint16_t> Medians(const RevealedDepth& depth) {
  constexpr int kReach = 2;
  PixelVector<std::uint16_t> medians(depth.separation.begin(), depth.separation.end());
  std::array<std::uint16_t, (2 * kReach + 1) * (2 * kReach + 1)> around{};
  const auto width = static_cast<std::size_t>(depth.width);
  for (int y = kReach; y < depth.height - kReach; ++y) {
    for (int x = kReach; x < depth.width - kReach; ++x) {
      const std::size_t at = static_cast<std::size_t>(y) * width + static_cast<std::size_t>(x);
      if (depth.separation[at] == 0) continue;
      auto next = around.begin();
      for (int v = -kReach; v <= kReach; ++v) {
        const auto row = depth.separation.begin() + (y + v) * depth.width + x;
        next = std::copy(row - kReach, row + kReach + 1, next);
      }
      std::nth_element(around.begin(), around.begin() + around.size() / 2, around.end());
      if (around[around.size() / 2] != 0) medians[at] = around[around.size() / 2];
    }
  }
  return medians;
}

Result<PixelVector<float>> Refine(const IndexedImage& picture, const RevealedDepth& depth,
                                  RevealAnchor anchor, int threads, RunMonitor& monitor) {
  constexpr int kBand = 24;  // rows
  const PixelVector<std::uint16_t> whole = Medians(depth);
  PixelVector<float> from(whole.begin(), whole.end());
  if (depth.width < 2) return from;
  PixelVector<float> to(from.size());
  const Colours colours(picture);
  const int bands = (depth.height + kBand - 1) / kBand;
  std::vector<Refiner> refiners(static_cast<std::size_t>(std::clamp(threads, 1, bands)),
                                Refiner(colours, depth.width, depth.height, anchor));
  for (int round = 0; round < kRounds; ++round) {
    const bool finished = ParallelFor(
        bands, refiners.size(),
        [&](std::size_t worker, int band) {
          refiners[worker].Run(band * kBand, std::min(depth.height, (band + 1) * kBand), whole,
                               from, to);
        },
        [&](int done) {
          monitor.OnProgress(ProgressPhase::kStep,
                             {"Revealing Depth", round * bands + done, kRounds * bands});
          return !monitor.StopRequested();
        });
    if (!finished) return Failure(ErrorCode::kCancelled, "The search for depth was stopped.");
    from.swap(to);
  }
  return from;
}

}  // namespace

Result<PixelVector<float>> FineSeparations(const IndexedImage& picture, const RevealedDepth& depth,
                                           RevealAnchor anchor, int threads, RunMonitor& monitor) {
  if (picture.width() != depth.width || picture.height() != depth.height || picture.empty()) {
    return Failure(ErrorCode::kInvalid, "The depth is not that of the picture.");
  }
  try {
    return Refine(picture, depth, anchor, threads, monitor);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory.");
  }
}

}  // namespace plenovia
