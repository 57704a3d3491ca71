#include "engine/ui/figure_caption.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <cstdint>
#include <vector>

#include "engine/caption.h"

namespace plenovia {

namespace {

constexpr int kLetterHeight = 14;  // pixels

}  // namespace

void DrawFigureCaption(IndexedImage& picture, const QString& title) {
  const QString text = QStringLiteral("%1 - %2 - %3")
                           .arg(title, QStringLiteral("Plenovia"),
                                QStringLiteral("single image random dot stereogram"));
  QFont font(QStringLiteral("MS Sans Serif"));
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(kLetterHeight - 2);
  font.setBold(true);
  font.setStyleStrategy(QFont::NoAntialias);
  const QFontMetrics metrics(font);
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
