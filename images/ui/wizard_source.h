// What the wizard makes a stereogram from.
#pragma once

#include <QString>
#include <filesystem>

namespace plenovia {

enum WizardSourceType { kBitmapSource = 1, kDepthMapSource = 2, kFigureSource = 3 };

struct WizardSource {
  int type = kFigureSource;
  QString name;    // the path of the file as it was typed or chosen, or the figure's title
  int figure = 0;  // the figure chosen last, also when the source is a file
};

// Section "wizard" of a settings file. What is missing there, or makes no sense, is the first
// figure.
WizardSource LoadWizardSource(const std::filesystem::path& settingsFile);
// Leaves the rest of the file as it is. A file that cannot be read or written stays without it.
void StoreWizardSource(const WizardSource& source, const std::filesystem::path& settingsFile);

}  // namespace plenovia
