// Shows a page of the help, with its stereograms dot for dot.
#pragma once

#include <QHash>
#include <QImage>
#include <QStringList>
#include <QTextBrowser>
#include <QTextObjectInterface>

namespace plenovia {

// Links lead to pages of the help only. A picture's pixel is a pixel of the display at each
// scale factor; pictures whose name ends in "@2x" are drawings, shown smoothly at half their size.
class HelpBrowser : public QTextBrowser, public QTextObjectInterface {
  Q_OBJECT
  Q_INTERFACES(QTextObjectInterface)

 public:
  explicit HelpBrowser(QWidget* parent);

  // Marks the words on the page that is shown and scrolls to the first of them.
  void MarkWords(const QStringList& words);

  QVariant loadResource(int type, const QUrl& name) override;
  QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
  void drawObject(QPainter* painter, const QRectF& area, QTextDocument* document, int position,
                  const QTextFormat& format) override;

 private:
  void Follow(const QUrl& link);
  const QImage& Picture(const QTextFormat& format);

  QHash<QString, QImage> pictures_;
};

}  // namespace plenovia
