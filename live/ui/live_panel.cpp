#include "live/ui/live_panel.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeySequence>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cmath>

#include "live/ui/live_model.h"

namespace plenovia {

namespace {

constexpr double kDegreesPerPixel = 0.5;
constexpr double kZoomPerNotch = 1.15;
constexpr int kTurnPerNotch = 5;  // degrees
constexpr int kMargin = 6;
constexpr int kLeastControls = 90;  // their height in pixels

struct ViewRow {
  LiveView view;
  const char* name;
  const char* hint;
};

constexpr std::array<ViewRow, kLiveViews> kViews = {{
    {LiveView::kStereogram, QT_TRANSLATE_NOOP("LiveView", "Dots"),
     QT_TRANSLATE_NOOP("LiveView", "The stereogram, dot for dot")},
    {LiveView::kDepth, QT_TRANSLATE_NOOP("LiveView", "Depth"),
     QT_TRANSLATE_NOOP("LiveView",
                       "The depth as gray; what is too far for the range is blue, what is too near "
                       "orange")},
    {LiveView::kRelief, QT_TRANSLATE_NOOP("LiveView", "Relief"),
     QT_TRANSLATE_NOOP("LiveView", "The depth as a lit surface; drag turns it, the wheel zooms")},
    {LiveView::kFound, QT_TRANSLATE_NOOP("LiveView", "Found"),
     QT_TRANSLATE_NOOP("LiveView",
                       "The depth that can be found in the stereogram; what is wrong is red")},
    {LiveView::kAnaglyph, QT_TRANSLATE_NOOP("LiveView", "Anaglyph"),
     QT_TRANSLATE_NOOP("LiveView",
                       "The scene for glasses with red on the left and cyan on the "
                       "right")},
    {LiveView::kWiggle, QT_TRANSLATE_NOOP("LiveView", "Wiggle"),
     QT_TRANSLATE_NOOP("LiveView", "The views of the left and the right eye in turn")},
}};

QString LiveText(const char* text) {
  return QCoreApplication::translate("LiveView", text);
}

int Within(int value, int limit) {
  return std::clamp(value, -limit, limit);
}

}  // namespace

LivePanel::LivePanel(QWidget* parent, LiveModel& model, int screenWidth)
    : QWidget(parent),
      model_(model),
      screenWidth_(screenWidth),
      views_(new QButtonGroup(this)),
      pane_(new LivePane(this)),
      caption_(new QLabel(this)),
      fit_(new QCheckBox(tr("Fit pane"), this)),
      make_(new QPushButton(tr("Make"), this)),
      controls_(new LiveControls(this, model)),
      meter_(new MeterLines(this)) {
  setObjectName(QStringLiteral("livePanel"));
  fit_->setObjectName(QStringLiteral("liveFit"));
  fit_->setToolTip(tr("Make a stereogram that is larger than the pane at the size of the pane"));
  fit_->setChecked(model.Shown().fit);
  make_->setObjectName(QStringLiteral("liveMake"));
  make_->setToolTip(tr("Open the stereogram in a window"));
  caption_->setObjectName(QStringLiteral("liveCaption"));
  caption_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

  auto* under = new QWidget(this);
  auto* underRows = new QVBoxLayout(under);
  underRows->setContentsMargins({});
  underRows->setSpacing(kMargin);
  underRows->addWidget(controls_);
  underRows->addWidget(meter_);
  underRows->addStretch();
  auto* scroll = new QScrollArea(this);
  scroll->setObjectName(QStringLiteral("liveScroll"));
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(under);
  scroll->setMinimumHeight(kLeastControls);
  scroll->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  scroll->setMinimumWidth(under->minimumSizeHint().width() +
                          scroll->verticalScrollBar()->sizeHint().width());

  auto* captionRow = new QHBoxLayout;
  captionRow->addWidget(caption_, 1);
  captionRow->addWidget(fit_);
  captionRow->addWidget(make_);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kMargin);
  rows->addWidget(MakeViewButtons());
  rows->addWidget(pane_, 1);
  rows->addLayout(captionRow);
  rows->addWidget(scroll);

  ConnectPane();
  connect(make_, &QPushButton::clicked, this, &LivePanel::MakeAsked);
  connect(fit_, &QCheckBox::clicked, this, [this](bool fit) {
    model_.SetFit(fit);
    Q_EMIT FitChosen(fit);
  });
  connect(meter_, &MeterLines::ScreenSizeAsked, this, &LivePanel::AskScreenSize);
  connect(&model_, &LiveModel::RequestChanged, this, &LivePanel::ShowRequest);
  connect(&model_, &LiveModel::PictureMade, this, &LivePanel::ShowPicture);
  connect(&model_, &LiveModel::Measured, this, &LivePanel::ShowMeter);
  connect(&model_, &LiveModel::LevelsCounted, controls_, &LiveControls::ShowHistogram);
}

