// The window that shows the colours of a picture.
#pragma once

#include <QImage>
#include <QString>

#include "documents/ui/mouse_wnd.h"
#include "platform/palette.h"

namespace plenovia {

// It keeps a copy of the colours, and does not follow when the picture changes its own. On a
// display with a scale factor the grid grows with the controls around it.
//
// Sends WM_COLORTABLECLOSED to the frame when it closes.
class TColorWnd : public TMouseWnd {
  Q_OBJECT

 public:
  TColorWnd(QMdiArea* client, const QString& title, QWidget* frame);

  // Shows these colours and moves the window to the top left corner, in the size that fits them.
  void SetSource(const Palette& palette);
  const Palette& Source() const { return palette_; }

  bool HandlesCommand(int command) const override;
  // "Copy" puts MakeBitmap() on the clipboard.
  void RunCommand(int command) override;
  DocumentStatus Status() const override { return {std::nullopt, QString()}; }

  // The whole grid as a picture, in the same size on every display.
  QImage MakeBitmap() const;

 protected:
  void Paint(QPainter& painter, const QRect& exposed) override;
  void ClientResized() override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void UpdateScrolling();
  void DrawGrid(QPainter& painter, qreal scale) const;

  Palette palette_;
};

}  // namespace plenovia
