#include "images/ui/pattern_browser.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>

#include "platform/ui/dialog_controls.h"

namespace plenovia {

PatternBrowser::PatternBrowser(TSirdPatt& library, QWidget* parent)
    : QWidget(parent),
      library_(library),
      opening_(library.GetCurrentIndex()),
      shown_(opening_),
      sample_(new PatternSample),
      number_(new QLabel),
      buttons_(new QVBoxLayout) {
  number_->setObjectName(QStringLiteral("label311"));
  QPushButton* next = MakeButton(301, tr("Next"));
  QPushButton* prev = MakeButton(302, tr("Prev"));
  connect(next, &QPushButton::clicked, this, &PatternBrowser::Next);
  connect(prev, &QPushButton::clicked, this, &PatternBrowser::Prev);

  auto* frame = new QFrame;
  frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  auto* framed = new QVBoxLayout(frame);
  framed->setContentsMargins(0, 0, 0, 0);
  framed->addWidget(sample_);
  buttons_->addWidget(number_);
  buttons_->addWidget(next);
  buttons_->addWidget(prev);
  buttons_->addStretch();
  auto* all = new QHBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->addWidget(frame, 0, Qt::AlignTop);
  all->addLayout(buttons_);
  all->addStretch();
  Refresh();
}

void PatternBrowser::Show(int index) {
  shown_ = index;
  library_.SelectPattern(shown_);
  Refresh();
  Q_EMIT Moved();
}

void PatternBrowser::RestoreOpening() {
  library_.SelectPattern(opening_);
}

void PatternBrowser::Next() {
  Show(shown_ + 1 < library_.GetCount() ? shown_ + 1 : 0);
}

void PatternBrowser::Prev() {
  Show(shown_ > 0 ? shown_ - 1 : library_.GetCount() - 1);
}

void PatternBrowser::Refresh() {
  sample_->SetPattern(library_.GetCurrentBitmap());
  number_->setText(tr("Pattern No. %1").arg(library_.GetCurrentNumber() + 1));
}

}  // namespace plenovia
