// The pages of the help, to be found by topic and by the words in them.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <vector>

namespace plenovia {

struct HelpPage {
  QUrl address;
  QString title;
  QStringList keywords;
  QString text;  // what is read on the page, title included
};

QUrl HelpAddress(const QString& fileName);

// The page at an address of the help, with the table of keys filled in; empty when there is none.
QString HelpHtml(const QUrl& address);

// All pages that the program carries, in the order of their titles.
std::vector<HelpPage> LoadHelpPages();

// The page with this title; else the first one with this keyword; else null. Capitals do not
// matter.
const HelpPage* FindTopic(const std::vector<HelpPage>& pages, const QString& keyword);

// The pages that hold all of the words, those with all of them in the title or keywords first.
// Parts of words count, capitals do not matter. No words find nothing.
std::vector<const HelpPage*> SearchPages(const std::vector<HelpPage>& pages,
                                         const QStringList& words);

}  // namespace plenovia
