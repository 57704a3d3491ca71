#include <QApplication>

#include "app/plenovia_app.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Plenovia"));
  QApplication::setApplicationVersion(QStringLiteral(PLENOVIA_VERSION));
  QApplication::setDesktopFileName(QStringLiteral("plenovia"));
  plenovia::TPlenoviaApp plenovia;
  plenovia.InitMainWindow();
  return QApplication::exec();
}
