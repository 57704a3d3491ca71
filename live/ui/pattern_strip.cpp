#include "live/ui/pattern_strip.h"

#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "images/ui/pattern_icon.h"

namespace plenovia {

namespace {

constexpr int kSide = 40;

}  // namespace

PatternStrip::PatternStrip(QWidget* parent) : QListWidget(parent) {
  setObjectName(QStringLiteral("livePatterns"));
  setAccessibleName(tr("Patterns"));
  setViewMode(QListView::IconMode);
  setFlow(QListView::LeftToRight);
  setWrapping(false);
  setMovement(QListView::Static);
  setUniformItemSizes(true);
  setIconSize({kSide, kSide});
  setGridSize({kSide + 6, kSide + 4});
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) Q_EMIT Chosen(row);
  });
}

QSize PatternStrip::sizeHint() const {
  return {240, kSide + 8 + horizontalScrollBar()->sizeHint().height()};
}

void PatternStrip::Update(const TSirdPatt* library) {
  const QSignalBlocker quiet(this);
  const int count = library != nullptr ? library->GetCount() : 0;
  bool same = static_cast<int>(shown_.size()) == count;
  for (int i = 0; same && i < count; ++i) {
    same = shown_[static_cast<std::size_t>(i)].lock() == library->GetBitmap(i);
  }
  if (!same) {
    clear();
    shown_.clear();
    for (int i = 0; i < count; ++i) {
      const auto pattern = library->GetBitmap(i);
      shown_.push_back(pattern);
      auto* item = new QListWidgetItem(
          PatternIcon(*pattern, kSide, devicePixelRatioF(), palette().color(QPalette::Highlight)),
          QString(), this);
      item->setToolTip(
          tr("Pattern %1, %2 x %3 px").arg(i + 1).arg(pattern->width()).arg(pattern->height()));
      item->setData(Qt::AccessibleTextRole, tr("Pattern %1").arg(i + 1));
    }
  }
  const int current = library != nullptr ? library->GetCurrentIndex() : -1;
  if (current != currentRow()) {
    setCurrentRow(current);
    scrollToItem(currentItem());
  }
}

void PatternStrip::wheelEvent(QWheelEvent* event) {
  const QPoint angle = event->angleDelta();
  horizontalScrollBar()->setValue(horizontalScrollBar()->value() -
                                  (angle.y() != 0 ? angle.y() : angle.x()) / 2);
  event->accept();
}

}  // namespace plenovia
