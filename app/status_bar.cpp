#include "app/status_bar.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QUrl>
#include <chrono>

#include "app/elided_label.h"

namespace plenovia {

namespace {

constexpr QSize kGaugeSize(110, 15);
constexpr int kGaugeLeft = 5;
constexpr int kFieldMargin = 3;
constexpr std::chrono::seconds kNoteTime{12};

}  // namespace

TCStatusBar::TCStatusBar(QWidget* parent)
    : QStatusBar(parent), gauge_(new QProgressBar), message_(new ElidedLabel), note_(new QLabel) {
  auto* area = new QWidget;
  auto* row = new QHBoxLayout(area);
  row->setContentsMargins(kGaugeLeft, 0, 0, 0);
  row->addWidget(gauge_);
  row->addWidget(message_, 1);
  addWidget(area, 1);
  gauge_->setObjectName(QStringLiteral("gauge"));
  gauge_->setFixedSize(kGaugeSize);
  gauge_->setTextVisible(false);
  gauge_->setValue(0);
  message_->setObjectName(QStringLiteral("message"));
  note_->setObjectName(QStringLiteral("note"));
  note_->setTextFormat(Qt::RichText);
  note_->setOpenExternalLinks(true);
  note_->setFocusPolicy(Qt::StrongFocus);
  note_->setTextInteractionFlags(Qt::TextBrowserInteraction);
  note_->hide();
  addPermanentWidget(note_);
  noteTime_.setSingleShot(true);
  noteTime_.setInterval(kNoteTime);
  connect(&noteTime_, &QTimer::timeout, note_, [this] {
    note_->hide();
    note_->clear();
  });
  imageField_ = AddField(QStringLiteral("image"));
  freeField_ = AddField(QStringLiteral("free"));
  FitFields();
}

QLabel* TCStatusBar::AddField(const QString& name) {
  auto* field = new QLabel;
  field->setObjectName(name);
  field->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  field->setMargin(kFieldMargin);
  addPermanentWidget(field);
  return field;
}

void TCStatusBar::FitFields() {
  for (QLabel* field : {imageField_, freeField_}) {
    const int text = field->fontMetrics().horizontalAdvance(tr("Image: 32459 Kb"));
    field->setMinimumWidth(text + 2 * (kFieldMargin + field->frameWidth()));
  }
}

void TCStatusBar::ShowNote(const QString& text, const QString& folder) {
  QString shown = text.toHtmlEscaped();
  if (!folder.isEmpty()) {
    const QString address = QUrl::fromLocalFile(folder).toString(QUrl::FullyEncoded);
    shown += QStringLiteral(" <a href=\"%1\">%2</a>").arg(address, tr("Show in folder"));
  }
  note_->setText(shown);
  note_->show();
  noteTime_.start();
}

void TCStatusBar::SetMessage(const QString& text) {
  text_ = text;
  ShowText();
}

void TCStatusBar::SetHint(const QString& text) {
  if (text.isEmpty()) {
    ClearHint();
    return;
  }
  hint_ = text;
  gaugeShown_ = !gaugeShown_;
  gauge_->hide();
  ShowText();
}

void TCStatusBar::ClearHint() {
  hint_.clear();
  gaugeShown_ = !gaugeShown_;
  gauge_->show();
  ShowText();
}

void TCStatusBar::ShowText() {
  message_->SetText(hint_.isEmpty() ? text_ : hint_);
}

void TCStatusBar::SetProgress(int percent) {
  if (!gaugeShown_) {
    gaugeShown_ = true;
    gauge_->show();
  }
  // The gauge would paint itself once more than is needed.
  gauge_->setUpdatesEnabled(false);
  gauge_->setValue(percent);
  gauge_->setUpdatesEnabled(true);
  message_->parentWidget()->layout()->activate();
  message_->parentWidget()->repaint();
}

void TCStatusBar::SetImageText(const QString& text) {
  imageField_->setText(text);
  RepaintNow();
}

void TCStatusBar::SetFreeText(const QString& text) {
  freeField_->setText(text);
  RepaintNow();
}

void TCStatusBar::RepaintNow() {
  layout()->activate();
  message_->parentWidget()->layout()->activate();
  repaint();
}

void TCStatusBar::changeEvent(QEvent* event) {
  QStatusBar::changeEvent(event);
  if (event->type() == QEvent::FontChange) FitFields();
}

}  // namespace plenovia
