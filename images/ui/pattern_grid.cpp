#include "images/ui/pattern_grid.h"

#include <QScrollBar>
#include <QSignalBlocker>

#include "images/ui/pattern_icon.h"

namespace plenovia {

namespace {

constexpr int kSide = 64;
constexpr int kColumns = 5;
constexpr int kRows = 4;

}  // namespace

PatternGrid::PatternGrid(QWidget* parent) : QListWidget(parent) {
  setObjectName(QStringLiteral("patterns"));
  setAccessibleName(tr("Patterns"));
  setViewMode(QListView::IconMode);
  setMovement(QListView::Static);
  setResizeMode(QListView::Adjust);
  setUniformItemSizes(true);
  setIconSize({kSide, kSide});
  setGridSize({kSide + 20, kSide + fontMetrics().height() + 12});
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) Q_EMIT Chosen(row);
  });
}

void PatternGrid::Update(const TSirdPatt& library) {
  const QSignalBlocker quiet(this);
  clear();
  for (int i = 0; i < library.GetCount(); ++i) {
    const IndexedImage& pattern = *library.GetBitmap(i);
    const QString number = QString::number(library.GetNumber(i) + 1);
    const QString size =
        tr("Pattern No. %1, %2 x %3 pixels").arg(number).arg(pattern.width()).arg(pattern.height());
    auto* item = new QListWidgetItem(
        PatternIcon(pattern, kSide, devicePixelRatioF(), palette().color(QPalette::Highlight)),
        library.IsOwn(i) ? tr("%1 (own)").arg(number) : number, this);
    item->setToolTip(library.IsOwn(i) ? tr("%1, your own").arg(size) : size);
  }
  setCurrentRow(library.GetCurrentIndex());
}

QSize PatternGrid::sizeHint() const {
  return {kColumns * gridSize().width() + verticalScrollBar()->sizeHint().width() +
              2 * frameWidth() + 2,
          kRows * gridSize().height() + 2 * frameWidth()};
}

}  // namespace plenovia
