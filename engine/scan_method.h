// The scan methods: how a row of background becomes a row of a stereogram. Each is one descriptor,
// and all that depends on the method reads it from there.
#pragma once

#include <cstdint>
#include <memory>
#include <span>

#include "engine/prepared_shift.h"
#include "engine/reveal_anchor.h"
#include "engine/sirds_settings.h"

namespace plenovia {

class ColourBlends;

// Where the levels of a row come from: a picture, or shapes (a depth map or a figure).
enum class SourceKind { kImage, kShape };

// Levels, or a depth range: both ends included.
struct LevelRange {
  std::int64_t lowest = 0;
  std::int64_t highest = 0;
};

// What the rule of a scan method depends on beside the level.
struct ScanSetup {
  ScanSetup(int rowWidth, std::int32_t gapPixels, SourceKind sourceKind,
            const TSirdsSettings& settings, const ColourBlends* colourBlends = nullptr)
      : width(rowWidth),
        gap(gapPixels),
        kind(sourceKind),
        zmin(settings.zmin),
        range(std::int64_t{settings.zmax} - settings.zmin),
        blends(colourBlends) {}
  // To divide by: a range of 0 counts as 1.
  std::int64_t Divisor() const { return range == 0 ? 1 : range; }

  int width;         // pixels of a row
  std::int32_t gap;  // pixels at which the background repeats
  SourceKind kind;
  std::int64_t zmin;
  std::int64_t range;  // zmax - zmin
  // Of the rows' background, for a method that blends; none: it takes the nearer of two pixels.
  const ColourBlends* blends;
};

struct ScanMethod {
  const char* name;    // on the command line
  const char* title;   // in lists
  const char* choice;  // in the wizard

  bool widensByGap;  // it works on rows that are wider than the result by the gap
  bool
      tilesFromMiddle;  // one tile is centred on the middle of the row; else one begins at its left
  RevealAnchor anchor;  // of the pairs that it makes
  bool blends = false;  // it moves by parts of a pixel: rows get blends of neighbouring pixels

  // The distance in pixels of the pair that it makes for a column of this level. May be 0 or
  // negative, where the method makes no pair that the eye could use.
  std::int64_t (*separation)(std::int64_t level, const ScanSetup& setup);
  // The level, a real number, that makes a pair of this distance: of the levels that a method of
  // whole pixels brings to one distance the middle.
  double (*level)(double separation, const ScanSetup& setup);
  // Whether it shows all of these levels: no pair closer than the eye can use, none farther apart
  // than the background's.
  bool (*shows)(LevelRange levels, const ScanSetup& setup);
  // The depth range, zmin and zmax, that brings the highest of these levels about a third nearer
  // than the background and the lowest one as near to it as the method can.
  LevelRange (*fit)(LevelRange levels, const ScanSetup& setup);
  // The method made ready for the rows of one run.
  std::unique_ptr<const PreparedShift> (*prepare)(const ScanSetup& setup);

  // The width of the rows of a result of `width` columns.
  int RunWidth(int width, std::int32_t gap) const { return width + (widensByGap ? gap : 0); }
  // The first column of a row that a picture or a map feeds.
  std::int32_t StartColumn(std::int32_t gap) const { return widensByGap ? gap / 2 : 0; }
  // The column at which a tile begins from which all others follow at whole tile widths.
  int TileOrigin(int width, int tileWidth) const {
    return tilesFromMiddle ? width / 2 - tileWidth / 2 : 0;
  }
};

// All of them. The number of a method, which settings files keep, is its place here, from 1: a new
// one goes to the end.
std::span<const ScanMethod* const> ScanMethods();

// The method of a number; for one that has no method, a method that leaves rows as they are.
const ScanMethod& ScanMethodOf(std::int32_t number);
bool IsScanMethod(std::int32_t number);

// Each is defined in a file of its own and listed in the table.
extern const ScanMethod kLeftToRightMethod;
extern const ScanMethod kMcMahonMethod;
extern const ScanMethod kFeuchtMethod;
extern const ScanMethod kSmoothMethod;

}  // namespace plenovia
