// The dock with the list of the active depth map's objects.
#pragma once

#include <QDockWidget>

namespace plenovia {

struct CommandContext;
class Desk;
class ObjectList;

class ObjectDock : public QDockWidget {
  Q_OBJECT

 public:
  // Hidden at first. `desk` outlives it.
  ObjectDock(QWidget* frame, Desk& desk);

 private:
  void Follow();

  Desk& desk_;
  ObjectList* list_;
};

// Shows the dock, or hides it.
void CmObjectList(CommandContext& context);

}  // namespace plenovia
