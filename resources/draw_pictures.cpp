// Draws ahead what the program shows at its start, in the sizes of a display without a scale
// factor: drawing takes longer than all else of the start. To be used as
//   draw_pictures FOLDER_OF_DRAWINGS OUTPUT_FOLDER
// The output is a file for each picture and size, which holds the rows of an ARGB32_Premultiplied
// image and nothing else, and drawn.qrc, which names them all.
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>
#include <cstdlib>

namespace {

struct Drawing {
  const char* pattern;  // of file names, below the folder of drawings
  QList<QSize> sizes;
};

const Drawing kDrawings[] = {
    {"buttons/*.svg", {{20, 20}, {26, 26}, {32, 32}}},
    {"cursors/*.svg", {{32, 32}}},
    {"start_up.svg", {{400, 260}}},
};

bool Draw(const QString& drawing, const QSize& size, const QString& output) {
  QImage picture(size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  QSvgRenderer renderer(drawing);
  renderer.render(&painter);
  painter.end();
  QFile file(output);
  const auto bytes = static_cast<qint64>(picture.sizeInBytes());
  return renderer.isValid() && file.open(QIODevice::WriteOnly) &&
         file.write(reinterpret_cast<const char*>(picture.constBits()), bytes) == bytes;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return EXIT_FAILURE;
  const QDir source(QString::fromLocal8Bit(argv[1]));
  const QDir output(QString::fromLocal8Bit(argv[2]));
  QFile list(output.filePath(QStringLiteral("drawn.qrc")));
  if (!list.open(QIODevice::WriteOnly)) return EXIT_FAILURE;
  QTextStream text(&list);
  text << "<RCC><qresource prefix=\"/drawn\">\n";
  for (const Drawing& drawing : kDrawings) {
    const QString pattern = QString::fromLatin1(drawing.pattern);
    const QString folder = pattern.section(u'/', 0, -2);
    const QDir drawings(source.filePath(folder));
    for (const QString& name : drawings.entryList({pattern.section(u'/', -1)}, QDir::Files)) {
      for (const QSize& size : drawing.sizes) {
        const QString alias =
            (folder.isEmpty() ? QString() : folder + u'/') +
            QStringLiteral("%1@%2x%3").arg(name).arg(size.width()).arg(size.height());
        const QString file = QString(alias).replace(u'/', u'-');
        if (!Draw(drawings.filePath(name), size, output.filePath(file))) return EXIT_FAILURE;
        text << "<file alias=\"" << alias << "\">" << file << "</file>\n";
      }
    }
  }
  text << "</qresource></RCC>\n";
  return EXIT_SUCCESS;
}
