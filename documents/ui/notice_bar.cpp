#include "documents/ui/notice_bar.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QStyle>
#include <QTimer>
#include <algorithm>

namespace plenovia {

namespace {

constexpr int kSpace = 4;  // between the parts, and around them
constexpr int kLeastTextLetters = 12;

}  // namespace

NoticeBar::NoticeBar(const Notice& notice) : text_(new QLabel(notice.text, this)) {
  setObjectName(QStringLiteral("noticeBar"));
  setAutoFillBackground(true);
  setAccessibleName(notice.text);
  setToolTip(notice.details);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  text_->setObjectName(QStringLiteral("noticeText"));
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  for (const NoticeAction& action : notice.actions) {
    buttons_.push_back(new QPushButton(action.text, this));
    buttons_.back()->setObjectName(QStringLiteral("noticeAction%1").arg(buttons_.size()));
    connect(buttons_.back(), &QPushButton::clicked, this, action.run, Qt::QueuedConnection);
  }
  // The last one, so that the Tab key comes to it last.
  close_ = new QToolButton(this);
  close_->setObjectName(QStringLiteral("noticeClose"));
  close_->setText(QStringLiteral("\u00d7"));
  close_->setAutoRaise(true);
  close_->setFocusPolicy(Qt::StrongFocus);
  close_->setAccessibleName(tr("Close this notice"));
  close_->setToolTip(close_->accessibleName());
  connect(close_, &QToolButton::clicked, this, &NoticeBar::Dismissed, Qt::QueuedConnection);
  if (notice.lasts.count() > 0) QTimer::singleShot(notice.lasts, this, &NoticeBar::Dismissed);
}

int NoticeBar::LineWidth() const {
  int width = text_->fontMetrics().horizontalAdvance(text_->text()) + 4 * kSpace;
  for (const QPushButton* button : buttons_) width += button->sizeHint().width() + kSpace;
  return width + close_->sizeHint().width() + kSpace;
}

NoticeBar::Places NoticeBar::InOneLine(int width) const {
  Places places;
  int height = std::max(text_->fontMetrics().height(), close_->sizeHint().height());
  for (const QPushButton* button : buttons_) height = std::max(height, button->sizeHint().height());
  places.height = height + 2 * kSpace;
  int right = width - close_->sizeHint().width() - 2 * kSpace;
  places.buttons.resize(buttons_.size());
  for (std::size_t i = buttons_.size(); i-- > 0;) {
    const QSize size = buttons_[i]->sizeHint();
    right -= size.width();
    places.buttons[i] = {QPoint(right, (places.height - size.height()) / 2), size};
    right -= kSpace;
  }
  places.text = {2 * kSpace, kSpace, right - 2 * kSpace, height};
  return places;
}

NoticeBar::Places NoticeBar::InSeveralLines(int width) const {
  Places places;
  const QSize close = close_->sizeHint();
  const int textWidth = std::max(1, width - close.width() - 4 * kSpace);
  places.text = {2 * kSpace, kSpace, textWidth,
                 std::max(text_->heightForWidth(textWidth), close.height())};
  QPoint corner(2 * kSpace, places.text.bottom() + 1 + kSpace);
  places.height = corner.y();
  for (const QPushButton* button : buttons_) {
    const QSize size = button->sizeHint();
    if (corner.x() > 2 * kSpace && corner.x() + size.width() + kSpace > width) {
      corner = {2 * kSpace, places.height};
    }
    places.buttons.emplace_back(corner, size);
    corner.rx() += size.width() + kSpace;
    places.height = std::max(places.height, corner.y() + size.height() + kSpace);
  }
  return places;
}

NoticeBar::Places NoticeBar::Arrange(int width) const {
  return LineWidth() <= width ? InOneLine(width) : InSeveralLines(width);
}

int NoticeBar::heightForWidth(int width) const {
  return Arrange(width).height;
}

QSize NoticeBar::sizeHint() const {
  return {LineWidth(), heightForWidth(LineWidth())};
}

QSize NoticeBar::minimumSizeHint() const {
  int width = fontMetrics().averageCharWidth() * kLeastTextLetters + close_->sizeHint().width();
  for (const QPushButton* button : buttons_) width = std::max(width, button->sizeHint().width());
  return {width + 4 * kSpace, 0};
}

void NoticeBar::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  const Places places = Arrange(width());
  const auto place = [this](QWidget& part, const QRect& where) {
    part.setGeometry(QStyle::visualRect(layoutDirection(), rect(), where));
  };
  place(*text_, places.text);
  for (std::size_t i = 0; i < buttons_.size(); ++i) place(*buttons_[i], places.buttons[i]);
  const QSize close = close_->sizeHint();
  place(*close_, {QPoint(width() - close.width() - kSpace, kSpace), close});
}

void NoticeBar::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void NoticeBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    Q_EMIT Dismissed();
  } else {
    QFrame::keyPressEvent(event);
  }
}

}  // namespace plenovia
