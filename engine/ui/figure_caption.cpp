#include "engine/ui/figure_caption.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <cstdint>
#include <vector>

#include "engine/caption.h"

namespace plenovia {

namespace {

constexpr int kLetterHeight = 14;  // pixels
// The caption's place in the picture: from the left edge, and its top from the lower edge.
constexpr int kLeft = 10;
constexpr int kHeight = 21;

QFont CaptionFont() {
  QFont font(QStringLiteral("MS Sans Serif"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(kLetterHeight - 2);
  font.setBold(true);
  font.setStyleStrategy(QFont::NoAntialias);
  return font;
}

// As many of the parts, from the first one on, as fit side by side.
QString FittingText(QStringList parts, const QFontMetrics& metrics, int width) {
  const QString between = QStringLiteral(" - ");
  while (!parts.isEmpty() && metrics.horizontalAdvance(parts.join(between)) > width) {
    parts.removeLast();
  }
  return parts.join(between);
}

}  // namespace

void DrawFigureCaption(IndexedImage& picture, const QString& title) {
  const QFont font = CaptionFont();
  const QFontMetrics metrics(font);
  const QString text =
      FittingText({title, QStringLiteral("Plenovia"),
                   QCoreApplication::translate("FigureCaption", "SIRDS", "stereogram")},
                  metrics, picture.width() - kLeft);
  if (text.isEmpty() || picture.height() < kHeight) return;
  QImage letters(std::max(1, metrics.horizontalAdvance(text)), metrics.height(),
                 QImage::Format_Grayscale8);
  letters.fill(Qt::black);
  QPainter painter(&letters);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(0, metrics.ascent(), text);
  painter.end();

  std::vector<std::uint8_t> dots;
  dots.reserve(static_cast<std::size_t>(letters.width()) *
               static_cast<std::size_t>(letters.height()));
  for (int y = 0; y < letters.height(); ++y) {
    const std::uint8_t* row = letters.constScanLine(y);
    for (int x = 0; x < letters.width(); ++x) dots.push_back(row[x] >= 128 ? 1 : 0);
  }
  DrawCaption(picture, {letters.width(), letters.height(), dots});
}

}  // namespace plenovia
