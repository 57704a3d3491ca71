#include "engine/reveal.h"

#include <algorithm>
#include <new>

#include "engine/reveal_strip.h"
#include "engine/separation_range.h"
#include "platform/limits.h"
#include "platform/parallel_for.h"

namespace plenovia {

namespace {

constexpr int kMostSeparations = 1024;

// The height of the strips of a picture: as large as some megabytes of path costs allow. It is the
// same for all processors, as results depend on it.
int StripRows(const MatchCost& cost) {
  constexpr std::size_t kBytes = std::size_t{20} << 20;
  const std::size_t lanes = (static_cast<std::size_t>(cost.range().count()) / 16 + 1) * 16;
  const std::size_t row = static_cast<std::size_t>(cost.width()) * lanes;
  return std::min(static_cast<int>(std::clamp<std::size_t>(kBytes / row, 4, 64)), cost.height());
}

// Searches all strips. Returns false when the monitor stopped it.
bool SearchStrips(const MatchCost& cost, int threads, RunMonitor& monitor, RevealedDepth& result) {
  const int rows = StripRows(cost);
  const int strips = (cost.height() + rows - 1) / rows;
  const int workers = std::clamp(threads, 1, strips);
  std::vector<StripSearch> searches;
  searches.reserve(static_cast<std::size_t>(workers));
  for (int i = 0; i < workers; ++i) searches.emplace_back(cost, rows);

  int reported = 0;
  return ParallelFor(
      strips, searches.size(),
      [&](std::size_t worker, int strip) {
        const int first = strip * rows;
        searches[worker].Run(first, std::min(cost.height(), first + rows), result.separation,
                             result.certainty);
      },
      [&](int done) {
        if (monitor.StopRequested()) return false;
        if ((done - reported) * 10 < strips) return true;
        reported = done;
        monitor.OnProgress(ProgressPhase::kStep, {"Revealing Depth", done, strips});
        return true;
      });
}

Result<RevealedDepth> Search(const IndexedImage& picture, const RevealOptions& options,
                             RunMonitor& monitor) {
  if (picture.empty()) return Failure(ErrorCode::kInvalid, "The picture is empty.");
  SeparationRange range{options.smallest, options.largest};
  if (range.smallest == 0 || range.largest == 0) range = FindSeparationRange(picture);
  if (range.smallest < 1 || range.largest < range.smallest || range.largest > kMaxSide ||
      range.count() > kMostSeparations) {
    return Failure(ErrorCode::kInvalid, "The range of separations makes no sense.");
  }
  RevealedDepth result{.width = picture.width(),
                       .height = picture.height(),
                       .smallest = range.smallest,
                       .largest = range.largest,
                       .separation = PixelVector<std::uint16_t>(picture.pixels().size()),
                       .certainty = PixelVector<std::uint8_t>(picture.pixels().size())};
  const MatchCost cost(picture, range, options.anchor);
  if (!SearchStrips(cost, options.threads, monitor, result)) {
    return Failure(ErrorCode::kCancelled, "The search for depth was stopped.");
  }
  return result;
}

Result<RevealedDepth> SearchInMemory(const IndexedImage& picture, const RevealOptions& options,
                                     RunMonitor& monitor) {
  try {
    return Search(picture, options, monitor);
  } catch (const std::bad_alloc&) {
    return Failure(ErrorCode::kTooLarge, "There is not enough memory.");
  }
}

}  // namespace

Result<RevealedDepth> Reveal(const IndexedImage& picture, const RevealOptions& options,
                             RunMonitor& monitor) {
  monitor.OnProgress(ProgressPhase::kStart, {});
  monitor.OnProgress(ProgressPhase::kFirstStep, {"Revealing Depth", 0, 100});
  Result<RevealedDepth> result = SearchInMemory(picture, options, monitor);
  monitor.OnProgress(ProgressPhase::kEnd, {});
  return result;
}

}  // namespace plenovia
