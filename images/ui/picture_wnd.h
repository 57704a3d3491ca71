// The picture side of a picture window: how it is held, shown, zoomed and scrolled.
#pragma once

#include <QEvent>
#include <QRect>
#include <QSize>
#include <QString>
#include <memory>
#include <string>

#include "codec/graph_io.h"
#include "documents/ui/mouse_wnd.h"
#include "platform/indexed_image.h"
#include "platform/ui/shown_picture.h"

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

  // The caption becomes the lower-cased file name of the path.
  void SetTitle(const QString& path);
  bool IsSaved() const override { return saved_; }
  void SetSaved(bool saved);

  std::shared_ptr<const IndexedImage> Picture() const override { return picture_; }
  // Shows a picture and fits the window to it. Null drops the one that was shown.
  void SetImage(std::shared_ptr<const IndexedImage> picture);
  // Gives the window's inside the size of the picture at zoom 1.
  void FitToImage();

  double Zoom() const { return zoom_; }
  void ZoomToActualSize() { SetZoom(1.0); }
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

  bool HandlesCommand(int command) const override;
  bool CommandEnabled(int command) const override;
  void RunCommand(int command) override;
  bool NeedsSaving() const override { return !IsSaved() && picture_; }
  // In the format that the path names, BMP when it names none.
  bool CanSave() const override { return picture_ != nullptr; }
  Result<void> Save(const QString& path) override;
  QString SavingText(const QString& path) const override;
  DocumentStatus Status() const override;
  DocumentDepth Depth() const override { return {picture_, zoom_, nullptr}; }

 protected:
  // What Save() writes into the file beside the picture (codec/picture_comment.h).
  virtual std::string Comment() const { return {}; }
  void Paint(QPainter& painter, const QRect& exposed) override;
  void ClientResized() override;
  void EvMDIActivate(bool active) override;
  QPoint TrackingPoint(const QPoint& client) const override;
  void ZoomAbout(const QPoint& client, int steps) override;
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
  void CopySelection() const;

  std::shared_ptr<const IndexedImage> picture_;
  ShownPicture shown_;
  QSize size_;
  bool saved_ = false;
  double zoom_ = 1.0;
};

}  // namespace plenovia
