#include "engine/ui/wizard_run.h"

#include <QPoint>
#include <QSize>

#include "engine/fit_depth_range.h"
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
      const std::filesystem::path& settingsFile, const LevelsFinder& levels)
      : owner_(owner),
        settings_(settings),
        library_(library),
        settingsFile_(settingsFile),
        levels_(levels),
        source_(LoadWizardSource(settingsFile)),
        size_(LargestPage()) {}

  WizardChoice Choice() const { return {source_, rangeTyped_}; }

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
  static SettWizDlg::Size SizePageOf(const WizardSource& source) {
    return source.type == kFigureSource ? SettWizDlg::Size::kChosen : SettWizDlg::Size::kOfSource;
  }
  // Runs the page at the place and in the size of the one before.
  int Show(WizardDlg& page) {
    page.resize(size_);
    if (place_) page.move(*place_);
    const int result = page.exec();
    size_ = page.size();
    place_ = page.pos();
    return result;
  }
  // That the page with the most on it needs.
  QSize LargestPage() {
    const SourceWizDlg source(owner_, source_, settingsFile_);
    const SettWizDlg size(owner_, settings_, SettWizDlg::Size::kChosen, {});
    const PattWizDlg pattern(owner_, library_);
    const AlgoWizDlg method(owner_, settings_);
    QSize largest;
    for (const WizardDlg* page :
         {static_cast<const WizardDlg*>(&source), static_cast<const WizardDlg*>(&size),
          static_cast<const WizardDlg*>(&pattern), static_cast<const WizardDlg*>(&method)}) {
      largest = largest.expandedTo(page->minimumSize()).expandedTo(page->sizeHint());
    }
    return largest;
  }
  State ChooseSource() {
    SourceWizDlg page(owner_, source_, settingsFile_);
    const State next = After(Show(page), State::kSize, State::kCancelled);
    if (next == State::kSize) source_ = page.Source();
    return next;
  }
  State ChooseSize() {
    const FittedRange offered = OfferedRange();
    SettWizDlg page(owner_, settings_, SizePageOf(source_), offered);
    const State next = After(Show(page), State::kPattern, State::kSource);
    if (next != State::kPattern) return next;
    TSirdsSettings chosen = page.Settings();
    if (chosen.zmin == offered.zmin && chosen.zmax == offered.zmax) {
      chosen.zmin = settings_.zmin;
      chosen.zmax = settings_.zmax;
    } else {
      rangeTyped_ = true;
    }
    settings_ = chosen;
    return next;
  }
  FittedRange OfferedRange() const {
    const bool fits = settings_.fitRange != 0 && !rangeTyped_ && levels_;
    const auto found = fits ? levels_(source_) : std::nullopt;
    if (found) return FitDepthRange(found->levels, found->kind, settings_);
    return {.zmin = settings_.zmin, .zmax = settings_.zmax};
  }
  State ChoosePattern() {
    PattWizDlg page(owner_, library_);
    const State next = After(Show(page), State::kScanMethod, State::kSize);
    if (next == State::kScanMethod) library_.SelectPattern(page.Shown());
    return next;
  }
  State ChooseScanMethod() {
    AlgoWizDlg page(owner_, settings_);
    const State next = After(Show(page), State::kDone, State::kPattern);
    if (next == State::kDone) settings_ = page.Settings();
    return next;
  }

  QWidget* owner_;
  TSirdsSettings& settings_;
  TSirdPatt& library_;
  const std::filesystem::path& settingsFile_;
  const LevelsFinder& levels_;
  WizardSource source_;
  bool rangeTyped_ = false;
  QSize size_;
  std::optional<QPoint> place_;  // none before the first page was shown
};

}  // namespace

std::optional<WizardChoice> RunWizard(QWidget* owner, TSirdsSettings& settings, TSirdPatt& library,
                                      const std::filesystem::path& settingsFile,
                                      const LevelsFinder& levels) {
  const TSirdsSettings savedSettings = settings;
  const int savedPattern = library.GetCurrentIndex();
  Run run(owner, settings, library, settingsFile, levels);
  State state = State::kSource;
  while (state != State::kCancelled && state != State::kDone) state = run.Step(state);
  if (state == State::kDone) return run.Choice();
  settings = savedSettings;
  library.SelectPattern(savedPattern);
  return std::nullopt;
}

}  // namespace plenovia
