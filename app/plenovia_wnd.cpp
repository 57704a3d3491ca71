#include "app/plenovia_wnd.h"

#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusTipEvent>
#include <array>
#include <chrono>
#include <string>
#include <utility>

#include "app/button_bar.h"
#include "app/command_bars.h"
#include "app/command_table.h"
#include "app/file_commands.h"
#include "app/file_drop.h"
#include "app/frame_messages.h"
#include "app/frame_placement.h"
#include "app/help_window.h"
#include "app/level_bar.h"
#include "app/live_host.h"
#include "app/object_dock.h"
#include "app/pattern_face.h"
#include "app/recent_menu.h"
#include "app/settings_path.h"
#include "app/start_page.h"
#include "app/status_bar.h"
#include "figures/sirdmath.h"
#include "images/pattern_files.h"
#include "images/ui/figure_titles.h"
#include "images/ui/popup_hint.h"
#include "images/ui/welcome.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr int kMainBarPicture = 26;
constexpr int kPalettePicture = 20;
constexpr std::chrono::milliseconds kSettingsDelay{300};  // between a change and its writing

}  // namespace

TPlenoviaWnd::TPlenoviaWnd(const ProfileFile& settings, TWelcome* welcome)
    : state_(new ProgramState(this)),
      busy_(new BusyState(this)),
      desk_(new Desk(this)),
      status_(new TCStatusBar(this)),
      hint_(new PopupHint(this, [this](int command) { return commands_->Hint(command); })),
      context_{*this,
               *desk_,
               *state_,
               *busy_,
               *status_,
               *hint_,
               [this]() -> HelpWindow& { return Help(); },
               [this] { live_->Toggle(); },
               [this](int command) {
                 QMetaObject::invokeMethod(
                     this, [this, command] { commands_->Run(command); }, Qt::QueuedConnection);
               }},
      commands_(new CommandRouter(this, context_)),
      welcome_(welcome) {
  setObjectName(QStringLiteral("frame"));
  setWindowTitle(QStringLiteral("Plenovia"));
  setWindowIcon(NamedIcon(QStringLiteral("i1")));
  setCentralWidget(&desk_->Area());
  connect(desk_, &Desk::StateChanged, commands_, &CommandRouter::RefreshSoon);
  connect(&state_->clipboard, &ClipboardPictures::Changed, commands_, &CommandRouter::RefreshSoon);
  connect(state_, &ProgramState::PatternChanged, this, &TPlenoviaWnd::UpdatePatternButton);
  settingsDelay_.setSingleShot(true);
  settingsDelay_.setInterval(kSettingsDelay);
  connect(&settingsDelay_, &QTimer::timeout, this, &TPlenoviaWnd::SaveSettings);
  connect(commands_, &CommandRouter::CommandDone, &settingsDelay_, qOverload<>(&QTimer::start));
  connect(state_, &ProgramState::FilesChanged, &settingsDelay_, qOverload<>(&QTimer::start));
  connect(state_, &ProgramState::SettingsChanged, &settingsDelay_, qOverload<>(&QTimer::start));
  commands_->BuildMenus(*menuBar());
  AddRecentMenu(*menuBar(), commands_->Action(kCmOpen), context_);
  connect(busy_, &BusyState::Changed, this, &TPlenoviaWnd::ShowBusyState);
  connect(busy_, &BusyState::AllEnded, this, [this] {
    if (!leaves_) return;
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
  });
  // Windows that were opened before lie on the smaller desk too.
  PlaceFrame(*this, LoadFrameRect(settings), [this] { desk_->FitDocuments(); });
  if (LoadStartsMaximised(settings)) setWindowState(Qt::WindowMaximized);
  new FileDrop(
      *this, [this] { return commands_->IsAvailable(kCmOpen); },
      [this](const QString& path) { OpenByName(context_, path); });
  new StartPage(context_);
  live_ = new LiveHost(*this, context_, *commands_, settings);
  connect(live_, &LiveHost::Changed, &settingsDelay_, qOverload<>(&QTimer::start));
}

TPlenoviaWnd::~TPlenoviaWnd() {
  // Document windows still talk to the frame while they go.
  delete &desk_->Area();
  delete live_;
  delete help_;
  _UnloadFigureTitles();
}

