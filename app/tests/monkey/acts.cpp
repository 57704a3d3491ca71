#include "app/tests/monkey/acts.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QToolButton>
#include <QWindow>
#include <vector>

#include "app/command_table.h"
#include "app/file_commands.h"
#include "app/live_host.h"
#include "app/tests/monkey/monkey.h"
#include "app/tests/monkey/pokes.h"
#include "depthmap/ui/map_window.h"
#include "live/ui/live_panel.h"

namespace plenovia {

namespace {

std::vector<int> AvailableCommands(TPlenoviaWnd& frame) {
  std::vector<int> commands;
  const auto add = [&](int command) {
    const QAction* action = frame.Commands().Action(command);
    if (action != nullptr && action->isEnabled()) commands.push_back(command);
  };
  for (const CommandRow& row : CommandTable()) {
    if (row.number != kCmExit) add(row.number);
  }
  for (int command = kCmFirstFigure; command <= kCmLastFigure; command += 4) add(command);
  return commands;
}

QMdiSubWindow* AnyDocument(Monkey& monkey) {
  const auto windows = monkey.Frame().Area()->subWindowList();
  return windows.isEmpty() ? nullptr : monkey.Dice().Pick(windows);
}

void GiveCommand(Monkey& monkey) {
  const std::vector<int> commands = AvailableCommands(monkey.Frame());
  if (commands.empty()) return;
  const int command = monkey.Dice().Pick(commands);
  monkey.Note("command " + std::to_string(command));
  monkey.Frame().Commands().Action(command)->trigger();
}

void MakeStereogram(Monkey& monkey) {
  CommandRouter& commands = monkey.Frame().Commands();
  const int figure = monkey.Dice().Int(kCmFirstFigure, kCmLastFigure);
  const int command = monkey.Dice().OneIn(2) ? figure : kCmMakeSirds;
  if (commands.Action(command)->isEnabled()) {
    monkey.Note("makes " + std::to_string(command));
    commands.Action(command)->trigger();
  }
}

void OpenMenu(Monkey& monkey) {
  constexpr Qt::Key kMnemonics[] = {Qt::Key_F, Qt::Key_E, Qt::Key_G,
                                    Qt::Key_M, Qt::Key_W, Qt::Key_H};
  QMenuBar* bar = monkey.Frame().menuBar();
  if (monkey.Dice().OneIn(2)) {
    const Qt::Key key = monkey.Dice().Pick(kMnemonics);
    monkey.Note("Alt and the key " + std::to_string(key));
    StrikeKey(monkey.Frame().windowHandle(), key, Qt::AltModifier);
  } else {
    monkey.Note("clicks on the menu bar");
    Click(*bar, bar->actionGeometry(monkey.Dice().Pick(bar->actions())).center(), monkey.Dice());
  }
}

void PressBarButton(Monkey& monkey) {
  QList<QToolButton*> buttons;
  for (auto* button : monkey.Frame().findChildren<QToolButton*>()) {
    if (button->isVisible() && button->isEnabled()) buttons << button;
  }
  if (buttons.isEmpty()) return;
  QToolButton* button = monkey.Dice().Pick(buttons);
  monkey.Note("presses " + button->objectName().toStdString());
  button->click();
}

void UseDocument(Monkey& monkey) {
  const Document* document = monkey.Frame().GetActiveChild();
  if (document == nullptr || monkey.Frame().isMinimized()) return;
  auto* view = document->findChild<QAbstractScrollArea*>(QStringLiteral("client"));
  monkey.Note("mouse in " + document->windowTitle().toStdString());
  UseMouse(*view->viewport(), monkey.Dice());
}

void DrawInMap(Monkey& monkey) {
  if (qobject_cast<TMapWindow*>(monkey.Frame().GetActiveChild()) == nullptr) {
    if (monkey.Frame().IsBusy()) return;
    monkey.Note("makes a map");
    monkey.Frame().Commands().Run(kCmNew);
  }
  for (int i = monkey.Dice().Int(1, 6); i > 0; --i) {
    const QAction* tool =
        monkey.Frame().Commands().Action(monkey.Dice().Int(kSelectTool, kDeleteObject));
    if (tool->isEnabled()) monkey.Frame().Commands().Run(tool->data().toInt());
    UseDocument(monkey);
  }
}

// Of any window: the frame, the help, a full screen.
void UseAnyWidget(Monkey& monkey) {
  QList<QWidget*> windows;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowHandle() != nullptr) windows << window;
  }
  if (windows.isEmpty()) return;
  QWidget* window = monkey.Dice().Pick(windows);
  QWidget* widget = AnyWidgetIn(*window, monkey.Dice());
  monkey.Note("uses " + window->objectName().toStdString() + ", " +
              widget->metaObject()->className() + " " + widget->objectName().toStdString());
  Poke(*widget, monkey.Dice());
}

