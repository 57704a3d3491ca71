// A window that shows a depth map.
#pragma once

#include <QPainter>
#include <QRect>
#include <QSize>
#include <memory>
#include <vector>

#include "depthmap/depth_list.h"
#include "depthmap/map_look.h"
#include "depthmap/map_picture.h"
#include "depthmap/rubber_band.h"
#include "depthmap/ui/level_label_font.h"
#include "documents/ui/mouse_wnd.h"

namespace plenovia {

// Shows the map, at first one pixel of it a pixel of the display. Scrolls where the map is larger.
// What changes the map is the derived window's.
class TMapView : public TMouseWnd, private DepthObjOwner {
  Q_OBJECT

 public:
  using TMouseWnd::TMouseWnd;
  ~TMapView() override;

  const TDepthList& Objects() const { return *list_; }
  // The levels as they are at each moment. Who holds them keeps them when the window closes or
  // reads another map.
  std::shared_ptr<const LevelGrid> Levels() const { return list_; }
  const MapLook& Look() const { return look_; }
  // Gives the window's inside the size of the map, one to one, as far as there is room.
  void ResizeToMap();

 protected:
  void Paint(QPainter& painter, const QRect& exposed) override;
  QPoint TrackingPoint(const QPoint& client) const override;
  void ZoomAbout(const QPoint& client, int steps) override { Zoom(steps, client); }

  // The derived window's constructor gives it its first map.
  void ShowList(std::shared_ptr<TDepthList> list);
  // The point `stays` of the client area shows the same place of the map afterwards.
  void SetLook(const MapLook& look, const QPoint& stays);
  void Zoom(int steps, const QPoint& stays);
  void ZoomToFit();
  // After the map got another size.
  void UpdateExtent();
  // What of the map, as it is shown, is in view.
  QRect View() const { return {ScrollPosition(), ClientSize()}; }
  void RepaintChanged();
  void InvalidateRubber();

  std::shared_ptr<TDepthList> list_;
  RubberBand rubber_;
  MapLook look_;                    // changed by SetLook()
  std::vector<PixelRect> changed_;  // still to be repainted
  QSize extent_;                    // of the map as it is shown

 private:
  void Repaint(const PixelRect& area) override;
  MapPicture& Painting();
  QRect InClient(const PixelRect& area) const;

  std::unique_ptr<LevelLabelFont> labels_;
  std::unique_ptr<MapPicture> picture_;
};

}  // namespace plenovia
