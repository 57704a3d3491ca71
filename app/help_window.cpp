#include "app/help_window.h"

#include <QAction>
#include <QLineEdit>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QToolBar>
#include <algorithm>

#include "app/help_browser.h"
#include "platform/ui/resource_pictures.h"

namespace plenovia {

namespace {

constexpr int kLeastWidth = 820;  // the drawings fit in

QUrl IndexAddress() {
  return HelpAddress(QStringLiteral("index.html"));
}

QStringList Words(const QString& text) {
  return text.simplified().split(u' ', Qt::SkipEmptyParts);
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QMainWindow(parent, Qt::Window), pages_(LoadHelpPages()) {
  setObjectName(QStringLiteral("help"));
  setWindowTitle(tr("Plenovia Help"));
  setWindowIcon(NamedIcon(QStringLiteral("i1")));
  auto* halves = new QSplitter(this);
  found_ = new QListWidget(halves);
  found_->setObjectName(QStringLiteral("found"));
  found_->hide();
  browser_ = new HelpBrowser(halves);
  browser_->setObjectName(QStringLiteral("page"));
  halves->addWidget(found_);
  halves->addWidget(browser_);
  halves->setStretchFactor(1, 1);
  halves->setChildrenCollapsible(false);
  setCentralWidget(halves);
  BuildToolBar();
  resize(std::max(kLeastWidth, fontMetrics().averageCharWidth() * 120),
         fontMetrics().height() * 46);

  connect(browser_, &QTextBrowser::sourceChanged, this, [this] {
    setWindowTitle(browser_->documentTitle());
    browser_->MarkWords({});
  });
  connect(found_, &QListWidget::itemClicked, this, &HelpWindow::OpenFound);
  connect(found_, &QListWidget::itemActivated, this, &HelpWindow::OpenFound);
  auto* escape = new QShortcut(Qt::Key_Escape, this);
  connect(escape, &QShortcut::activated, this, &HelpWindow::CloseHelp);
}

void HelpWindow::BuildToolBar() {
  QToolBar* bar = addToolBar(tr("Help"));
  bar->setObjectName(QStringLiteral("bar"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);

  QAction* back = bar->addAction(style()->standardIcon(QStyle::SP_ArrowBack), tr("Back"));
  back->setShortcuts(QKeySequence::Back);
  back->setEnabled(false);
  connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);

  QAction* forward = bar->addAction(style()->standardIcon(QStyle::SP_ArrowForward), tr("Forward"));
  forward->setShortcuts(QKeySequence::Forward);
  forward->setEnabled(false);
  connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
  connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

  QAction* contents = bar->addAction(style()->standardIcon(QStyle::SP_DirHomeIcon), tr("Contents"));
  contents->setShortcut(Qt::ALT | Qt::Key_Home);
  connect(contents, &QAction::triggered, this, [this] { Open(IndexAddress()); });

  bar->addSeparator();
  search_ = new QLineEdit(bar);
  search_->setObjectName(QStringLiteral("search"));
  search_->setPlaceholderText(tr("Search in all pages"));
  search_->setClearButtonEnabled(true);
  bar->addWidget(search_);
  connect(search_, &QLineEdit::textChanged, this, &HelpWindow::Search);
  connect(search_, &QLineEdit::returnPressed, this, [this] { OpenFound(found_->item(0)); });
  auto* find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, search_, qOverload<>(&QWidget::setFocus));
}

void HelpWindow::ShowIndex() {
  Open(IndexAddress());
}

void HelpWindow::ShowTopic(const QString& keyword) {
  const HelpPage* page = FindTopic(pages_, keyword);
  if (!page) search_->setText(keyword);
  Open(page ? page->address : IndexAddress());
}

void HelpWindow::CloseHelp() {
  close();
}

void HelpWindow::Open(const QUrl& address) {
  browser_->setSource(address);
  browser_->setFocus();
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void HelpWindow::Search(const QString& text) {
  const QStringList words = Words(text);
  found_->clear();
  for (const HelpPage* page : SearchPages(pages_, words)) {
    auto* item = new QListWidgetItem(page->title, found_);
    item->setData(Qt::UserRole, page->address);
  }
  if (found_->count() == 0) {
    auto* none = new QListWidgetItem(tr("No page holds these words."), found_);
    none->setFlags(Qt::NoItemFlags);
  }
  found_->setVisible(!words.isEmpty());
}

void HelpWindow::OpenFound(const QListWidgetItem* item) {
  if (!item || !item->data(Qt::UserRole).isValid()) return;
  browser_->setSource(item->data(Qt::UserRole).toUrl());
  browser_->MarkWords(Words(search_->text()));
}

}  // namespace plenovia
