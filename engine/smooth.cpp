// The smooth method: separations are real numbers, pairs lie evenly about their point, and what one
// eye cannot see makes no pair (Thimbleby, Inglis and Witten, "Displaying 3D images: algorithms for
// single-image random-dot stereograms", 1994). Each pixel is given a place in the background, a
// real number. Pairs hand places on from the middle outwards, and only the finished places are
// looked up in the background, so that nothing is blurred twice.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <numeric>
#include <span>

#include "engine/colour_blends.h"
#include "engine/distance_stretches.h"
#include "engine/prepared_shift.h"
#include "engine/scan_method.h"

namespace plenovia {

namespace {

// Positions and separations count in parts of a pixel.
constexpr int kBits = 12;
constexpr std::int32_t kPixel = 1 << kBits;
constexpr std::int32_t kNoPair = 0;         // the separation of a level that the eyes cannot use
                                            // (of all others it is at least a pixel)
constexpr std::int32_t kNothing = 1 << 29;  // seen where there is no surface; leads out of any row
// Neighbouring columns that differ less are one surface, others are an edge. A surface so steep
// shows one eye three times as many pixels as the other.
constexpr std::int32_t kEdge = kPixel;

// The separation of a level, as a real number and in parts of a pixel.
class Separations {
 public:
  explicit Separations(const ScanSetup& setup)
      : gap_(setup.gap),
        zmin_(static_cast<double>(setup.zmin)),
        range_(static_cast<double>(setup.Divisor())) {}

  double Exact(double level) const { return gap_ - (level - zmin_) / range_ * gap_ / 2; }
  double Level(double separation) const {
    return gap_ > 0 ? zmin_ + (gap_ - separation) * 2 / gap_ * range_ : zmin_;
  }
  std::int32_t Fixed(double level) const {
    constexpr double kFarthest = 1 << 15;
    const double separation = std::clamp(Exact(level), 0.0, kFarthest);
    return separation < 1 ? kNoPair : static_cast<std::int32_t>(separation * kPixel + 0.5);
  }

 private:
  double gap_;
  double zmin_;
  double range_;
};

enum Eye : int { kLeftEye = -1, kRightEye = 1 };

bool IsEdge(std::int32_t separation, std::int32_t next) {
  return std::abs(next - separation) >= kEdge;
}

// What an eye sees: for each of the pixels begin..end-1 the separation of the nearest surface
// there.
template <Eye kEye>
class View {
 public:
  View(std::span<std::int32_t> seen, int begin, int end)
      : seen_(seen.data()), begin_(begin), end_(end) {
    std::fill(seen.begin() + begin, seen.begin() + end, kNothing);
  }

  // The surfaces of columns first..last, by the separation of each column.
  void Draw(std::span<const std::int32_t> separations, int first, int last) {
    const std::int32_t* const of = separations.data();
    std::int32_t from = Position(first, of[first]);
    for (int x = first;; ++x) {
      const std::int32_t separation = of[x];
      while (x < last && of[x + 1] == separation) ++x;
      const std::int32_t to = Position(x, separation);
      if (x == last) return DrawFlat(from, to, separation);
      const std::int32_t next = of[x + 1];
      const std::int32_t nextFrom = Position(x + 1, next);
      if (IsEdge(separation, next)) {
        // A surface ends in the middle between two columns.
        DrawFlat(from, to + kPixel / 2 - 1, separation);
        from = nextFrom - kPixel / 2;
      } else {
        DrawFlat(from, to, separation);
        DrawSlope(to, separation, nextFrom, next);
        from = nextFrom;
      }
    }
  }

 private:
  static std::int32_t Position(int column, std::int32_t separation) {
    return (column << kBits) + kEye * (separation / 2);
  }
  static int PixelFrom(std::int32_t position) { return (position + kPixel - 1) >> kBits; }
  void DrawFlat(std::int32_t from, std::int32_t to, std::int32_t separation) {
    if (separation == kNoPair) return;
    const int end = std::min(end_, (to >> kBits) + 1);
    for (int x = std::max(begin_, PixelFrom(from)); x < end; ++x) {
      seen_[x] = std::min(seen_[x], separation);
    }
  }
  // The pixels between two columns of one surface.
  void DrawSlope(std::int32_t from, std::int32_t separation, std::int32_t to, std::int32_t next) {
    if (separation == kNoPair) return;
    for (int x = (from >> kBits) + 1; x << kBits < to; ++x) {
      if (x < begin_ || x >= end_) continue;
      const std::int32_t here =
          separation + (next - separation) * ((x << kBits) - from) / (to - from);
      seen_[x] = std::min(seen_[x], here);
    }
  }

  std::int32_t* seen_;
  int begin_;
  int end_;
};

// The place at a position between two pixels.
std::int32_t PlaceAt(const std::int32_t* places, std::int32_t position) {
  const std::int32_t* const at = places + (position >> kBits);
  const std::int32_t part = position & (kPixel - 1);
  const std::int32_t step = at[1] - at[0];
  // Where the two are not of one piece, one of them.
  const bool whole = static_cast<std::uint32_t>(std::abs(step) - kPixel / 4) < 4 * kPixel;
  if (!whole) return part < kPixel / 2 ? at[0] : at[1];
  return at[0] + ((step * part + kPixel / 2) >> kBits);
}

// Gives pixel x the place of its partner, unless that lies outside the row or in front of it lies
// something nearer. `seen` is what the eye of x sees, `seenByOther` what the other eye does; with
// kCalm nothing hides anything.
template <Eye kEye, bool kCalm>
void HandOn(int x, int width, std::int32_t* places, const std::int32_t* seen,
            const std::int32_t* seenByOther) {
  const std::int32_t separation = seen[x];
  const std::int32_t partner = (x << kBits) - kEye * separation;
  if (static_cast<std::uint32_t>(partner) > static_cast<std::uint32_t>(width - 1) << kBits) return;
  if (!kCalm && seenByOther[(partner + kPixel / 2) >> kBits] < separation - 2 * kPixel) return;
  places[x] = PlaceAt(places, partner);
}

class SmoothShift final : public PreparedShift {
 public:
  explicit SmoothShift(const ScanSetup& setup) : setup_(setup), separations_(setup) {
    for (std::size_t level = 0; level < byByte_.size(); ++level) {
      byByte_[level] = separations_.Fixed(static_cast<double>(level));
    }
  }

