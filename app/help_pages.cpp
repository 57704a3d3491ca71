#include "app/help_pages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QKeySequence>
#include <QRegularExpression>
#include <QTextDocument>
#include <algorithm>

#include "app/command_table.h"

namespace plenovia {

namespace {

QStringList Keywords(const QString& html) {
  static const QRegularExpression kMeta(
      QStringLiteral("<meta\\s+name=\"keywords\"\\s+content=\"([^\"]*)\""));
  QStringList keywords;
  const QStringList parts = kMeta.match(html).captured(1).split(u',', Qt::SkipEmptyParts);
  for (const QString& part : parts) keywords << part.simplified();
  return keywords;
}

QString TableOfKeys() {
  QString rows;
  for (const CommandRow& row : CommandTable()) {
    if (row.keys == nullptr) continue;
    QStringList keys;
    for (const auto& key : QKeySequence::listFromString(QString::fromLatin1(row.keys))) {
      keys << key.toString(QKeySequence::NativeText).toHtmlEscaped();
    }
    const QString name = QCoreApplication::translate("Commands", row.text).remove(u'&');
    rows += QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>\n")
                .arg(keys.join(QStringLiteral(", ")), name.toHtmlEscaped());
  }
  return QStringLiteral("<table>\n%1</table>").arg(rows);
}

bool HoldsAll(const QString& text, const QStringList& words) {
  return std::all_of(words.begin(), words.end(),
                     [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

}  // namespace

QUrl HelpAddress(const QString& fileName) {
  return QUrl(QStringLiteral("qrc:/help/") + fileName);
}

QString HelpHtml(const QUrl& address) {
  QFile file(u':' + address.path());
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).replace(QStringLiteral("<!--keys-->"), TableOfKeys());
}

std::vector<HelpPage> LoadHelpPages() {
  const QDir folder(QStringLiteral(":/help"));
  std::vector<HelpPage> pages;
  for (const QString& name : folder.entryList({QStringLiteral("*.html")})) {
    const QString html = HelpHtml(HelpAddress(name));
    QTextDocument document;
    document.setHtml(html);
    pages.push_back({HelpAddress(name), document.metaInformation(QTextDocument::DocumentTitle),
                     Keywords(html), document.toPlainText().simplified()});
  }
  std::sort(pages.begin(), pages.end(), [](const HelpPage& a, const HelpPage& b) {
    return a.title.compare(b.title, Qt::CaseInsensitive) < 0;
  });
  return pages;
}

const HelpPage* FindTopic(const std::vector<HelpPage>& pages, const QString& keyword) {
  const QString wanted = keyword.simplified();
  for (const HelpPage& page : pages) {
    if (page.title.compare(wanted, Qt::CaseInsensitive) == 0) return &page;
  }
  for (const HelpPage& page : pages) {
    if (page.keywords.contains(wanted, Qt::CaseInsensitive)) return &page;
  }
  return nullptr;
}

std::vector<const HelpPage*> SearchPages(const std::vector<HelpPage>& pages,
                                         const QStringList& words) {
  std::vector<const HelpPage*> found;
  if (words.isEmpty()) return found;
  const auto about = [&](const HelpPage* page) {
    return HoldsAll(page->title + u' ' + page->keywords.join(u' '), words);
  };
  for (const HelpPage& page : pages) {
    if (HoldsAll(page.text, words) || about(&page)) found.push_back(&page);
  }
  std::stable_partition(found.begin(), found.end(), about);
  return found;
}

}  // namespace plenovia