QWidget* LivePanel::MakeViewButtons() {
  auto* row = new QWidget(this);
  auto* buttons = new QHBoxLayout(row);
  buttons->setContentsMargins({});
  buttons->setSpacing(1);
  for (const ViewRow& view : kViews) {
    const int number = static_cast<int>(view.view);
    auto* button = new QToolButton(row);
    button->setObjectName(QStringLiteral("liveView%1").arg(number));
    button->setText(LiveText(view.name));
    button->setToolTip(QStringLiteral("%1 (%2)").arg(LiveText(view.hint)).arg(number));
    button->setCheckable(true);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    views_->addButton(button, number);
    buttons->addWidget(button);
    auto* key = new QShortcut(QKeySequence(Qt::Key_0 + number), this);
    key->setContext(Qt::WidgetWithChildrenShortcut);
    connect(key, &QShortcut::activated, this, [this, number] { ChooseView(number); });
  }
  views_->button(static_cast<int>(model_.Shown().view))->setChecked(true);
  connect(views_, &QButtonGroup::idClicked, this, &LivePanel::ChooseView);
  return row;
}

void LivePanel::ConnectPane() {
  connect(pane_, &LivePane::Resized, &model_, &LiveModel::SetPane);
  connect(pane_, &LivePane::ReliefTurned, this, [this](QPoint way) {
    ReliefView relief = model_.Shown().relief;
    relief.turn = std::fmod(relief.turn + way.x() * kDegreesPerPixel, 360.0);
    relief.tilt = std::clamp(relief.tilt + way.y() * kDegreesPerPixel, -89.0, 89.0);
    model_.SetRelief(relief);
  });
  connect(pane_, &LivePane::ReliefZoomed, this, [this](double notches) {
    ReliefView relief = model_.Shown().relief;
    relief.zoom = std::clamp(relief.zoom * std::pow(kZoomPerNotch, notches), 0.2, 20.0);
    model_.SetRelief(relief);
  });
  connect(pane_, &LivePane::ReliefReset, this, [this] { model_.SetRelief({}); });
  connect(pane_, &LivePane::FigureMoved, this, [this](QPoint way) {
    model_.Edit([way](TSirdsSettings& record) {
      record.dx = Within(record.dx + way.x(), 200);
      record.dy = Within(record.dy - way.y(), 200);
    });
  });
  connect(pane_, &LivePane::FigureTurned, this, [this](double notches) {
    model_.Edit([notches](TSirdsSettings& record) {
      const int turned = record.da + static_cast<int>(std::lround(notches * kTurnPerNotch));
      record.da = (turned + 540) % 360 - 180;
    });
  });
  connect(pane_, &LivePane::FigureReset, this, [this] {
    model_.Edit([](TSirdsSettings& record) { record.dx = record.dy = record.da = 0; });
  });
}

void LivePanel::ChooseView(int view) {
  views_->button(view)->setChecked(true);
  model_.SetView(static_cast<LiveView>(view));
  Q_EMIT ViewChosen(static_cast<LiveView>(view));
}

void LivePanel::ShowRequest() {
  const LiveRequest& shown = model_.Shown();
  pane_->SetShowsFigure(shown.source.figure != 0);
  make_->setEnabled(!shown.source.IsNone());
}

void LivePanel::ShowPicture(const std::shared_ptr<const LivePicture>& picture) {
  const LiveRequest& shown = model_.Shown();
  // One of a view that was left comes too late.
  if (picture->problem.isEmpty() && picture->view != shown.view) return;
  pane_->Show(picture);
  if (!picture->problem.isEmpty()) return;
  controls_->ShowRange(picture->range);
  QString text = shown.source.title;
  if (picture->stereogram) {
    text += tr(", %1 x %2").arg(picture->stereogram->width()).arg(picture->stereogram->height());
  }
  if (picture->found) text += tr(", %1 % found again").arg(qRound(100 * *picture->found));
  caption_->setText(text);
  caption_->setToolTip(text);
}

void LivePanel::ShowMeter(const std::shared_ptr<const LiveMeter>& meter) {
  meter_->Show(*meter);
}

void LivePanel::MeasureScreen() {
  const QScreen* display = screen();
  const double pixels = display->size().width() * devicePixelRatioF();
  const double width = screenWidth_ > 0 ? screenWidth_ : display->physicalSize().width();
  model_.SetMillimetresPerPixel(pixels > 0 ? width / pixels : 0);
}

void LivePanel::AskScreenSize() {
  const double known =
      screenWidth_ > 0 ? screenWidth_ : std::clamp(screen()->physicalSize().width(), 0.0, 9999.0);
  bool accepted = false;
  const int width = QInputDialog::getInt(
      this, tr("Size of this screen"),
      tr("Width of the picture area of this screen in mm (0: as the system says):"), qRound(known),
      0, 9999, 1, &accepted);
  if (!accepted) return;
  screenWidth_ = width;
  MeasureScreen();
  Q_EMIT ScreenWidthChosen(width);
}

void LivePanel::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  MeasureScreen();
  model_.SetWatched(true);
}

void LivePanel::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  model_.SetWatched(false);
}

bool LivePanel::event(QEvent* event) {
  if (event->type() == QEvent::ScreenChangeInternal) MeasureScreen();
  return QWidget::event(event);
}

}  // namespace plenovia