  void ShiftBytes(ShiftBuffers& row) const override {
    std::ranges::transform(row.byteLevels(), row.separations().begin(),
                           [&](std::uint8_t level) { return byByte_[level]; });
    Work(row);
  }

  void Shift(ShiftBuffers& row) const override {
    std::ranges::transform(
        row.levels(), row.separations().begin(),
        [separations = separations_](std::int32_t level) { return separations.Fixed(level); });
    Work(row);
  }

 private:
  void Work(ShiftBuffers& row) const {
    if (setup_.width < 2) return;
    const auto separations = row.separations();
    std::int32_t steepest = 0;
    for (std::size_t x = 1; x < separations.size(); ++x) {
      steepest = std::max(steepest, std::abs(separations[x] - separations[x - 1]));
    }
    // Without edges nothing hides anything.
    steepest < kEdge ? HandOnAll<true>(row) : HandOnAll<false>(row);
    LookUp(row);
  }

  template <bool kCalm>
  void HandOnAll(ShiftBuffers& row) const {
    const int width = setup_.width;
    std::int32_t* const places = row.places().data();
    const auto separations = row.separations();
    const int middle = width / 2;
    const std::int32_t half = separations[static_cast<std::size_t>(middle)] / 2;
    const int first = std::max(0, ((middle << kBits) - half + kPixel - 1) >> kBits);
    const int last = std::min(width, ((middle << kBits) + half + kPixel - 1) >> kBits);
    // The pixels first..last-1 around the middle keep their places. What has no partner gets the
    // mirrored background, which repeats nothing that is near.
    for (int x = 0; x < width; ++x) places[x] = (width - 1 - x) << kBits;
    for (int x = first; x < last; ++x) places[x] = x << kBits;
    places[width] = places[width - 1];

    View<kLeftEye>(row.seenLeft(), 0, kCalm ? first : width)
        .Draw(separations, 0, kCalm ? middle : width - 1);
    View<kRightEye>(row.seenRight(), kCalm ? last : 0, width)
        .Draw(separations, kCalm ? middle : 0, width - 1);
    const std::int32_t* const left = row.seenLeft().data();
    const std::int32_t* const right = row.seenRight().data();
    for (int x = last; x < width; ++x) HandOn<kRightEye, kCalm>(x, width, places, right, left);
    for (int x = first; x-- > 0;) HandOn<kLeftEye, kCalm>(x, width, places, left, right);
  }

  // Replaces the background by the pixels of the places.
  void LookUp(ShiftBuffers& row) const {
    if (setup_.blends == nullptr) {
      LookUp(row, [](const std::uint8_t* at, unsigned step) {
        return at[step < ColourBlends::kSteps / 2 ? 0 : 1];
      });
    } else {
      const std::uint8_t* const entries = setup_.blends->entries();
      LookUp(row, [entries](const std::uint8_t* at, unsigned step) {
        return entries[ColourBlends::Index(at[0], at[1], step)];
      });
    }
  }

  template <class PixelBetween>
  void LookUp(ShiftBuffers& row, const PixelBetween& pixelBetween) const {
    constexpr int kSteps = ColourBlends::kSteps;
    const int width = setup_.width;
    std::uint8_t* const background = row.pixels().data();
    background[width] = background[width - 1];
    const std::int32_t* const places = row.places().data();
    std::uint8_t* const result = row.byteLevels().data();  // no longer needed
    for (int x = 0; x < width; ++x) {
      const auto step = static_cast<unsigned>(places[x] + kPixel / kSteps / 2) / (kPixel / kSteps);
      result[x] = pixelBetween(background + step / kSteps, step % kSteps);
    }
    std::copy_n(result, width, background);
  }

  ScanSetup setup_;
  Separations separations_;
  DistanceTable byByte_{};
};

}  // namespace

const ScanMethod kSmoothMethod = {
    .name = "smooth",
    .title = "Smooth",
    .choice = "Smooth",
    .widensByGap = false,
    .tilesFromMiddle = true,
    .anchor = RevealAnchor::kCentre,
    .blends = true,
    .separation =
        [](std::int64_t level, const ScanSetup& setup) {
          return static_cast<std::int64_t>(
              std::llround(Separations(setup).Exact(static_cast<double>(level))));
        },
    .level = [](double separation,
                const ScanSetup& setup) { return Separations(setup).Level(separation); },
    .shows = [](LevelRange levels,
                const ScanSetup& setup) { return kMcMahonMethod.shows(levels, setup); },
    .fit = [](LevelRange levels,
              const ScanSetup& setup) { return kMcMahonMethod.fit(levels, setup); },
    .prepare = [](const ScanSetup& setup) -> std::unique_ptr<const PreparedShift> {
      return std::make_unique<SmoothShift>(setup);
    },
};

}  // namespace plenovia
