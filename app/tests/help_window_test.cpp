#include "app/help_window.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <array>
#include <ostream>

#include "app/command_table.h"
#include "figures/sirdmath.h"

namespace plenovia {
namespace {

QString FileOf(const QUrl& address) {
  return u':' + address.path();
}

QString Html(const QUrl& address) {
  QFile file(FileOf(address));
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QList<QUrl> Named(const QUrl& page, const char* attribute) {
  const QRegularExpression names(QString::fromLatin1(attribute) + QStringLiteral("=\"([^\"]*)\""));
  QList<QUrl> addresses;
  for (auto match = names.globalMatch(Html(page)); match.hasNext();) {
    const QString name = match.next().captured(1);
    addresses << (name.startsWith(u'#') ? QUrl(page.toString() + name) : page.resolved(QUrl(name)));
  }
  return addresses;
}

TEST(HelpPages, EveryLinkAndPictureLeadsSomewhere) {
  const auto pages = LoadHelpPages();
  ASSERT_GT(pages.size(), 20u);
  QSet<QString> seen = {FileOf(HelpAddress(QStringLiteral("index.html")))};
  for (const HelpPage& page : pages) {
    EXPECT_FALSE(page.title.isEmpty()) << qPrintable(page.address.path());
    for (const QUrl& link : Named(page.address, "href")) {
      const QString anchor = QStringLiteral("name=\"%1\"").arg(link.fragment());
      EXPECT_TRUE(QFile::exists(FileOf(link))) << qPrintable(link.toString());
      EXPECT_TRUE(!link.hasFragment() || Html(link).contains(anchor))
          << qPrintable(link.toString());
      if (link.path() != page.address.path()) seen << FileOf(link);
    }
    for (const QUrl& picture : Named(page.address, "src")) {
      EXPECT_FALSE(QImage(FileOf(picture)).isNull()) << qPrintable(picture.toString());
    }
  }
  EXPECT_EQ(seen.size(), static_cast<qsizetype>(pages.size())) << "a page that no page leads to";
}

TEST(HelpPages, KeysComeFromTheTableOfCommands) {
  const auto pages = LoadHelpPages();
  const HelpPage* keys = FindTopic(pages, QStringLiteral("Keys"));
  ASSERT_NE(keys, nullptr);
  EXPECT_TRUE(keys->text.contains(QStringLiteral("Ctrl+Shift+S Save As")));
}

TEST(HelpPages, EveryCommandAndFigureIsExplained) {
  QString text;
  for (const HelpPage& page : LoadHelpPages()) text += page.text;
  for (const CommandRow& row : CommandTable()) {
    if (row.number == 0) continue;
    for (const char* name : {row.text, row.hint}) {
      const QString shown = QString::fromLatin1(name).remove(u'&');
      EXPECT_TRUE(text.contains(shown)) << qPrintable(shown);
    }
  }
  _InitFigureTitles();
  for (int figure = 0; figure < _GetFigureCount(); ++figure) {
    std::array<char, 40> title{};
    _GetFigureTitle(figure, title.data(), static_cast<int>(title.size()));
    EXPECT_TRUE(text.contains(QString::fromLatin1(title.data()))) << title.data();
  }
  _UnloadFigureTitles();
}

struct Topic {
  const char* keyword;
  const char* file;
};

TEST(HelpPages, TopicsAreFoundByTitleThenByKeyword) {
  const auto pages = LoadHelpPages();
  for (const Topic& topic : {Topic{"Plenovia Overview", "overview.html"},
                             {" sirds  SETTINGS", "settings.html"},
                             {"gap value", "settings.html"},
                             {"scan methods", "scan-methods.html"},
                             {"smears", "trouble.html"}}) {
    const HelpPage* page = FindTopic(pages, QString::fromLatin1(topic.keyword));
    ASSERT_NE(page, nullptr) << topic.keyword;
    EXPECT_EQ(page->address, HelpAddress(QString::fromLatin1(topic.file))) << topic.keyword;
  }
  EXPECT_EQ(FindTopic(pages, QStringLiteral("weather")), nullptr);
}

class HelpWindowTest : public testing::Test {
 protected:
  HelpWindow help_{nullptr};
  QTextBrowser& page_ = *help_.findChild<QTextBrowser*>(QStringLiteral("page"));
  QListWidget& found_ = *help_.findChild<QListWidget*>(QStringLiteral("found"));
  QLineEdit& search_ = *help_.findChild<QLineEdit*>(QStringLiteral("search"));
};

TEST_F(HelpWindowTest, OpensAtATopicGoesBackAndClosesWithEscape) {
  EXPECT_FALSE(help_.isVisible());
  help_.ShowIndex();
  help_.ShowTopic(QStringLiteral("Plenovia Overview"));
  EXPECT_TRUE(help_.isVisible());
  EXPECT_FALSE(help_.isModal());
  EXPECT_EQ(help_.windowTitle(), QStringLiteral("Plenovia Overview"));
  help_.findChild<QToolBar*>()->actions().constFirst()->trigger();
  EXPECT_EQ(help_.windowTitle(), QStringLiteral("Plenovia Help"));

  Q_EMIT page_.anchorClicked(QUrl(QStringLiteral("http://localhost/")));
  EXPECT_EQ(page_.source(), HelpAddress(QStringLiteral("index.html")));
  Q_EMIT page_.anchorClicked(HelpAddress(QStringLiteral("settings.html#gap")));
  EXPECT_EQ(page_.documentTitle(), QStringLiteral("SIRDS Settings"));

  ASSERT_TRUE(QTest::qWaitForWindowActive(&help_));
  QTest::keyClick(&page_, Qt::Key_Escape);
  EXPECT_FALSE(help_.isVisible());
  help_.ShowTopic(QStringLiteral("weather"));
  EXPECT_TRUE(help_.isVisible());
  EXPECT_EQ(search_.text(), QStringLiteral("weather"));
  help_.CloseHelp();
  EXPECT_FALSE(help_.isVisible());
}

TEST_F(HelpWindowTest, SearchListsThePagesWithAllWordsAndMarksThem) {
  help_.ShowIndex();
  EXPECT_FALSE(found_.isVisible());
  QTest::keyClicks(&search_, QStringLiteral("streaks MCMAHON"));
  ASSERT_TRUE(found_.isVisible());
  QStringList titles;
  for (int i = 0; i < found_.count(); ++i) titles << found_.item(i)->text();
  EXPECT_TRUE(titles.contains(QStringLiteral("Trouble-Shooting")));
  EXPECT_TRUE(titles.contains(QStringLiteral("Scan Methods")));
  EXPECT_FALSE(titles.contains(QStringLiteral("Plenovia Overview")));
  QTest::keyClick(&search_, Qt::Key_Return);
  EXPECT_EQ(page_.documentTitle(), titles.constFirst());
  EXPECT_GE(page_.extraSelections().size(), 2);

  search_.setText(QStringLiteral("xylophone"));
  EXPECT_EQ(found_.count(), 1);
  EXPECT_EQ(found_.item(0)->flags(), Qt::NoItemFlags);
  QTest::keyClick(&search_, Qt::Key_Return);
  EXPECT_EQ(page_.documentTitle(), titles.constFirst());
  search_.clear();
  EXPECT_FALSE(found_.isVisible());
}

// The picture's place in what is shown; (-1, -1) when it is nowhere dot for dot.
QPoint Find(const QImage& picture, const QImage& shown) {
  for (int y = 0; y + picture.height() <= shown.height(); ++y) {
    for (int x = 0; x + picture.width() <= shown.width(); ++x) {
      if (shown.pixel(x, y + 60) != picture.pixel(0, 60)) continue;
      if (shown.pixel(x + 1, y + 60) != picture.pixel(1, 60)) continue;
      if (shown.copy(QRect(QPoint(x, y), picture.size())) == picture) return {x, y};
    }
  }
  return {-1, -1};
}

TEST_F(HelpWindowTest, StereogramsAreShownDotForDot) {
  help_.resize(900, 700);
  help_.ShowTopic(QStringLiteral("How to See a Stereogram"));
  QCoreApplication::processEvents();
  const QImage picture =
      QImage(QStringLiteral(":/help/pictures/star.png")).convertToFormat(QImage::Format_RGB32);
  QScrollBar& bar = *page_.verticalScrollBar();
  bool found = false;
  for (int at = 0; !found && at <= bar.maximum(); at += 101) {
    bar.setValue(at);
    QImage shown = page_.viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    shown.setDevicePixelRatio(1);
    found = Find(picture, shown) != QPoint(-1, -1);
  }
  EXPECT_TRUE(found);
}

}  // namespace
}  // namespace plenovia
