// The page on the empty desk.

#include "app/start_page.h"

#include <QAccessible>
#include <QScrollBar>
#include <QTest>
#include <set>

#include "app/sample_files.h"
#include "app/start_card.h"
#include "app/tests/program.h"
#include "app/thumbnail.h"
#include "depthmap/ui/map_window.h"
#include "platform/ui/text.h"

namespace plenovia {
namespace {

class StartPages : public ProgramTest {
 protected:
  StartPage& Page() { return *Frame().findChild<StartPage*>(); }
  StartCard* Card(const QString& name) {
    for (auto* card : Page().findChildren<StartCard*>()) {
      if (card->text() == name) return card;
    }
    return nullptr;
  }
  void Press(const QString& name) {
    ASSERT_NE(Card(name), nullptr) << name.toStdString();
    QTest::mouseClick(Card(name), Qt::LeftButton);
    Settle();
  }
};

TEST_F(StartPages, GoesWhenADocumentOpensAndComesBackWithTheRecentFiles) {
  Start();
  EXPECT_TRUE(Page().isVisible());
  EXPECT_EQ(Page().size(), Frame().Area()->viewport()->size());
  EXPECT_EQ(Page().findChildren<StartCard*>().size(), 5 + SampleFiles().size());
  EXPECT_TRUE(QTest::qWaitFor([&] { return Card(QStringLiteral("shark.png"))->HasPicture(); }));
  Press(QStringLiteral("shark.png"));
  ASSERT_NE(ActivePicture(), nullptr);
  EXPECT_FALSE(Page().isVisible());
  const QString mine = PictureFile("Mine.gif", 30, 20);
  TSirdsWnd* second = Open(mine);
  Frame().Area()->subWindowList().front()->close();
  Settle();
  EXPECT_FALSE(Page().isVisible());
  second->close();
  Settle();
  EXPECT_TRUE(Page().isVisible());
  EXPECT_EQ(Page().findChildren<StartCard*>().size(), 7 + SampleFiles().size());
  Press(QStringLiteral("Mine.gif"));
  EXPECT_EQ(ActivePicture()->GetTitle(), QStringLiteral("mine.gif"));
}

TEST_F(StartPages, StepsGiveTheirCommands) {
  Start();
  Press(QStringLiteral("Draw a scene"));
  auto* map = qobject_cast<TMapWindow*>(Frame().GetActiveChild());
  ASSERT_NE(map, nullptr);
  map->CloseUnasked();
  Settle();
  Frame().Settings().w = Frame().Settings().h = 64;
  DialogAnswers answers;
  answers.Add([](QDialog& dialog) { dialog.accept(); });
  Press(QStringLiteral("Figure..."));
  ASSERT_NE(ActivePicture(), nullptr);
  EXPECT_TRUE(ActivePicture()->IsStereogram());
  ActivePicture()->CloseUnasked();
  Settle();
  for (const char* name : {"Open...", "Wizard"}) {
    answers.Add([](QDialog& dialog) { dialog.reject(); });
    Press(QString::fromLatin1(name));
  }
  EXPECT_TRUE(Page().isVisible());
}

TEST_F(StartPages, EachCardIsReachedByKeysAndNamed) {
  Start();
  Frame().resize(640, 480);
  Settle();
  const auto cards = Page().findChildren<StartCard*>();
  const auto inView = [&](const QWidget& card) {
    return Page().viewport()->rect().contains(
        QRect(card.mapTo(Page().viewport(), QPoint()), card.size()));
  };
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Right}) {
    std::set<QWidget*> reached;
    Card(QStringLiteral("Open..."))->setFocus();
    for (qsizetype i = 0; i < cards.size(); ++i) {
      QWidget* card = Frame().focusWidget();
      EXPECT_TRUE(inView(*card));
      reached.insert(card);
      QTest::keyClick(card, key);
    }
    EXPECT_EQ(std::ssize(reached), cards.size());
  }
  Card(QStringLiteral("Open..."))->setFocus();
  QTest::keyClick(Frame().focusWidget(), Qt::Key_Down);
  QTest::keyClick(Frame().focusWidget(), Qt::Key_Up);
  EXPECT_EQ(Frame().focusWidget(), Card(QStringLiteral("Open...")));
  EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0);
  StartCard* house = Card(QStringLiteral("house.rds"));
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(house);
  EXPECT_EQ(spoken->role(), QAccessible::Button);
  EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("house.rds"));
  EXPECT_TRUE(spoken->text(QAccessible::Description).startsWith(QStringLiteral("Sample: /")));
  house->setFocus();
  QTest::keyClick(house, Qt::Key_Return);
  Settle();
  EXPECT_NE(Frame().GetActiveChild(), nullptr);
}

TEST(Thumbnails, ShowDepthMapsFromFarToNearAndPicturesAtMostInTheirSize) {
  const QString samples = SampleFolder() + u'/';
  const Thumbnail map = MakeThumbnail(samples + QStringLiteral("castle.rds"), QSize(128, 96));
  EXPECT_EQ(map.size, QSize(460, 400));
  EXPECT_EQ(map.image.size(), QSize(110, 96));
  const auto gray = [&](int x, int y) { return qGray(map.image.pixel(x, y)); };
  EXPECT_LT(gray(1, 1), 20) << "the background is far";
  int nearest = 0;
  for (int i = 0; i < 110 * 96; ++i) nearest = std::max(nearest, gray(i % 110, i / 110));
  EXPECT_GT(nearest, 220);
  const QString picture = samples + QStringLiteral("shark.png");
  EXPECT_EQ(MakeThumbnail(picture, QSize(128, 96)).image.size(), QSize(128, 96));
  EXPECT_EQ(MakeThumbnail(picture, QSize(2000, 2000)).image.size(), QSize(800, 600));
  EXPECT_TRUE(MakeThumbnail(samples + QStringLiteral("README.md"), QSize(9, 9)).image.isNull());
}

}  // namespace
}  // namespace plenovia
