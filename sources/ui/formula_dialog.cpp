#include "sources/ui/formula_dialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QImage>
#include <QPixmap>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "engine/depth_source.h"
#include "engine/quiet_monitor.h"
#include "platform/ui/dialog_controls.h"
#include "platform/ui/text.h"

namespace plenovia {

namespace {

constexpr QSize kPreview(280, 200);
constexpr std::chrono::milliseconds kTypingPause{150};

Result<FineImage> DrawSmall(const Formula& formula) {
  QuietMonitor monitor;
  return DrawFormula(formula, kPreview.width(), kPreview.height(), 1, monitor);
}

QImage Grays(const FineImage& levels) {
  QImage image(levels.width(), levels.height(), QImage::Format_Grayscale8);
  for (int y = 0; y < levels.height(); ++y) {
    std::ranges::transform(levels.Row(y), image.scanLine(y), [](std::uint16_t level) {
      return static_cast<std::uint8_t>(level / FineDepth::kLevelParts);
    });
  }
  return image;
}

}  // namespace

FormulaDialog::FormulaDialog(QWidget* parent, const Formula& formula)
    : QDialog(parent),
      examples_(new QComboBox),
      text_(MakeEdit(102)),
      reach_(new QDoubleSpinBox),
      note_(MakeNote(2)),
      preview_(new QLabel),
      ok_(MakeOkButton(this)) {
  setObjectName(QStringLiteral("dialog221"));
  setWindowTitle(tr("Formula"));
  examples_->setObjectName(QStringLiteral("list101"));
  examples_->addItem(tr("Your own"));
  for (const FormulaExample& example : FormulaExamples()) {
    examples_->addItem(tr(example.name));
  }
  text_->setMaxLength(static_cast<int>(kLongestFormula));
  text_->setText(ToQString(formula.text));
  text_->setMinimumWidth(DialogUnits(*this, 220, 0).width());
  reach_->setObjectName(QStringLiteral("edit103"));
  reach_->setDecimals(3);
  reach_->setRange(kSmallestReach, kLargestReach);
  reach_->setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
  reach_->setValue(formula.reach);
  reach_->setToolTip(tr("x and y go from minus this to this along the shorter side"));
  preview_->setObjectName(QStringLiteral("preview"));
  preview_->setFixedSize(kPreview);
  preview_->setAlignment(Qt::AlignCenter);
  preview_->setAccessibleName(tr("Preview of the depth"));

  auto* fields = new QFormLayout;
  fields->addRow(tr("&Example"), examples_);
  fields->addRow(tr("&z ="), text_);
  fields->addRow(QString(), note_);
  fields->addRow(tr("&Reach"), reach_);
  fields->addRow(QString(), new QLabel(tr("x, y: the point, 0 in the middle;  r: its distance from "
                                          "there;  a: its angle")));
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok_);
  buttons->addWidget(MakeCancelButton(this));
  buttons->addStretch();
  auto* all = new QVBoxLayout(this);
  all->addLayout(fields);
  all->addWidget(preview_, 0, Qt::AlignHCenter);
  all->addLayout(buttons);

  previewSoon_.setSingleShot(true);
  connect(&previewSoon_, &QTimer::timeout, this, &FormulaDialog::Preview);
  connect(examples_, &QComboBox::activated, this, &FormulaDialog::TakeExample);
  connect(text_, &QLineEdit::textChanged, this, &FormulaDialog::Changed);
  connect(reach_, &QDoubleSpinBox::valueChanged, this, &FormulaDialog::Changed);
  Changed();
  Preview();
  text_->setFocus();
  text_->selectAll();
}

Formula FormulaDialog::Chosen() const {
  return {text_->text().toStdString(), reach_->value()};
}

void FormulaDialog::TakeExample(int number) {
  if (number < 1) return;
  const Formula& formula = FormulaExamples()[static_cast<std::size_t>(number) - 1].formula;
  text_->setText(ToQString(formula.text));
  reach_->setValue(formula.reach);
}

void FormulaDialog::Changed() {
  const Formula formula = Chosen();
  const auto example = std::ranges::find_if(FormulaExamples(), [&](const FormulaExample& each) {
    return each.formula.text == formula.text;
  });
  examples_->setCurrentIndex(example == FormulaExamples().end()
                                 ? 0
                                 : static_cast<int>(example - FormulaExamples().begin()) + 1);
  const auto checked = CheckFormula(formula);
  Say(checked ? QString() : ToQString(checked.error().message));
  if (checked) previewSoon_.start(kTypingPause);
}

void FormulaDialog::Preview() {
  previewSoon_.stop();
  const auto drawn = DrawSmall(Chosen());
  if (drawn) {
    preview_->setPixmap(QPixmap::fromImage(Grays(*drawn)));
  } else {
    Say(ToQString(drawn.error().message));
  }
}

void FormulaDialog::Say(const QString& wrong) {
  note_->setText(wrong);
  ok_->setEnabled(wrong.isEmpty());
  if (wrong.isEmpty()) return;
  previewSoon_.stop();
  preview_->setPixmap(QPixmap());
}

void FormulaDialog::accept() {
  if (previewSoon_.isActive()) Preview();
  if (ok_->isEnabled()) QDialog::accept();
}

}  // namespace plenovia
