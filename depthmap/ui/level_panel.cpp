#include "depthmap/ui/level_panel.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLinearGradient>
#include <QPainter>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "depthmap/level_choice.h"

namespace plenovia {

namespace {

constexpr int kScaleWidth = 14;
constexpr int kMargin = 2;
constexpr double kSmall = 0.8;  // of the panel's texts to the font

// From black at the bottom to white at the top.
class GrayScale : public QWidget {
 public:
  GrayScale() { setFixedWidth(kScaleWidth); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QLinearGradient grays(0, height(), 0, 0);
    grays.setColorAt(0, Qt::black);
    grays.setColorAt(1, Qt::white);
    painter.fillRect(rect(), isEnabled() ? QBrush(grays) : palette().brush(QPalette::Window));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
};

}  // namespace

LevelPanel::LevelPanel(QWidget* parent)
    : QWidget(parent),
      whose_(new QLabel),
      number_(new QSpinBox),
      slider_(new QSlider(Qt::Vertical)),
      others_(new QLabel) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(whose_);
  column->addWidget(number_);
  auto* scale = new QHBoxLayout;
  scale->addStretch();
  scale->addWidget(new GrayScale);
  scale->addWidget(slider_);
  scale->addStretch();
  column->addLayout(scale, 1);
  column->addWidget(others_);
  number_->setObjectName(QStringLiteral("levelNumber"));
  number_->setRange(kLowestLevel, kHighestLevel);
  number_->setKeyboardTracking(false);
  number_->setToolTip(tr("The level: 0 is far, 255 is near (keys + and -, or type digits)"));
  slider_->setObjectName(QStringLiteral("levelSlider"));
  slider_->setRange(kLowestLevel, kHighestLevel);
  slider_->setPageStep(10);
  slider_->setFocusPolicy(Qt::NoFocus);
  slider_->setMinimumHeight(80);
  whose_->setObjectName(QStringLiteral("levelOwner"));
  others_->setObjectName(QStringLiteral("levelOthers"));
  connect(number_, &QSpinBox::valueChanged, this, &LevelPanel::SetLevel);
  connect(number_, &QSpinBox::editingFinished, this, [this] {
    if (map_ && number_->hasFocus()) map_->setFocus();
  });
  connect(slider_, &QSlider::valueChanged, this, &LevelPanel::SetLevel);
  // A whole pull of the slider is one step to undo.
  connect(slider_, &QSlider::sliderPressed, this, [this] {
    if (!map_ || std::exchange(sliding_, true)) return;
    map_->BeginLevelChange();
  });
  connect(slider_, &QSlider::sliderReleased, this, &LevelPanel::EndSlide);
  QFont small = font();
  if (small.pointSizeF() > 0) small.setPointSizeF(small.pointSizeF() * kSmall);
  for (QLabel* label : {whose_, others_}) label->setFont(small);
  // So that the frame's inside stays where it is when the texts change.
  const QFontMetrics metrics(small);
  int widest = 0;
  for (const QString& text :
       {tr("Selected"), tr("Next %1").arg(kHighestLevel), tr("Ground %1").arg(kHighestLevel)}) {
    widest = std::max(widest, metrics.horizontalAdvance(text));
  }
  setMinimumWidth(widest + 2 * kMargin);
  others_->setMinimumHeight(2 * metrics.lineSpacing());
  others_->setAlignment(Qt::AlignTop);
  SetMap(nullptr);
}

void LevelPanel::SetMap(TMapWindow* map) {
  if (map != map_) EndSlide();
  map_ = map;
  setEnabled(map != nullptr);
  Refresh();
}

void LevelPanel::Refresh() {
  const bool selected = map_ && map_->Objects().Selected() != nullptr;
  whose_->setText(selected ? tr("Selected") : tr("Next"));
  const int level = map_ ? map_->LevelAtHand() : 0;
  const QSignalBlocker numberQuiet(number_);
  const QSignalBlocker sliderQuiet(slider_);
  number_->setValue(level);
  slider_->setValue(level);
  QString others;
  if (map_) {
    const TDepthObj* ground = map_->Objects().Background();
    if (ground != nullptr) others = tr("Ground %1").arg(ground->GetLevel());
    if (selected) others = tr("Next %1").arg(map_->Objects().CurrentLevel()) + u'\n' + others;
  }
  others_->setText(others);
}

void LevelPanel::SetLevel(int level) {
  if (map_) map_->SetLevelAtHand(level);
}

void LevelPanel::EndSlide() {
  if (!std::exchange(sliding_, false) || !map_) return;
  map_->EndLevelChange();
}

}  // namespace plenovia
