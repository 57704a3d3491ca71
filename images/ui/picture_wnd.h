// The picture side of a picture window: how it is held, shown, zoomed and scrolled.
#pragma once

#include <QEvent>
#include <QRect>
#include <QSize>
#include <QString>
#include <memory>

#include "codec/graph_io.h"
#include "depthmap/ui/mouse_wnd.h"
#include "platform/indexed_image.h"

namespace plenovia {

// Pictures are shared: who still reads one keeps it when the window drops it or changes its
// colours.
//
// The tracking points, and with them the selection, are pixels of the picture.
class TPictureWnd : public TMouseWnd {
  Q_OBJECT

 public:
  // `size` is that of the picture, whether it is there yet or not; the window is a little larger.
  // `picture` may be null.
  TPictureWnd(QMdiArea* client, const QString& title, QWidget* frame,
              std::shared_ptr<const IndexedImage> picture, const QSize& size);

  // The caption: the lower-cased file name of a path.
  const QString& GetTitle() const { return title_; }
  void SetTitle(const QString& path);
  bool IsSaved() const { return saved_; }
  void SetSaved(bool saved);

  const std::shared_ptr<const IndexedImage>& Picture() const { return picture_; }
  // Shows a picture and fits the window to it. Null drops the one that was shown.
  void SetImage(std::shared_ptr<const IndexedImage> picture);
  // Gives the window's inside the size of the picture at zoom 1.
  void FitToImage();

  double Zoom() const { return zoom_; }
  bool CanZoomIn() const { return zoom_ < 4.0; }
  bool CanZoomOut() const { return zoom_ > 0.25; }
  void ZoomIn();
  void ZoomOut();

  // Replaces the colours by grays. The pixels stay.
  void MakeGray();

  // What the picture would take without compression: width 0 without a picture.
  BitmapInfo Description() const;
  std::int64_t ImageBytes() const;
  // The selection in pixels of the picture, which it may reach out of; the whole picture without a
  // selection. Empty when there is no picture.
  QRect Selection() const;

 protected:
  void Paint(QPainter& painter, const QRect& exposed) override;
  void ClientResized() override;
  void EvMDIActivate(bool active) override;
  QPoint TrackingPoint(const QPoint& client) const override;
  void OnLButtonDown(MouseKeys keys, QPoint point) override;
  void LeftDrag(int x, int y) override;
  void customEvent(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QSize ZoomedSize() const;
  // Where the picture's top left corner is in the client area.
  QPoint Corner() const;
  QRect SelectionFrame() const;
  void PaintSelection(QPainter& painter) const;
  void UpdateScrolling();
  void SetZoom(double zoom);

  QString title_;
  std::shared_ptr<const IndexedImage> picture_;
  QSize size_;
  bool saved_ = false;
  double zoom_ = 1.0;
};

}  // namespace plenovia
