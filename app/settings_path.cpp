#include "app/settings_path.h"

#include <QStandardPaths>
#include <system_error>

#include "platform/ui/text.h"

namespace plenovia {

std::filesystem::path SettingsPath() {
  const QString config = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
  const std::filesystem::path folder = ToPath(config) / "plenovia";
  // Without the folder, reading finds nothing and writing fails: both are told there.
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return folder / "PLENOVIA.INI";
}

}  // namespace plenovia
