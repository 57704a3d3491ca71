#include "app/map_commands.h"

#include <QPointer>

#include "app/command_context.h"
#include "app/desk.h"
#include "app/program_state.h"
#include "depthmap/ui/map_size_dialog.h"
#include "depthmap/ui/map_window.h"

namespace plenovia {

void CmMapSize(CommandContext& context) {
  const QPointer<TMapWindow> map = qobject_cast<TMapWindow*>(context.desk.Active());
  if (!map) return;
  const DepthMapInfo info = map->GetBitmapInfo();
  MapSizeDialog dialog(&context.frame, {info.width, info.height});
  if (dialog.exec() != QDialog::Accepted || !map) return;
  map->SetMapSize(dialog.Chosen());
  context.state.newMapSize.Choose(dialog.Chosen(), context.state.settings);
  Q_EMIT context.state.SettingsChanged();
}

}  // namespace plenovia
