// Commands on their way: from a menu item or button to whoever carries it out.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>
#include <functional>
#include <map>

namespace plenovia {

struct CommandContext;

// Holds one action a command; its data is the command's number, its status tip the hint. A command
// goes to the active document window, then to the frame, then to the application: the first that
// handles it runs it. It is available when one of them handles it and its enabler agrees.
class CommandRouter : public QObject {
  Q_OBJECT

 public:
  // `context` outlives it.
  CommandRouter(QObject* parent, CommandContext& context);

  // Fills the bar with the menus of the command table.
  void BuildMenus(QMenuBar& bar);
  // Adds a figure's command to the menu "&Math SIRDS", when there is such a menu in the bar.
  void AddFigure(QMenuBar& bar, int command, const QString& title);

  // The action of a command, or null.
  QAction* Action(int command) const;
  // What the command does and its key, for the user.
  QString Hint(int command) const;

  // The application's command.
  void SetApplicationCommand(int command, std::function<void()> handler);

  void Run(int command);
  bool IsAvailable(int command) const;
  // Updates the actions to what is available, at once or when the events are handled.
  void Refresh();
  void RefreshSoon();

 Q_SIGNALS:
  // A command was carried out.
  void CommandDone(int command);

 private:
  // The text of a command's row, with what the active window says that it is about.
  QString TextOf(int command) const;
  void GiveKeys();
  QAction* Add(int command, const QString& text, const QString& hint);

  CommandContext& context_;
  std::map<int, QAction*> actions_;
  std::map<int, std::function<void()>> applicationCommands_;
  bool refreshWaits_ = false;
};

}  // namespace plenovia