void TPlenoviaWnd::InsertBars(int location) {
  const auto action = [this](int command) { return commands_->Action(command); };
  mainBar_ = new ButtonBar(this, kMainBarPicture);
  mainBar_->setObjectName(QStringLiteral("mainBar"));
  mainBar_->setWindowTitle(tr("Commands"));
  FillMainBar(*mainBar_, action);
  toolsPalette_ = new ButtonBar(this, kPalettePicture);
  toolsPalette_->setObjectName(QStringLiteral("toolsPalette"));
  toolsPalette_->setWindowTitle(tr("Tools"));
  FillToolsPalette(*toolsPalette_, action);
  levelBar_ = new LevelBar(this, *desk_, *busy_, *status_);
  addDockWidget(Qt::RightDockWidgetArea, new ObjectDock(this, *desk_));
  PlaceMainBar(location);
  setStatusBar(status_);
  connect(desk_, &Desk::ToolChanged, toolsPalette_, &ButtonBar::PressButton);
  for (ButtonBar* bar : {mainBar_, toolsPalette_}) {
    connect(bar, &ButtonBar::HintChanged, this,
            [this](const QString& hint) { status_->SetHint(hint); });
  }
}

void TPlenoviaWnd::PlaceMainBar(int location) {
  constexpr std::array kAreas{Qt::TopToolBarArea, Qt::LeftToolBarArea, Qt::RightToolBarArea};
  barLocation_ = location;
  const Qt::ToolBarArea area = kAreas[static_cast<std::size_t>(location)];
  const std::array<QToolBar*, 3> bars{mainBar_, toolsPalette_, levelBar_};
  for (QToolBar* bar : bars) removeToolBar(bar);
  addToolBar(area, mainBar_);
  // At the left each bar has a column of its own.
  if (area == Qt::LeftToolBarArea) addToolBarBreak(area);
  addToolBar(Qt::LeftToolBarArea, toolsPalette_);
  addToolBarBreak(Qt::LeftToolBarArea);
  addToolBar(Qt::LeftToolBarArea, levelBar_);
  for (ButtonBar* bar : {mainBar_, toolsPalette_}) bar->show();
  levelBar_->Follow();
}

void TPlenoviaWnd::SetupWindow(const ProfileFile& settings) {
  ShowBusyCursor(*this, true);
  BuildMathMenu();
  BuildWindowList();
  commands_->Refresh();
  show();
  LoadSettings(settings);
  state_->printer = std::make_unique<TPrinterInt>(QStringLiteral("PLENOVIA.EXE"));
  if (welcome_) welcome_->CloseAfterDelay();
  PostPrivateMessage(this, WM_UPDATESTATUS);
  busy_->SetProcessState(true);
  ShowBusyCursor(*this, false);
}

void TPlenoviaWnd::BuildMathMenu() {
  _InitFigureTitles();
  int command = kCmFirstFigure;
  for (const QString& title : FigureTitles()) commands_->AddFigure(*menuBar(), command++, title);
}

void TPlenoviaWnd::BuildWindowList() {
  QAction* cascade = commands_->Action(kCmCascade);
  for (QAction* top : menuBar()->actions()) {
    QMenu* menu = top->menu();
    if (menu == nullptr || !menu->actions().contains(cascade)) continue;
    const qsizetype commandCount = menu->actions().size();
    connect(menu, &QMenu::aboutToShow, this, [this, menu, commandCount] {
      while (menu->actions().size() > commandCount) delete menu->actions().constLast();
      const auto windows = desk_->Area().subWindowList();
      if (!windows.isEmpty()) menu->addSeparator();
      int number = 0;
      for (QMdiSubWindow* window : windows) {
        QString title = window->windowTitle();
        QAction* action = menu->addAction(
            QStringLiteral("&%1 %2").arg(++number).arg(title.replace(u'&', QStringLiteral("&&"))));
        action->setCheckable(true);
        action->setChecked(window == desk_->Area().currentSubWindow());
        connect(action, &QAction::triggered, window,
                [this, window] { desk_->Area().setActiveSubWindow(window); });
      }
    });
  }
}

