// The way through the pages of the stereogram wizard.
#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

#include "engine/scan_method.h"
#include "engine/sirds_settings.h"
#include "images/sird_patt.h"
#include "images/ui/wizard_source.h"

namespace plenovia {

struct SourceLevels {
  LevelRange levels;
  SourceKind kind;
};
// Nothing for a source that cannot be read.
using LevelsFinder = std::function<std::optional<SourceLevels>(const WizardSource&)>;

struct WizardChoice : WizardSource {
  bool rangeTyped = false;  // the depth range is not the one that its page offered
};

// Shows the pages, modal over `owner`, until the last one is done or one is cancelled. Done: size,
// depth range and scan method are in `settings`, the chosen pattern is current, and what the
// stereogram is to be made from comes back. Cancelled: `settings` and the current pattern are as
// before, and nothing comes back. The source is kept in the settings file from run to run.
//
// Where the range of `settings` does not show all levels that `levels` finds in the source, and
// the settings let it be fitted, the page offers a fitted range. One that stays as offered does not
// come into `settings`: the run fits it to the scan method that is chosen last.
std::optional<WizardChoice> RunWizard(QWidget* owner, TSirdsSettings& settings, TSirdPatt& library,
                                      const std::filesystem::path& settingsFile,
                                      const LevelsFinder& levels);

}  // namespace plenovia
