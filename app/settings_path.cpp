#include "app/settings_path.h"

#include <QStandardPaths>

#include "platform/ui/text.h"

namespace plenovia {

std::filesystem::path SettingsPath() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  return ToPath(folder) / "plenovia" / "PLENOVIA.INI";
}

}  // namespace plenovia