void UseAnyKey(Monkey& monkey) {
  QWidget* window = QApplication::activeWindow();
  if (window == nullptr) window = &monkey.Frame();
  monkey.Note("keys in " + window->objectName().toStdString());
  UseKeys(*window, monkey.Dice());
}

void ChangeDocumentWindow(Monkey& monkey) {
  QMdiSubWindow* window = AnyDocument(monkey);
  if (window == nullptr) return;
  Chance& dice = monkey.Dice();
  const int way = dice.Int(0, 8);
  monkey.Note("changes window, way " + std::to_string(way) + ": " +
              window->windowTitle().toStdString());
  switch (way) {
    case 0:
      return window->showMaximized();
    case 1:
      return window->showMinimized();
    case 2:
      return window->showNormal();
    case 3:
      return window->resize(dice.Int(1, 700), dice.Int(1, 600));
    case 4:
      return window->move(dice.Int(-400, 900), dice.Int(-100, 700));
    case 5:
      return window->showSystemMenu();
    case 6:
      window->close();
      return;
    default:
      return monkey.Frame().Area()->setActiveSubWindow(window);
  }
}

// A minimised frame is not active, and is activated when it comes back; that is the window
// manager's work, which the offscreen platform has none of.
void Minimise(Monkey& monkey) {
  monkey.Frame().showMinimized();
  monkey.OtherProgram().show();
}

void ComeBack(Monkey& monkey) {
  monkey.Note("the frame comes back");
  monkey.OtherProgram().activateWindow();
  if (monkey.Dice().OneIn(2)) {
    monkey.Frame().showMaximized();
  } else {
    monkey.Frame().showNormal();
  }
  monkey.OtherProgram().hide();
  monkey.Frame().activateWindow();
}

void ChangeFrame(Monkey& monkey) {
  Chance& dice = monkey.Dice();
  const int way = dice.Int(0, 3);
  monkey.Note("changes the frame, way " + std::to_string(way));
  switch (way) {
    case 0:
      return monkey.Frame().showMaximized();
    case 1:
      return Minimise(monkey);
    case 2:
      return monkey.Frame().resize(dice.Int(1, 1000), dice.Int(1, 900));
    default:
      return monkey.Frame().showNormal();
  }
}

// As from the desktop's settings.
void ChangeLook(Monkey& monkey) {
  monkey.Note("changes font and colours");
  QFont font = QApplication::font();
  font.setPointSize(monkey.Dice().Int(6, 18));
  QApplication::setFont(font);
  const Qt::GlobalColor grounds[] = {Qt::lightGray, Qt::darkGray, Qt::white, Qt::black};
  QApplication::setPalette(QPalette(monkey.Dice().Pick(grounds)));
}

void CloseFrame(Monkey& monkey) {
  if (!monkey.Dice().OneIn(5)) return;
  monkey.Note("closes the frame");
  monkey.Frame().close();
}

void OpenFile(Monkey& monkey) {
  if (monkey.Frame().IsBusy()) return;
  const QString path = monkey.Files().ToOpen(monkey.Dice());
  monkey.Note("opens " + path.right(40).toStdString());
  OpenByName(monkey.Frame().Context(), path);
}

