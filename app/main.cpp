#include <QApplication>
#include <QFileInfo>
#include <QTimer>
#include <csignal>

#include "app/file_commands.h"
#include "app/plenovia_app.h"
#include "app/recovery.h"

int main(int argc, char** argv) {
  std::signal(SIGXFSZ, SIG_IGN);  // a limit on file sizes makes saving fail, not the program end
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Plenovia"));
  QApplication::setApplicationVersion(QStringLiteral(PLENOVIA_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("plenovia"));
  plenovia::TPlenoviaApp plenovia;
  plenovia.InitMainWindow();
  for (const QString& file : QCoreApplication::arguments().mid(1)) {
    plenovia::OpenByName(plenovia.Frame().Context(), QFileInfo(file).absoluteFilePath());
  }
  plenovia::Recovery recovery(plenovia.Frame().Context(), plenovia::Recovery::Folder());
  QTimer::singleShot(0, &recovery, &plenovia::Recovery::Offer);
  return QApplication::exec();
}
