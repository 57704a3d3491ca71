// Where the levels of a stereogram's rows come from.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "engine/scan_method.h"
#include "engine/sirds_settings.h"
#include "platform/fine_image.h"
#include "platform/indexed_image.h"
#include "platform/level_grid.h"

namespace plenovia {

// The figure library's level of a point: column, row (counted from the bottom), centre column,
// centre row, angle in degrees, figure code (the negative of the figure's position from 1).
using FigureLevelFunction = std::int32_t (*)(std::int32_t, std::int32_t, std::int32_t, std::int32_t,
                                             std::int32_t, std::int32_t);

// The level of a pixel of palette index `index` under the depth selection: the index itself, or the
// brightness of its colour 0..255, rounded, and 0 for an index beyond the palette.
std::int32_t PixelLevel(int index, const Palette& palette, std::int32_t depthSel);
// The levels of all 256 indexes.
std::array<std::uint8_t, 256> PixelLevels(const Palette& palette, std::int32_t depthSel);

// One depth row each: every entry of `depth` is written, columns that no source pixel feeds with 0.
// Scan lines count from the bottom of the output.

// Column x of the output takes the level of source pixel x - start, from `start` (0 or more) to the
// source's width; the last `start` pixels of the source do not contribute.
void BuildImageDepthRow(std::span<std::int32_t> depth, std::span<const std::uint8_t> sourceRow,
                        const std::array<std::uint8_t, 256>& levels, int start);
// The same from a map; the map's width counts, and its row 0 is the top one, which is scan line
// GridHeight() - 1.
void BuildMapDepthRow(std::span<std::int32_t> depth, const LevelGrid& map, int scanLine, int start);
// `width` x `height` is the output's size.
void BuildFigureDepthRow(std::span<std::int32_t> depth, FigureLevelFunction level,
                         std::int32_t code, int scanLine, int width, int height,
                         const TSirdsSettings& settings);

// A source as a run sees it. Const calls may run on several threads at once.
class DepthSource {
 public:
  virtual ~DepthSource() = default;
  virtual SourceKind kind() const = 0;
  // The parts of a level in which BuildRow() counts; the depth range counts in whole levels.
  virtual int LevelParts() const { return 1; }
  virtual void BuildRow(int scanLine, std::span<std::int32_t> depth) const = 0;
  // The same levels as bytes, for a source that always has levels of 0..255; otherwise false, and
  // nothing is written.
  virtual bool BuildByteRow(int scanLine, std::span<std::uint8_t> depth) const;
};

// A picture, magnified by `zoom` (the nearest pixel counts), placed from column `start` on.
class PictureDepth : public DepthSource {
 public:
  PictureDepth(const IndexedImage& picture, double zoom, int start, std::int32_t depthSel);
  SourceKind kind() const override { return SourceKind::kImage; }
  void BuildRow(int scanLine, std::span<std::int32_t> depth) const override;
  bool BuildByteRow(int scanLine, std::span<std::uint8_t> depth) const override;

 private:
  int Nearest(int at, int size) const;

  const IndexedImage& picture_;
  double zoom_;
  int start_;
  bool byIndex_;
  std::array<std::uint8_t, 256> levels_;
  std::vector<std::size_t> columns_;  // at a zoom, the source's column for each magnified one
};

// A picture of 65536 steps from level 0 to level 255, placed from column `start` on.
class FineDepth : public DepthSource {
 public:
  static constexpr int kLevelParts = 257;  // 255 * 257 is the highest step

  FineDepth(const FineImage& image, int start) : image_(image), start_(start) {}
  SourceKind kind() const override { return SourceKind::kImage; }
  int LevelParts() const override { return kLevelParts; }
  void BuildRow(int scanLine, std::span<std::int32_t> depth) const override;

 private:
  const FineImage& image_;
  int start_;
};

class MapDepth : public DepthSource {
 public:
  MapDepth(const LevelGrid& map, int start) : map_(map), start_(start) {}
  SourceKind kind() const override { return SourceKind::kShape; }
  void BuildRow(int scanLine, std::span<std::int32_t> depth) const override;

 private:
  const LevelGrid& map_;
  int start_;
};

class FigureDepth : public DepthSource {
 public:
  FigureDepth(FigureLevelFunction level, std::int32_t code, int width, int height,
              const TSirdsSettings& settings)
      : level_(level), code_(code), width_(width), height_(height), settings_(settings) {}
  SourceKind kind() const override { return SourceKind::kShape; }
  void BuildRow(int scanLine, std::span<std::int32_t> depth) const override;

 private:
  FigureLevelFunction level_;
  std::int32_t code_;
  int width_;
  int height_;
  TSirdsSettings settings_;
};

}  // namespace plenovia
