// How long the program takes until its frame is shown, against an empty window of Qt's with the
// same menu.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <cstdlib>
#include <cstring>
#include <string>

#include "app/command_table.h"
#include "app/plenovia_app.h"
#include "bench/child_process.h"
#include "bench/stopwatch.h"
#include "bench/table.h"

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

int Compare(const std::string& self) {
  const auto [program, empty] = bench::SecondsInTurn(
      [&] {
        bench::RunProgram({self, "program"});
      },
      [&] {
        bench::RunProgram({self, "empty"});
      },
      15);
  bench::PrintTimes("start until the frame is shown", program, "empty window with the same menu",
                    empty);
  return 0;
}

}  // namespace
}  // namespace plenovia

int main(int argc, char** argv) {
  const char* which = argc > 1 ? argv[1] : "";
  if (std::strcmp(which, "empty") == 0) return plenovia::ShowOne(argc, argv, true);
  if (std::strcmp(which, "program") == 0) return plenovia::ShowOne(argc, argv, false);
  return plenovia::Compare(argv[0]);
}
