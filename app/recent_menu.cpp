#include "app/recent_menu.h"

#include <QDir>
#include <QFontMetrics>
#include <QMenu>

#include "app/command_context.h"
#include "app/file_commands.h"
#include "app/program_state.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr int kWidestEntry = 420;

// The path as a menu shows it, below the user's home with "~".
QString ShownPath(const QString& path, const QFontMetrics& font) {
  const QString home = QDir::homePath() + u'/';
  const QString text = path.startsWith(home) ? QStringLiteral("~/") + path.mid(home.size()) : path;
  return font.elidedText(text, Qt::ElideMiddle, kWidestEntry).replace(u'&', QStringLiteral("&&"));
}

void Fill(QMenu& menu, CommandContext& context) {
  menu.clear();
  int number = 0;
  for (const auto& file : context.state.recentFiles.Existing()) {
    const QString path = PathToQString(file);
    ++number;
    const QString digit =
        number < 10 ? QStringLiteral("&%1").arg(number) : QStringLiteral("%1&0").arg(number / 10);
    QAction* action = menu.addAction(digit + u' ' + ShownPath(path, menu.fontMetrics()));
    action->setStatusTip(path);
    QObject::connect(action, &QAction::triggered, &menu,
                     [&context, path] { OpenByName(context, path); });
  }
  menu.menuAction()->setEnabled(number > 0);
}

}  // namespace

void AddRecentMenu(QMenuBar& bar, QAction* open, CommandContext& context) {
  for (QAction* top : bar.actions()) {
    QMenu* menu = top->menu();
    if (menu == nullptr) continue;
    const qsizetype place = menu->actions().indexOf(open);
    if (place < 0) continue;
    auto* recent = new QMenu(Commands::tr("Open R&ecent"), menu);
    recent->setObjectName(QStringLiteral("recentFiles"));
    recent->menuAction()->setStatusTip(Commands::tr("Open one of the files used last"));
    menu->insertMenu(menu->actions().value(place + 1), recent);
    QObject::connect(menu, &QMenu::aboutToShow, recent,
                     [recent, &context] { Fill(*recent, context); });
  }
}

}  // namespace plenovia
