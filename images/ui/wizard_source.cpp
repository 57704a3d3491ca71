#include "images/ui/wizard_source.h"

#include "images/ui/figure_titles.h"
#include "platform/profile_file.h"

namespace plenovia {

namespace {

constexpr char kSection[] = "wizard";
constexpr char kType[] = "source_type";
constexpr char kFigure[] = "figure";
constexpr char kName[] = "source_name";

}  // namespace

WizardSource LoadWizardSource(const std::filesystem::path& settingsFile) {
  const ProfileFile profile = ProfileFile::Load(settingsFile).value_or(ProfileFile());
  WizardSource source;
  const int type = profile.GetInt(kSection, kType, source.type);
  if (type == kBitmapSource || type == kDepthMapSource) source.type = type;
  const int figure = profile.GetInt(kSection, kFigure, source.figure);
  if (!FigureTitle(figure).isEmpty()) source.figure = figure;
  const std::string title = FigureTitle(source.figure).toStdString();
  source.name = QString::fromStdString(profile.GetText(kSection, kName, title));
  return source;
}

void StoreWizardSource(const WizardSource& source, const std::filesystem::path& settingsFile) {
  auto profile = ProfileFile::Load(settingsFile);
  if (!profile) return;
  profile->SetInt(kSection, kType, source.type);
  profile->SetInt(kSection, kFigure, source.figure);
  profile->SetText(kSection, kName, source.name.toStdString());
  // The wizard goes on without settings that can be kept.
  static_cast<void>(profile->Save(settingsFile));
}

}  // namespace plenovia
