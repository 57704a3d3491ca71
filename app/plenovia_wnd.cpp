#include "app/plenovia_wnd.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QMenuBar>
#include <QStatusTipEvent>
#include <QStyle>
#include <array>
#include <utility>

#include "app/button_bar.h"
#include "app/command_bars.h"
#include "app/command_table.h"
#include "app/file_drop.h"
#include "app/frame_messages.h"
#include "app/frame_placement.h"
#include "app/help_window.h"
#include "app/pattern_face.h"
#include "app/settings_path.h"
#include "app/status_bar.h"
#include "depthmap/ui/map_window.h"
#include "engine/ui/sirds_wnd.h"
#include "figures/sirdmath.h"
#include "images/pattern_files.h"
#include "images/ui/color_wnd.h"
#include "images/ui/figure_titles.h"
#include "images/ui/popup_hint.h"
#include "images/ui/printer_int.h"
#include "images/ui/welcome.h"
#include "platform/ui/private_message.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kMainBarPicture = 26;
constexpr int kPalettePicture = 20;
constexpr int kCascadedWindows = 8;  // before the next one is at the top left again

}  // namespace

TPlenoviaWnd::TPlenoviaWnd(const ProfileFile& settings, TWelcome* welcome)
    : area_(new QMdiArea(this)), commands_(new CommandRouter(*this)), welcome_(welcome) {
  setObjectName(QStringLiteral("frame"));
  setWindowTitle(QStringLiteral("Plenovia"));
  setWindowIcon(NamedIcon(QStringLiteral("i1")));
  area_->setObjectName(QStringLiteral("documents"));
  area_->setBackground(QColor(192, 192, 192));
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  setCentralWidget(area_);
  connect(area_, &QMdiArea::subWindowActivated, commands_, &CommandRouter::RefreshSoon);
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, commands_,
          &CommandRouter::RefreshSoon);
  commands_->BuildMenus(*menuBar());
  if (LoadStartsMaximised(settings)) {
    setWindowState(Qt::WindowMaximized);
  } else {
    PlaceFrame(*this, LoadFrameRect(settings));
  }
  new FileDrop(*this);
  hint_ = new PopupHint(this, [this](int command) { return commands_->Hint(command); });
}

TPlenoviaWnd::~TPlenoviaWnd() {
  // Document windows still talk to the frame while they go.
  delete area_;
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
  PlaceMainBar(location);
  status_ = new TCStatusBar(this);
  setStatusBar(status_);
  for (ButtonBar* bar : {mainBar_, toolsPalette_}) {
    connect(bar, &ButtonBar::HintChanged, this,
            [this](const QString& hint) { status_->SetHint(hint); });
  }
}

void TPlenoviaWnd::PlaceMainBar(int location) {
  constexpr std::array kAreas{Qt::TopToolBarArea, Qt::LeftToolBarArea, Qt::RightToolBarArea};
  barLocation_ = location;
  const Qt::ToolBarArea area = kAreas[static_cast<std::size_t>(location)];
  for (ButtonBar* bar : {mainBar_, toolsPalette_}) removeToolBar(bar);
  addToolBar(area, mainBar_);
  // At the left each bar has a column of its own.
  if (area == Qt::LeftToolBarArea) addToolBarBreak(area);
  addToolBar(Qt::LeftToolBarArea, toolsPalette_);
  for (ButtonBar* bar : {mainBar_, toolsPalette_}) bar->show();
}

void TPlenoviaWnd::SetupWindow(const ProfileFile& settings) {
  SetBusyCursor(true);
  BuildMathMenu();
  BuildWindowList();
  commands_->Refresh();
  show();
  LoadSettings(settings);
  printer_ = std::make_unique<TPrinterInt>(QStringLiteral("PLENOVIA.EXE"));
  if (welcome_) welcome_->CloseAfterDelay();
  UpdatePatternButton();
  PostPrivateMessage(this, WM_UPDATESTATUS);
  SetProcessState(true);
  SetBusyCursor(false);
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
      const auto windows = area_->subWindowList();
      if (!windows.isEmpty()) menu->addSeparator();
      int number = 0;
      for (QMdiSubWindow* window : windows) {
        QString title = window->windowTitle();
        QAction* action = menu->addAction(
            QStringLiteral("&%1 %2").arg(++number).arg(title.replace(u'&', QStringLiteral("&&"))));
        action->setCheckable(true);
        action->setChecked(window == area_->currentSubWindow());
        connect(action, &QAction::triggered, window,
                [this, window] { area_->setActiveSubWindow(window); });
      }
    });
  }
}

void TPlenoviaWnd::LoadSettings(const ProfileFile& settings) {
  const int start = settings.GetInt("Patterns", "Select", 0);
  const int count = settings.GetInt("Patterns", "Count", 20);
  const auto folder = FindPatternFolder(ProgramFile());
  status_->repaint();
  patterns_ = std::make_unique<TSirdPatt>(
      LoadPatterns(folder.value_or("sirdspat"), UserPatternFolder(), start, count,
                   [this](int done, int of, bool loaded) {
                     status_->SetMessage(tr("Loading Pattern No. %1").arg(done));
                     if (!loaded && welcome_) welcome_->close();
                     status_->SetProgress(static_cast<int>(std::int64_t{done} * 100 / of));
                   }));
  status_->SetMessage({});
  status_->SetProgress(0);
  lastFormat_ = settings.GetInt("GRAPHICS", "Format", 1);
  settings_ = LoadSirdsSettings(settings);
}