void ChangeParameters(Monkey& monkey) {
  Chance& dice = monkey.Dice();
  monkey.Note("changes the parameters");
  const auto extreme = [&](int low, int high) {
    return dice.OneIn(10) ? dice.Int(-2'000'000'000, 2'000'000'000) : dice.Int(low, high);
  };
  TSirdsSettings settings;
  settings.dx = extreme(-200, 200);
  settings.dy = extreme(-200, 200);
  settings.da = extreme(-180, 180);
  settings.zmin = extreme(0, 255);
  settings.zmax = extreme(0, 255);
  settings.gapValue = extreme(51, 100);
  settings.w = extreme(102, 400);
  settings.h = extreme(1, 400);
  settings.depthSel = dice.Int(0, 3);
  settings.marker = dice.Int(0, 1);
  settings.useBmp = dice.Int(0, 1);
  settings.scanMethod = dice.Int(0, 4);
  monkey.Frame().Settings() = Settle(settings);
}

void FillClipboard(Monkey& monkey) {
  Chance& dice = monkey.Dice();
  monkey.Note("fills the clipboard");
  auto data = std::make_unique<QMimeData>();
  switch (dice.Int(0, 3)) {
    case 0:
      data->setText(dice.Text());
      break;
    case 1:
      data->setData(QStringLiteral("image/png"), QByteArray("\x89PNG\r\n\x1a\nbroken", 14));
      break;
    case 2:
      break;
    default:
      QImage image(dice.Int(1, 200), dice.Int(1, 200), QImage::Format_ARGB32);
      image.fill(qRgba(dice.Int(0, 255), 80, 10, dice.Int(0, 255)));
      data->setImageData(image);
  }
  QGuiApplication::clipboard()->setMimeData(data.release());
}

void StopRun(Monkey& monkey) {
  const QAction* stop = monkey.Frame().Commands().Action(kCmStopProcess);
  if (!stop->isEnabled()) return;
  monkey.Note("stops the run");
  monkey.Frame().Commands().Run(kCmStopProcess);
}

void UseLiveView(Monkey& monkey) {
  LiveDock& dock = monkey.Frame().Live().Dock();
  Chance& dice = monkey.Dice();
  if (!dock.isVisible() || dice.OneIn(8)) {
    monkey.Note("shows or hides Live View");
    monkey.Frame().Commands().Run(kCmLiveView);
    return;
  }
  if (dice.OneIn(12)) {
    monkey.Note("Live View floats or not");
    dock.setFloating(!dock.isFloating());
    return;
  }
  dock.Fill();
  QWidget* widget = AnyWidgetIn(*dock.Panel(), dice);
  monkey.Note(std::string("Live View: ") + widget->metaObject()->className() + " " +
              widget->objectName().toStdString());
  if (dice.OneIn(3)) {
    StrikeKey(dock.window()->windowHandle(), static_cast<Qt::Key>(dice.Int(Qt::Key_1, Qt::Key_6)));
  } else {
    Poke(*widget, dice);
  }
}

struct ActRow {
  int weight;
  void (*perform)(Monkey&);
};

constexpr ActRow kActs[] = {
    {25, &GiveCommand},   {8, &MakeStereogram},   {5, &OpenMenu},
    {6, &PressBarButton}, {20, &UseDocument},     {5, &DrawInMap},
    {10, &UseAnyWidget},  {6, &UseAnyKey},        {10, &ChangeDocumentWindow},
    {2, &ChangeFrame},    {1, &ChangeLook},       {1, &CloseFrame},
    {8, &OpenFile},       {5, &ChangeParameters}, {2, &FillClipboard},
    {3, &StopRun},        {10, &UseLiveView},
};

}  // namespace

void DoAnything(Monkey& monkey) {
  if (monkey.Frame().isMinimized()) {
    if (monkey.Dice().OneIn(3)) ComeBack(monkey);
    return;
  }
  int sum = 0;
  for (const ActRow& row : kActs) sum += row.weight;
  int place = monkey.Dice().Int(1, sum);
  for (const ActRow& row : kActs) {
    place -= row.weight;
    if (place <= 0) return row.perform(monkey);
  }
}

}  // namespace plenovia
