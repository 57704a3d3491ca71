// The picture of a depth map in its editor.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "depthmap/depth_list.h"
#include "depthmap/level_labels.h"
#include "depthmap/row_canvas.h"
#include "depthmap/rubber_band.h"
#include "platform/interval_tree.h"
#include "platform/shape_rows.h"

namespace plenovia {

// Each object with its level, over those below it; the selected one with marks; the rubber band
// above all. Always shows the list as it is.
//
// What lies above and what lies below the selected object is kept row by row once it was needed,
// so that moving this object or the rubber band costs what the area costs, however many objects
// the map has.
class MapPicture {
 public:
  // Both are borrowed.
  MapPicture(const TDepthList& list, LevelLabels& labels) : list_(list), labels_(labels) {}

  // The picture shows the columns 0..width-1 of the rows 0..height-1.
  void SetSize(int width, int height);
  // Gives up what is kept of rows other than first..end-1, which are in view.
  void KeepRows(int first, int end);

  // Writes the pixels of `area`, which lies in the picture, row after row, as RowCanvas gives them.
  void Render(const PixelRect& area, const RubberBand& rubber, std::span<std::uint32_t> pixels);

  // The area of an object grown by what labels, as they were drawn up to now or are to be drawn,
  // reach out of such areas.
  PixelRect WithLabels(const PixelRect& area);

 private:
  struct Shown {
    const TDepthObj* object = nullptr;
    const LevelLabel* label = nullptr;
    PixelRect box;
  };
  struct Layers {
    bool made = false;
    RowCanvas above;
    RowCanvas below;
  };
  // How far labels reach from the top left corner of an object's rectangle.
  struct LabelReach {
    std::int64_t left = 0;
    std::int64_t up = 0;
    std::int64_t right = 0;
    std::int64_t down = 0;
  };

  void FollowList();
  void IncludeLabel(const TDepthObj& object, const LevelLabel& label);
  const Layers& LayersAt(int y);
  static void PaintRow(RowCanvas& canvas, const Shown& shown, std::int64_t y);

  const TDepthList& list_;
  LevelLabels& labels_;
  int width_ = 0;
  std::vector<Layers> rows_;
  int keptFirst_ = 0;
  int keptEnd_ = 0;
  LabelReach reach_;

  // Of the list's edition `edition_`, if there is any yet.
  bool follows_ = false;
  std::uint64_t edition_ = 0;
  std::vector<Shown> others_;         // all but the selected one, topmost first
  std::size_t above_ = 0;             // how many of them lie above the selected one
  IntervalTree index_;                // of positions in others_
  std::vector<std::uint64_t> onRow_;  // a bit for each position
};

}  // namespace plenovia
