#include "engine/ui/wizard_run.h"

#include "engine/ui/algo_wiz_dlg.h"
#include "engine/ui/sett_wiz_dlg.h"
#include "images/ui/patt_wiz_dlg.h"
#include "images/ui/source_wiz_dlg.h"

namespace plenovia {

namespace {

enum class State { kCancelled, kSource, kSize, kPattern, kScanMethod, kDone };

State After(int result, State next, State back) {
  if (result == WizardDlg::kNext) return next;
  return result == WizardDlg::kBack ? back : State::kCancelled;
}

class Run {
 public:
  Run(QWidget* owner, TSirdsSettings& settings, TSirdPatt& library,
      const std::filesystem::path& settingsFile)
      : owner_(owner),
        settings_(settings),
        library_(library),
        settingsFile_(settingsFile),
        source_(LoadWizardSource(settingsFile)) {}

  const WizardSource& Source() const { return source_; }

  // Shows the page of a state, takes over what was chosen there when it ends with "Next >", and
  // gives the state that follows.
  State Step(State state) {
    switch (state) {
      case State::kSource:
        return ChooseSource();
      case State::kSize:
        return ChooseSize();
      case State::kPattern:
        return ChoosePattern();
      case State::kScanMethod:
        return ChooseScanMethod();
      case State::kCancelled:
      case State::kDone:
        break;
    }
    return state;
  }

 private:
  State ChooseSource() {
    SourceWizDlg page(owner_, source_, settingsFile_);
    const State next = After(page.exec(), State::kSize, State::kCancelled);
    if (next == State::kSize) source_ = page.Source();
    return next;
  }
  State ChooseSize() {
    SettWizDlg page(owner_, settings_);
    const State next = After(page.exec(), State::kPattern, State::kSource);
    if (next == State::kPattern) settings_ = page.Settings();
    return next;
  }
  State ChoosePattern() {
    PattWizDlg page(owner_, library_);
    const State next = After(page.exec(), State::kScanMethod, State::kSize);
    if (next == State::kScanMethod) library_.SelectPattern(page.Shown());
    return next;
  }
  State ChooseScanMethod() {
    AlgoWizDlg page(owner_, settings_);
    const State next = After(page.exec(), State::kDone, State::kPattern);
    if (next == State::kDone) settings_ = page.Settings();
    return next;
  }

  QWidget* owner_;
  TSirdsSettings& settings_;
  TSirdPatt& library_;
  const std::filesystem::path& settingsFile_;
  WizardSource source_;
};

}  // namespace

std::optional<WizardSource> RunWizard(QWidget* owner, TSirdsSettings& settings, TSirdPatt& library,
                                      const std::filesystem::path& settingsFile) {
  const TSirdsSettings savedSettings = settings;
  const int savedPattern = library.GetCurrentIndex();
  Run run(owner, settings, library, settingsFile);
  State state = State::kSource;
  while (state != State::kCancelled && state != State::kDone) state = run.Step(state);
  if (state == State::kDone) return run.Source();
  settings = savedSettings;
  library.SelectPattern(savedPattern);
  return std::nullopt;
}

}  // namespace plenovia
