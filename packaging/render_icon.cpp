// render_icon SVG SIZE PNG: draws an icon at a size in pixels.
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 4) {
    std::fputs("usage: render_icon SVG SIZE PNG\n", stderr);
    return 2;
  }
  const int size = QString::fromLocal8Bit(argv[2]).toInt();
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  QImage icon(size, size, QImage::Format_ARGB32_Premultiplied);
  if (!drawing.isValid() || icon.isNull()) {
    std::fprintf(stderr, "render_icon: %s at %s pixels cannot be drawn\n", argv[1], argv[2]);
    return 1;
  }
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  drawing.render(&painter);
  painter.end();
  return icon.save(QString::fromLocal8Bit(argv[3]), "PNG") ? 0 : 1;
}
