// How long the program takes until its frame is shown, against an empty window of Qt's with the
// same menu.

#include <spawn.h>
#include <sys/wait.h>

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "app/command_table.h"
#include "app/plenovia_app.h"
#include "bench/stopwatch.h"

namespace plenovia {
namespace {

// The texts of the program's menus, without the program.
void BuildEmptyWindow(QMainWindow& window) {
  const char* title = nullptr;
  QMenu* menu = nullptr;
  for (const CommandRow& row : CommandTable()) {
    if (row.menu == nullptr) continue;
    if (row.menu != title) menu = window.menuBar()->addMenu(QString::fromLatin1(row.menu));
    title = row.menu;
    if (row.number != 0) menu->addAction(QString::fromLatin1(row.text));
    if (row.number != kCmVersion) continue;
    for (int i = kCmFirstFigure; i <= kCmLastFigure; ++i) {
      menu->addAction(QStringLiteral("Figure %1").arg(i));
    }
  }
  window.resize(640, 480);
  window.show();
}

int ShowOne(int argc, char** argv, bool empty) {
  QApplication application(argc, argv);
  QMainWindow window;
  TPlenoviaApp program;
  if (empty) {
    BuildEmptyWindow(window);
  } else {
    program.InitMainWindow();
  }
  QCoreApplication::processEvents();
  std::_Exit(0);
}

double SecondsOfRuns(const char* self, const char* which) {
  return bench::Seconds(
      [&] {
        std::string program = self;
        std::string argument = which;
        char* arguments[] = {program.data(), argument.data(), nullptr};
        pid_t child = 0;
        if (posix_spawn(&child, self, nullptr, nullptr, arguments, environ) != 0) return;
        int status = 0;
        waitpid(child, &status, 0);
      },
      15);
}

}  // namespace
}  // namespace plenovia

int main(int argc, char** argv) {
  const char* which = argc > 1 ? argv[1] : "";
  if (std::strcmp(which, "empty") == 0) return plenovia::ShowOne(argc, argv, true);
  if (std::strcmp(which, "program") == 0) return plenovia::ShowOne(argc, argv, false);
  const double empty = plenovia::SecondsOfRuns(argv[0], "empty");
  const double program = plenovia::SecondsOfRuns(argv[0], "program");
  std::printf("Start of the desktop program until its frame is shown, best of 15\n");
  std::printf("  empty window with the same menu  %6.1f ms\n", empty * 1e3);
  std::printf("  the program with its patterns    %6.1f ms, %.2f times\n", program * 1e3,
              program / empty);
  return 0;
}
