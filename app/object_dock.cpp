#include "app/object_dock.h"

#include "app/command_context.h"
#include "app/desk.h"
#include "depthmap/ui/object_list.h"

namespace plenovia {

ObjectDock::ObjectDock(QWidget* frame, Desk& desk)
    : QDockWidget(tr("Object List"), frame), desk_(desk), list_(new ObjectList) {
  setObjectName(QStringLiteral("objectDock"));
  setWidget(list_);
  hide();
  connect(&desk, &Desk::StateChanged, this, &ObjectDock::Follow);
}

void ObjectDock::Follow() {
  list_->SetMap(qobject_cast<TMapWindow*>(desk_.Active()));
}

void CmObjectList(CommandContext& context) {
  auto* dock = context.frame.findChild<ObjectDock*>();
  if (dock != nullptr) dock->setVisible(!dock->isVisible());
}

}  // namespace plenovia
