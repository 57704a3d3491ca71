#include "images/ui/color_wnd.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPaintDevice>
#include <QRect>
#include <QStyle>

#include "documents/ui/commands.h"
#include "images/color_table.h"
#include "images/ui/clipboard.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kWindowWidth = 392;
constexpr int kTextHeight = 14;
constexpr int kMostTextWidth = 20;
constexpr int kTextTop = 4;

QColor ToColour(Rgb colour) {
  return {colour.red, colour.green, colour.blue};
}

int Scaled(int length, qreal scale) {
  return qRound(length * scale);
}

// The largest font whose lines and whose widest number keep within a cell.
QFont NumberFont(const QFont& base, qreal scale) {
  QFont font = base;
  font.setWeight(QFont::Normal);
  font.setItalic(false);
  for (int size = Scaled(kTextHeight, scale); size > 1; --size) {
    font.setPixelSize(size);
    const QFontMetrics metrics(font);
    if (metrics.height() <= Scaled(kTextHeight, scale) &&
        metrics.horizontalAdvance(QStringLiteral("200")) <= Scaled(kMostTextWidth, scale)) {
      break;
    }
  }
  return font;
}

}  // namespace

TColorWnd::TColorWnd(QMdiArea* client, const QString& title, QWidget* frame)
    : TMouseWnd(client, title, frame) {
  SetWindowKind(kColourTableWindow);
  setWindowIcon(NamedIcon(QStringLiteral("i1")));
  SetSource(palette_);
}

void TColorWnd::SetSource(const Palette& palette) {
  palette_ = palette;
  if (isMinimized()) showNormal();
  if (!isMaximized()) {
    const int height = ColourTableWindowHeight(palette_);
    const bool scrolls = parentWidget()->isVisible() && height > parentWidget()->height();
    const int bar = scrolls ? style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this) : 0;
    move(0, 0);
    SetOuterSize({kWindowWidth + bar, height});
  }
  UpdateScrolling();
  InvalidateAll();
}

bool TColorWnd::HandlesCommand(int command) const {
  return command == kCmCopy;
}

void TColorWnd::RunCommand(int command) {
  if (command == kCmCopy) CopyToClipboard(MakeBitmap());
}

void TColorWnd::UpdateScrolling() {
  const qreal scale = devicePixelRatioF();
  SetScrollExtent({Scaled(kColourTableWidth, scale), Scaled(ColourTableHeight(palette_), scale)});
}

void TColorWnd::DrawGrid(QPainter& painter, qreal scale) const {
  painter.setFont(NumberFont(font(), scale));
  const int side = Scaled(kColourCellSide, scale);
  const int line = Scaled(1, scale);
  for (const ColourCell& cell : ColourCells(palette_)) {
    const QRect area(Scaled(cell.left, scale), Scaled(cell.top, scale), side, side);
    painter.fillRect(area, Qt::black);
    painter.fillRect(area.adjusted(line, line, -line, -line), ToColour(cell.fill));
    painter.setPen(ToColour(cell.text));
    painter.drawText(area.adjusted(0, Scaled(kTextTop, scale), 0, 0),
                     Qt::AlignHCenter | Qt::AlignTop, QString::number(cell.number));
  }
}

void TColorWnd::Paint(QPainter& painter, const QRect& exposed) {
  painter.fillRect(exposed, Ground());
  painter.translate(-ScrollPosition());
  DrawGrid(painter, devicePixelRatioF());
}

QImage TColorWnd::MakeBitmap() const {
  QImage bitmap(kColourTableWidth, ColourTableHeight(palette_), QImage::Format_RGB32);
  bitmap.fill(palette().color(QPalette::Window));
  QPainter painter(&bitmap);
  DrawGrid(painter, 1);
  return bitmap;
}

void TColorWnd::ClientResized() {
  UpdateScrolling();
}

void TColorWnd::closeEvent(QCloseEvent* event) {
  TMouseWnd::closeEvent(event);
  if (event->isAccepted()) SendPrivateMessage(Frame(), PrivateMessage(WM_COLORTABLECLOSED));
}

}  // namespace plenovia
