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
// the map has. Rows and columns are those of the map as it is shown.
class MapPicture {
 public:
  // Both are borrowed.
  MapPicture(const TDepthList& list, LevelLabels& labels) : list_(list), labels_(labels) {}

  // What is in view of the map as it is shown; the shades go by the levels of the map; at most the
  // greatest int on each side. Rows that stay in view are kept.
  void SetView(const PixelRect& view, const MapLook& look = {});

  // Writes the pixels of `area`, which lies in the view, row after row, as RowCanvas gives them.
  void Render(const PixelRect& area, const RubberBand& rubber, std::span<Pixel> pixels);

  // Where the area of an object is shown, grown by what labels, as they were drawn up to now or are
  // to be drawn, reach out of such areas. With what else a change of the list shows: other shades,
  // other labels taken away.
  PixelRect WithLabels(const PixelRect& area);

 private:
  struct Shown {
    const TDepthObj* object = nullptr;
    const LevelLabel* label = nullptr;
    PixelPoint labelPlace;
    PixelRect box;
    bool hasLabel = true;
  };
  struct Layers {
    bool made = false;
    RowCanvas labels;  // of shaded views, where they lie above all objects
    RowCanvas above;
    RowCanvas below;
  };
  // How far labels reach, in shown pixels, from the top left corner of an object's rectangle.
  struct LabelReach {
    std::int64_t left = 0;
    std::int64_t up = 0;
    std::int64_t right = 0;
    std::int64_t down = 0;
  };

  Shown Show(const TDepthObj& object);
  void FollowList();
  void IncludeLabel(const Shown& shown);
  // Takes labels away where others lie above them.
  static void ThinLabels(std::vector<Shown>& objects);
  // The box around the labels that come or go.
  PixelRect ChangedLabels();
  const Layers& LayersAt(std::int64_t y);
  void PaintShown(RowCanvas& canvas, const Shown& shown, std::int64_t y) const;
  void PaintGrid(const PixelRect& area, std::int64_t y, std::span<Pixel> pixels) const;

  const TDepthList& list_;
  LevelLabels& labels_;
  MapLook look_;
  PixelRect view_;
  std::vector<Layers> rows_;  // of the view
  LabelReach reach_;
  std::vector<PixelRect> labelBoxes_;  // of shaded views, in some order
  PixelRect stale_;                    // shown otherwise since the last WithLabels()

  // Of the list's edition `edition_`, if there is any yet.
  bool follows_ = false;
  std::uint64_t edition_ = 0;
  std::vector<Shown> others_;         // all but the selected one, topmost first
  std::size_t above_ = 0;             // how many of them lie above the selected one
  IntervalTree index_;                // of positions in others_
  std::vector<std::uint64_t> onRow_;  // a bit for each position
};

}  // namespace plenovia
