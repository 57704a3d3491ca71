// The way through the pages of the stereogram wizard.
#pragma once

#include <QWidget>
#include <filesystem>
#include <optional>

#include "engine/sirds_settings.h"
#include "images/sird_patt.h"
#include "images/ui/wizard_source.h"

namespace plenovia {

// Shows the pages, modal over `owner`, until the last one is done or one is cancelled. Done: size,
// depth range and scan method are in `settings`, the chosen pattern is current, and what the
// stereogram shall be made from comes back. Cancelled: `settings` and the current pattern are as
// before, and nothing comes back. The source is kept in the settings file from run to run.
std::optional<WizardSource> RunWizard(QWidget* owner, TSirdsSettings& settings, TSirdPatt& library,
                                      const std::filesystem::path& settingsFile);

}  // namespace plenovia
