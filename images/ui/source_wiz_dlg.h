// The wizard's first page: what the stereogram is made from.
#pragma once

#include <QLineEdit>
#include <QRadioButton>
#include <array>
#include <filesystem>
#include <optional>

#include "images/ui/wizard_dlg.h"
#include "images/ui/wizard_source.h"

namespace plenovia {

// A click on a kind of source at once asks for one. When that is cancelled, all is as before the
// click.
class SourceWizDlg : public WizardDlg {
  Q_OBJECT

 public:
  // "Next >" stores the choice in the settings file. When the source is a file that cannot be read
  // it tells so, and the page stays.
  SourceWizDlg(QWidget* parent, const WizardSource& source,
               const std::filesystem::path& settingsFile);

  const WizardSource& Source() const { return source_; }

 protected:
  bool OnNext() override;

 private:
  void CheckType();
  void Choose(WizardSourceType type);
  // The name of the source that the user chooses.
  std::optional<QString> Ask(WizardSourceType type);
  std::optional<QString> AskFigure();
  // Why the file of that name cannot be a source; empty when it can be read.
  static QString Obstacle(const QString& file);

  WizardSource source_;
  const std::filesystem::path settingsFile_;
  std::array<QRadioButton*, 3> types_;
  QLineEdit* name_;
};

}  // namespace plenovia
