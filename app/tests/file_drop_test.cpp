// Files dropped onto the frame.

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSysInfo>
#include <QUrl>
#include <QWindow>
#include <fstream>

#include "app/file_drop.h"
#include "app/tests/program.h"
#include "documents/ui/mouse_wnd.h"
#include "platform/ui/text.h"

namespace plenovia {
namespace {

class Drops : public ProgramTest {
 protected:
  Drops() { Start(); }

  // Drags the URLs to a place of the frame, as the display's server would, and lets go. True when
  // they were taken, and if so as a copy.
  bool Drop(const QStringList& urls, const QPoint& place) {
    QMimeData data;
    data.setUrls(QUrl::fromStringList(urls));
    const Qt::DropActions actions = Qt::MoveAction | Qt::CopyAction;
    QDragEnterEvent enter(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(Frame().windowHandle(), &enter);
    if (!enter.isAccepted()) return false;
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop(place, actions, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(Frame().windowHandle(), &drop);
    return drop.isAccepted();
  }
  QString Url(const QString& path) { return QUrl::fromLocalFile(path).toString(); }
  QPoint Place(QWidget& widget) { return widget.mapTo(&Frame(), widget.rect().center()); }
  QStringList Titles() {
    QStringList titles;
    for (QMdiSubWindow* window : Frame().Area()->subWindowList()) titles << window->windowTitle();
    return titles;
  }
};

TEST_F(Drops, OpenEachFileAnywhereOnTheFrame) {
  const QString first = PictureFile("Eins %20 #1.png", 60, 40);
  EXPECT_TRUE(Drop({Url(first)}, Place(*Frame().Area())));
  EXPECT_TRUE(Titles().isEmpty()) << "the program that drags should not have to wait";
  Settle();
  EXPECT_EQ(Titles(), QStringList{QStringLiteral("eins %20 #1.png")});
  EXPECT_EQ(Frame().LastFormat(), 6);

  // Onto a document window, two files, the first of them broken.
  std::ofstream(folder_ / "broken.rds") << "no map";
  DialogAnswers answers;
  answers.AddMessage(QStringLiteral("Invalid Depth Map file"), QStringLiteral("Error"));
  answers.AddMessage(QStringLiteral("Error Opening the Depth Map file\nbroken.rds: "
                                    "The file is not a valid depth map."),
                     QStringLiteral("Error"));
  const QString second = PictureFile("second.gif", 30, 30);
  EXPECT_TRUE(Drop({Url(PathToQString(folder_ / "broken.rds")), Url(second)},
                   Place(*Frame().GetActiveChild())));
  Settle();
  EXPECT_EQ(Titles().size(), 2);
  EXPECT_EQ(ActivePicture()->GetTitle(), QStringLiteral("second.gif"));
}

TEST_F(Drops, OfWhatIsNoFileHereAreRefused) {
  const QPoint place = Place(*Frame().Area());
  const QString folder = Url(PathToQString(folder_.path()));
  for (const QString& url : {QString(), QStringLiteral("https://pictures.example/shark.png"),
                             QStringLiteral("mailto:shark@pictures.example"),
                             QStringLiteral("file://elsewhere/shark.png"), folder}) {
    EXPECT_FALSE(Drop({url}, place)) << url.toStdString();
  }
  QMimeData data;
  data.setUrls({QUrl(QStringLiteral("https://pictures.example/a.png")), QUrl(folder),
                QUrl(QStringLiteral("file://localhost/b%20c.png")),
                QUrl(QStringLiteral("file://%1/d.png").arg(QSysInfo::machineHostName()))});
  EXPECT_EQ(DroppedFiles(data),
            (QStringList{QStringLiteral("/b c.png"), QStringLiteral("/d.png")}));
  data.clear();
  data.setText(QStringLiteral("/b c.png"));
  EXPECT_TRUE(DroppedFiles(data).isEmpty());
}

TEST_F(Drops, AreRefusedWhileOpenIsGray) {
  const QString file = Url(PictureFile("a.png", 20, 20));
  AddPicture(NoisePicture(400, 400, 64));
  const QPoint place = Place(*Frame().Area());
  RunAnd(kCmMakeSirds, [&] { EXPECT_FALSE(Drop({file}, place)); });
  ActivePicture()->SetSaved(true);
  DialogAnswers answers;
  answers.Add([&](QDialog& dialog) {
    EXPECT_FALSE(Drop({file}, place));
    dialog.reject();
  });
  Run(kCmAbout);
  EXPECT_EQ(Titles().size(), 2);
}

}  // namespace
}  // namespace plenovia
