#include "app/help_browser.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

#include "app/help_pages.h"
#include "platform/ui/picture_painting.h"

namespace plenovia {

namespace {

constexpr int kMargin = 18;

QString StyleSheet(const QPalette& palette) {
  return QStringLiteral(
             "h1 { font-size: xx-large; }"
             "h2 { font-size: large; margin-top: 22px; margin-bottom: 8px; }"
             "h3 { font-size: medium; margin-top: 16px; }"
             "p, li, dd { line-height: 120%; }"
             "p.picture { line-height: 100%; }"
             "li { margin-bottom: 3px; }"
             "dt { margin-top: 10px; }"
             "table { margin-top: 6px; margin-bottom: 10px; }"
             "th { text-align: left; }"
             "th, td { border-bottom-width: 1px; border-bottom-style: solid;"
             " border-bottom-color: %1; }")
      .arg(palette.color(QPalette::Mid).name());
}

QString FileOf(const QTextFormat& format) {
  return format.toImageFormat().name();
}

bool IsDrawing(const QTextFormat& format) {
  return FileOf(format).endsWith(QStringLiteral("@2x.png"));
}

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::Follow);
  document()->setDocumentMargin(kMargin);
  document()->setDefaultStyleSheet(StyleSheet(palette()));
  document()->documentLayout()->registerHandler(QTextFormat::ImageObject, this);
}

void HelpBrowser::MarkWords(const QStringList& words) {
  QList<QTextEdit::ExtraSelection> marks;
  QTextCursor first;
  for (const QString& word : words) {
    QTextCursor match = document()->find(word);
    for (; !match.isNull(); match = document()->find(word, match)) {
      QTextEdit::ExtraSelection mark;
      mark.cursor = match;
      mark.format.setBackground(palette().highlight());
      mark.format.setForeground(palette().highlightedText());
      marks << mark;
      if (first.isNull() || match.selectionStart() < first.position()) {
        first = match;
        first.setPosition(match.selectionStart());
      }
    }
  }
  setExtraSelections(marks);
  if (!first.isNull()) setTextCursor(first);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  return type == QTextDocument::HtmlResource ? QVariant(HelpHtml(name))
                                             : QTextBrowser::loadResource(type, name);
}

void HelpBrowser::Follow(const QUrl& link) {
  if (link.scheme() == QStringLiteral("qrc")) setSource(link);
}

const QImage& HelpBrowser::Picture(const QTextFormat& format) {
  const QString file = u':' + source().resolved(QUrl(FileOf(format))).path();
  auto found = pictures_.find(file);
  if (found == pictures_.end()) {
    found = pictures_.insert(file, QImage(file));
  }
  return *found;
}

QSizeF HelpBrowser::intrinsicSize(QTextDocument*, int, const QTextFormat& format) {
  return QSizeF(Picture(format).size()) / (IsDrawing(format) ? 2 : devicePixelRatioF());
}

void HelpBrowser::drawObject(QPainter* painter, const QRectF& area, QTextDocument*, int,
                             const QTextFormat& format) {
  painter->save();
  if (IsDrawing(format)) {
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawImage(area, Picture(format));
  } else {
    painter->translate(area.topLeft());
    UseDevicePixels(*painter);
    painter->drawImage(QPoint(), Picture(format));
  }
  painter->restore();
}

}  // namespace plenovia