void TPlenoviaWnd::SaveSettings(ProfileFile& settings) const {
  settings.SetInt("Tools", "CntlBar", barLocation_);
  settings.SetInt("GRAPHICS", "Format", lastFormat_);
  settings.SetInt("Patterns", "Select", patterns_->GetCurrentIndex());
  settings.SetInt("Patterns", "Count", patterns_->GetCount());
  StoreSirdsSettings(settings_, settings);
  SaveFrameRect(*this, settings);
}

HelpWindow& TPlenoviaWnd::Help() {
  if (!help_) help_ = new HelpWindow(nullptr);
  return *help_;
}

TColorWnd* TPlenoviaWnd::ColourTable() const {
  return colourTable_;
}

void TPlenoviaWnd::SetColourTable(TColorWnd* window) {
  colourTable_ = window;
}

TMouseWnd* TPlenoviaWnd::GetActiveChild() const {
  return qobject_cast<TMouseWnd*>(area_->currentSubWindow());
}

TSirdsWnd* TPlenoviaWnd::ActivePicture() const {
  return qobject_cast<TSirdsWnd*>(GetActiveChild());
}

void TPlenoviaWnd::Adopt(TMouseWnd& window) {
  connect(&window, &TMouseWnd::StateChanged, commands_, &CommandRouter::RefreshSoon);
  if (auto* map = qobject_cast<TMapWindow*>(&window)) {
    connect(map, &TMapWindow::ToolChanged, toolsPalette_, &ButtonBar::PressButton);
  }
  CascadeNext(window);
  window.show();
  area_->setActiveSubWindow(&window);
}

void TPlenoviaWnd::CascadeNext(QMdiSubWindow& window) {
  if (area_->subWindowList().size() <= 1) cascaded_ = 0;
  const int step = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window) + 4;
  window.move(QPoint(step, step) * cascaded_);
  cascaded_ = (cascaded_ + 1) % kCascadedWindows;
}

void TPlenoviaWnd::SetProcessState(bool enabled) {
  busy_ = !enabled;
  menuBar()->actions().constFirst()->setEnabled(enabled);
  commands_->Refresh();
}

void TPlenoviaWnd::OperationBegins() {
  ++operations_;
  SetProcessState(false);
}

void TPlenoviaWnd::OperationEnds() {
  --operations_;
  SetProcessState(operations_ == 0);
  if (operations_ == 0 && std::exchange(closesAfterOperation_, false)) {
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
  }
}

void TPlenoviaWnd::SetBusyCursor(bool busy) {
  setCursor(CursorById(busy ? kBusyCursor : kNormalCursor, devicePixelRatioF()));
}

void TPlenoviaWnd::RepaintAll() {
  repaint();
  area_->viewport()->repaint();
}

void TPlenoviaWnd::UpdatePatternButton() {
  const auto pattern = patterns_ ? patterns_->GetCurrentBitmap() : nullptr;
  if (!pattern) return;
  mainBar_->SetFace(kCmPatterns,
                    PatternFace(*pattern, QSize(kMainBarPicture, kMainBarPicture),
                                devicePixelRatioF(), palette().color(QPalette::Button)));
}

void TPlenoviaWnd::customEvent(QEvent* event) {
  if (event->type() == PrivateMessage::EventType()) {
    HandlePrivateMessage(*this, *static_cast<PrivateMessage*>(event));
  }
}

bool TPlenoviaWnd::event(QEvent* event) {
  if (event->type() == QEvent::StatusTip && status_ != nullptr) {
    status_->SetHint(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
  }
  return QMainWindow::event(event);
}

void TPlenoviaWnd::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (mainBar_ != nullptr && event->type() == QEvent::PaletteChange) UpdatePatternButton();
}

bool TPlenoviaWnd::AllMayClose() {
  QList<QPointer<QMdiSubWindow>> windows;
  for (QMdiSubWindow* window : area_->subWindowList()) windows << window;
  for (const auto& window : windows) {
    auto* document = qobject_cast<TMouseWnd*>(window);
    // A window may have closed while another one asked.
    if (document == nullptr || !area_->subWindowList().contains(document)) continue;
    area_->setActiveSubWindow(document);
    if (!document->CanClose()) return false;
  }
  return true;
}

void TPlenoviaWnd::CloseDocuments() {
  for (QMdiSubWindow* window : area_->subWindowList()) {
    if (auto* document = qobject_cast<TMouseWnd*>(window)) document->CloseUnasked();
  }
}

void TPlenoviaWnd::closeEvent(QCloseEvent* event) {
  if (operations_ > 0) {
    // The request stops the operation; the frame closes when it has ended.
    closesAfterOperation_ = true;
    event->ignore();
    return;
  }
  if (!AllMayClose()) {
    event->ignore();
    return;
  }
  if (help_) help_->CloseHelp();
  auto settings = ProfileFile::Load(SettingsPath());
  if (settings && patterns_) {
    SaveSettings(*settings);
    // There is nobody left to tell that it could not be written.
    static_cast<void>(settings->Save(SettingsPath()));
  }
  event->accept();
}

}  // namespace plenovia
