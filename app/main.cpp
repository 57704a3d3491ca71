#include <QApplication>
#include <QFileInfo>
#include <csignal>

#include "app/file_commands.h"
#include "app/plenovia_app.h"

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
  return QApplication::exec();
}