void TPlenoviaWnd::LoadSettings(const ProfileFile& settings) {
  const int start = settings.GetInt("Patterns", "Select", 0);
  state_->patterns = OnDemand<TSirdPatt>([this, start] {
    TSirdPatt patterns =
        LoadPatterns(FindPatternFolders(ProgramFile()), start, [this](int done, int of, bool) {
          status_->SetMessage(tr("Loading Pattern No. %1").arg(done));
          status_->SetProgress(static_cast<int>(std::int64_t{done} * 100 / of));
        });
    status_->SetMessage({});
    status_->SetProgress(0);
    return patterns;
  });
  state_->lastFormat = settings.GetInt("GRAPHICS", "Format", 1);
  state_->saveFormat = settings.GetInt("GRAPHICS", "SaveFormat", state_->saveFormat);
  state_->keepsRecipes = settings.GetInt("GRAPHICS", "Recipes", 1) != 0;
  state_->settings = LoadSirdsSettings(settings);
  state_->recentFiles = RecentFiles::Load(settings);
  state_->newMapSize = NewMapSize::Load(settings);
  state_->openFolder = PathToQString(settings.GetText("Files", "Folder", ""));
  Q_EMIT state_->FilesChanged();
}

void TPlenoviaWnd::SaveSettings() {
  settingsDelay_.stop();
  auto file = ProfileFile::Load(SettingsPath());
  if (!file) return;
  const std::string before = file->Text();
  file->SetInt("Tools", "CntlBar", barLocation_);
  file->SetInt("GRAPHICS", "Format", state_->lastFormat);
  file->SetInt("GRAPHICS", "SaveFormat", state_->saveFormat);
  file->SetInt("GRAPHICS", "Recipes", state_->keepsRecipes ? 1 : 0);
  if (state_->patterns.IsMade()) {
    file->SetInt("Patterns", "Select", state_->patterns->GetCurrentNumber());
    file->SetInt("Patterns", "Count", state_->patterns->GetCount());
  }
  StoreSirdsSettings(state_->settings, *file);
  state_->recentFiles.Store(*file);
  state_->newMapSize.Store(*file);
  if (!state_->openFolder.isEmpty()) {
    file->SetText("Files", "Folder", ToPath(state_->openFolder).string());
  }
  live_->Store(*file);
  SaveFrameRect(*this, *file);
  // A file that cannot be written stays as it was; the next change tries again.
  if (file->Text() != before) static_cast<void>(file->Save(SettingsPath()));
}

HelpWindow& TPlenoviaWnd::Help() {
  if (!help_) help_ = new HelpWindow(nullptr);
  return *help_;
}

void TPlenoviaWnd::ShowBusyState() {
  menuBar()->actions().constFirst()->setEnabled(!busy_->IsBusy());
  commands_->Refresh();
}

void TPlenoviaWnd::LoadPatternsSoon() {
  painted_ = true;
  QTimer::singleShot(0, this, [this] {
    state_->patterns.get();
    UpdatePatternButton();
  });
}

void TPlenoviaWnd::UpdatePatternButton() {
  if (!state_->patterns.IsMade()) return;
  const auto pattern = state_->patterns->GetCurrentBitmap();
  if (!pattern) return;
  mainBar_->SetFace(kCmPatterns,
                    PatternFace(*pattern, QSize(kMainBarPicture, kMainBarPicture),
                                devicePixelRatioF(), palette().color(QPalette::Button)));
}

void TPlenoviaWnd::customEvent(QEvent* event) {
  if (event->type() == PrivateMessage::EventType()) {
    HandlePrivateMessage(context_, *static_cast<PrivateMessage*>(event));
  }
}

bool TPlenoviaWnd::event(QEvent* event) {
  if (event->type() == QEvent::StatusTip) {
    status_->SetHint(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
  }
  if (event->type() == QEvent::Paint && !painted_) LoadPatternsSoon();
  return QMainWindow::event(event);
}

void TPlenoviaWnd::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  settingsDelay_.start();
}

void TPlenoviaWnd::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  settingsDelay_.start();
}

void TPlenoviaWnd::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) settingsDelay_.start();
  if (mainBar_ != nullptr && event->type() == QEvent::PaletteChange) UpdatePatternButton();
}

void TPlenoviaWnd::closeEvent(QCloseEvent* event) {
  if (!leaves_ && !desk_->AllMayClose()) {
    event->ignore();
    return;
  }
  if (busy_->HasOperations()) {
    // The frame closes when the operations have ended.
    leaves_ = true;
    SendPrivateMessage(this, PrivateMessage(WM_STOPPROCESS, kStopAllProcesses));
    event->ignore();
    return;
  }
  if (help_) help_->CloseHelp();
  SaveSettings();
  event->accept();
}

}  // namespace plenovia
