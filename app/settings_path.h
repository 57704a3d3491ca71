// Where the settings file lies.
#pragma once

#include <filesystem>

namespace plenovia {

// "plenovia/PLENOVIA.INI" in the user's configuration folder ($XDG_CONFIG_HOME). The folder is made
// when it is not there.
std::filesystem::path SettingsPath();

}  // namespace plenovia
