#include "app/command_router.h"

#include <QCoreApplication>
#include <QMenu>
#include <utility>

#include "app/command_context.h"
#include "app/command_table.h"
#include "app/desk.h"
#include "app/sirds_commands.h"

namespace plenovia {

namespace {

constexpr int kMenusLookedAt = 20;

QString Translated(const char* text) {
  return QCoreApplication::translate("Commands", text);
}

const CommandRow* RowOf(int command) {
  for (const CommandRow& row : CommandTable()) {
    if (row.number == command) return &row;
  }
  return nullptr;
}

}  // namespace

CommandRouter::CommandRouter(QObject* parent, CommandContext& context)
    : QObject(parent), context_(context) {
  for (const CommandRow& row : CommandTable()) {
    if (row.number != 0) Add(row.number, Translated(row.text), Translated(row.hint));
  }
  GiveKeys();
}

void CommandRouter::GiveKeys() {
  std::map<QString, int> owners;
  for (const CommandRow& row : CommandTable()) {
    if (row.keys == nullptr) continue;
    const QString keys = QString::fromLatin1(row.keys);
    if (!owners.contains(keys) || IsAvailable(row.number)) owners[keys] = row.number;
  }
  for (const CommandRow& row : CommandTable()) {
    if (row.keys == nullptr) continue;
    const QString keys = QString::fromLatin1(row.keys);
    const auto shortcuts =
        owners[keys] == row.number ? QKeySequence::listFromString(keys) : QList<QKeySequence>();
    if (Action(row.number)->shortcuts() != shortcuts) {
      Action(row.number)->setShortcuts(shortcuts);
    }
  }
}

QAction* CommandRouter::Add(int command, const QString& text, const QString& hint) {
  auto* action = new QAction(text, this);
  action->setObjectName(QStringLiteral("command%1").arg(command));
  action->setData(command);
  action->setStatusTip(hint);
  action->setMenuRole(QAction::NoRole);
  connect(action, &QAction::triggered, this, [this, command] { Run(command); });
  actions_[command] = action;
  return action;
}

void CommandRouter::BuildMenus(QMenuBar& bar) {
  const char* title = nullptr;
  QMenu* menu = nullptr;
  for (const CommandRow& row : CommandTable()) {
    if (row.menu == nullptr) continue;
    if (menu == nullptr || row.menu != title) {
      title = row.menu;
      menu = bar.addMenu(Translated(title));
      connect(menu, &QMenu::aboutToShow, this, &CommandRouter::Refresh);
    }
    if (row.number == 0) {
      menu->addSeparator();
    } else {
      menu->addAction(Action(row.number));
    }
  }
}

void CommandRouter::AddFigure(QMenuBar& bar, int command, const QString& title) {
  const QList<QAction*> tops = bar.actions();
  for (qsizetype i = 0; i < tops.size() && i < kMenusLookedAt; ++i) {
    if (tops[i]->text() != Translated("&Math SIRDS") || tops[i]->menu() == nullptr) continue;
    tops[i]->menu()->addAction(Add(command, title, QString()));
    return;
  }
}

QAction* CommandRouter::Action(int command) const {
  const auto found = actions_.find(command);
  return found != actions_.end() ? found->second : nullptr;
}

QString CommandRouter::Hint(int command) const {
  const QAction* action = Action(command);
  if (action == nullptr || action->statusTip().isEmpty()) return {};
  const QString key = action->shortcut().toString(QKeySequence::NativeText);
  return key.isEmpty() ? action->statusTip()
                       : QStringLiteral("%1 (%2)").arg(action->statusTip(), key);
}

void CommandRouter::SetApplicationCommand(int command, std::function<void()> handler) {
  applicationCommands_[command] = std::move(handler);
}

void CommandRouter::Run(int command) {
  Document* active = context_.desk.Active();
  const CommandRow* row = RowOf(command);
  const auto application = applicationCommands_.find(command);
  if (active != nullptr && active->HandlesCommand(command)) {
    active->RunCommand(command);
  } else if (row != nullptr && row->handler != nullptr) {
    row->handler(context_);
  } else if (IsFigureCommand(command)) {
    CmFigure(context_, command);
  } else if (application != applicationCommands_.end()) {
    application->second();
  }
  Q_EMIT CommandDone(command);
  RefreshSoon();
}

bool CommandRouter::IsAvailable(int command) const {
  const CommandRow* row = RowOf(command);
  if (row != nullptr && row->enabler != nullptr && !row->enabler(context_)) return false;
  const Document* active = context_.desk.Active();
  if (active != nullptr && active->HandlesCommand(command)) return active->CommandEnabled(command);
  return (row != nullptr && row->handler != nullptr) || IsFigureCommand(command) ||
         applicationCommands_.contains(command);
}

void CommandRouter::Refresh() {
  refreshWaits_ = false;
  for (const auto& [command, action] : actions_) action->setEnabled(IsAvailable(command));
  for (const int command : {kCmUndo, kCmRedo}) Action(command)->setText(TextOf(command));
  GiveKeys();
}

QString CommandRouter::TextOf(int command) const {
  const QString text = Translated(RowOf(command)->text);
  const Document* active = context_.desk.Active();
  const QString subject = active != nullptr ? active->CommandSubject(command) : QString();
  return subject.isEmpty() ? text : QStringLiteral("%1 %2").arg(text, subject);
}

void CommandRouter::RefreshSoon() {
  if (std::exchange(refreshWaits_, true)) return;
  QMetaObject::invokeMethod(this, &CommandRouter::Refresh, Qt::QueuedConnection);
}

}  // namespace plenovia
