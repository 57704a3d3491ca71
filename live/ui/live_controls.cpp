#include "live/ui/live_controls.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>
#include <utility>

#include "engine/scan_method.h"
#include "live/ui/live_model.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr int kLeastGap = 51;
constexpr int kMostGap = 150;

std::int32_t Level(std::int64_t level) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(level, Limits::min(), Limits::max()));
}

template <class Widget>
Widget* Named(Widget* widget, const char* name, const QString& hint) {
  widget->setObjectName(QString::fromLatin1(name));
  widget->setToolTip(hint);
  widget->setAccessibleDescription(hint);
  return widget;
}

}  // namespace

LiveControls::LiveControls(QWidget* parent, LiveModel& model)
    : QWidget(parent),
      model_(model),
      rangeText_(new QLabel),
      range_(Named(new RangeSlider(this), "liveRange", {})),
      fitWhenNeeded_(Named(new QCheckBox(tr("Fit when needed")), "liveFitWhenNeeded",
                           tr("Use another range where this one does not show the source"))),
      exchange_(
          Named(new QToolButton, "liveExchange", tr("Exchange near and far, for crossed eyes"))),
      gap_(Named(new ResetSlider(this, kLeastGap, kMostGap, tr("px")), "liveGap",
                 tr("The distance at which the pattern repeats in the background"))),
      scan_(Named(new QComboBox, "liveScan", tr("How pixels are shifted"))),
      depthBy_(Named(new QComboBox, "liveDepthBy", tr("What of a picture is its depth"))),
      markers_(
          Named(new QCheckBox(tr("Markers")), "liveMarkers", tr("Two squares that help the eyes"))),
      patterns_(new PatternStrip(this)) {
  range_->setAccessibleName(tr("Depth range"));
  for (const ScanMethod* method : ScanMethods()) {
    scan_->addItem(QString::fromLatin1(method->title));
  }
  depthBy_->addItems({tr("by color"), tr("by brightness")});
  exchange_->setText(tr("Exchange"));
  exchange_->setCheckable(true);
  for (QComboBox* box : {scan_, depthBy_}) {
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(7);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  auto* fit =
      Named(new QToolButton, "liveFitRange", tr("Choose a depth range that fits the source"));
  fit->setText(tr("Fit"));

  auto* rangeRow = new QHBoxLayout;
  rangeRow->addWidget(rangeText_, 1);
  rangeRow->addWidget(fit);
  rangeRow->addWidget(exchange_);
  auto* methodRow = new QHBoxLayout;
  methodRow->addWidget(scan_);
  methodRow->addWidget(depthBy_);
  auto* boxes = new QHBoxLayout;
  boxes->addWidget(fitWhenNeeded_);
  boxes->addStretch();
  boxes->addWidget(markers_);
  auto* form = new QFormLayout;
  form->setContentsMargins({});
  form->setVerticalSpacing(4);
  form->addRow(tr("Gap:"), gap_);
  form->addRow(tr("Scan:"), methodRow);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins({});
  rows->setSpacing(4);
  rows->addLayout(rangeRow);
  rows->addWidget(range_);
  rows->addLayout(boxes);
  rows->addLayout(form);
  rows->addWidget(patterns_);

  connect(range_, &RangeSlider::RangeChosen, this, &LiveControls::ChooseRange);
  connect(range_, &RangeSlider::ResetAsked, this, &LiveControls::ResetRange);
  connect(fit, &QToolButton::clicked, this, &LiveControls::FitRange);
  connect(exchange_, &QToolButton::clicked, this, &LiveControls::Exchange);
  connect(fitWhenNeeded_, &QCheckBox::clicked, this, [this](bool on) {
    model_.Edit([on](TSirdsSettings& record) { record.fitRange = on ? 1 : 0; });
  });
  connect(gap_, &ResetSlider::Chosen, this, [this](int gap) {
    model_.Edit([gap](TSirdsSettings& record) { record.gapValue = gap; });
  });
  connect(gap_, &ResetSlider::ResetAsked, this, [this] {
    model_.Edit([](TSirdsSettings& record) { record.gapValue = TSirdsSettings{}.gapValue; });
  });
  connect(scan_, &QComboBox::activated, this, [this](int place) {
    model_.Edit([place](TSirdsSettings& record) { record.scanMethod = place + 1; });
  });
  connect(depthBy_, &QComboBox::activated, this, [this](int place) {
    model_.Edit([place](TSirdsSettings& record) {
      record.depthSel = place == 0 ? kDepthByColor : kDepthByBrightness;
    });
  });
  connect(markers_, &QCheckBox::clicked, this, [this](bool on) {
    model_.Edit([on](TSirdsSettings& record) { record.marker = on ? 1 : 0; });
  });
  connect(patterns_, &PatternStrip::Chosen, &model_, &LiveModel::ChoosePattern);
  connect(&model_, &LiveModel::RequestChanged, this, &LiveControls::ShowRecord);
  ShowRecord();
}

void LiveControls::ShowRecord() {
  const TSirdsSettings& record = model_.Settings();
  const bool fits = record.fitRange != 0;
  const LevelRange used = fits ? used_ : LevelRange{record.zmin, record.zmax};
  const bool fitted = used.lowest != record.zmin || used.highest != record.zmax;
  range_->SetRange(record.zmin, record.zmax, used);
  rangeText_->setText(fitted ? tr("Depth %1 to %2 (fitted)").arg(used.lowest).arg(used.highest)
                             : tr("Depth %1 to %2").arg(record.zmin).arg(record.zmax));
  fitWhenNeeded_->setChecked(fits);
  exchange_->setChecked(record.zmin > record.zmax);
  gap_->SetValue(record.gapValue);
  scan_->setCurrentIndex(record.scanMethod - 1);
  depthBy_->setCurrentIndex(record.depthSel == kDepthByColor ? 0 : 1);
  depthBy_->setEnabled(model_.Shown().source.picture != nullptr);
  markers_->setChecked(record.marker != 0);
  patterns_->Update(model_.Patterns());
}

void LiveControls::ShowHistogram(const std::shared_ptr<const LevelHistogram>& histogram) {
  histogram_ = histogram;
  range_->SetHistogram(histogram);
}

void LiveControls::ShowRange(const FittedRange& range) {
  used_ = {range.zmin, range.zmax};
  ShowRecord();
}

void LiveControls::ChooseRange(std::int32_t low, std::int32_t high) {
  model_.Edit([low, high](TSirdsSettings& record) {
    const bool exchanged = record.zmin > record.zmax;
    record.zmin = exchanged ? high : low;
    record.zmax = exchanged ? low : high;
    record.fitRange = 0;  // what was chosen counts
  });
}

void LiveControls::FitRange() {
  if (!histogram_ || histogram_->empty()) return;
  const LiveRequest& shown = model_.Shown();
  model_.Edit([&](TSirdsSettings& record) {
    const SourceKind kind = shown.source.picture ? SourceKind::kImage : SourceKind::kShape;
    const ScanSetup setup(8 * record.gapValue, record.gapValue, kind, record);
    const LevelRange levels = shown.source.figure != 0 ? kFigureLevels : LevelsOf(*histogram_);
    const LevelRange range = ScanMethodOf(record.scanMethod).fit(levels, setup);
    record.zmin = Level(range.lowest);
    record.zmax = Level(range.highest);
  });
}

// From the range that is used, which a fitted one could not undo.
void LiveControls::Exchange() {
  const LevelRange used = used_;
  model_.Edit([used](TSirdsSettings& record) {
    if (record.fitRange != 0) {
      record.zmin = Level(used.lowest);
      record.zmax = Level(used.highest);
    }
    std::swap(record.zmin, record.zmax);
    record.fitRange = 0;
  });
  ShowRecord();
}

void LiveControls::ResetRange() {
  model_.Edit([](TSirdsSettings& record) {
    const TSirdsSettings defaults;
    record.zmin = defaults.zmin;
    record.zmax = defaults.zmax;
    record.fitRange = defaults.fitRange;
  });
}

}  // namespace plenovia
