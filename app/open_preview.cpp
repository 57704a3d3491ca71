#include "app/open_preview.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "app/thumbnail_maker.h"

namespace plenovia {

namespace {

constexpr QSize kRoom(200, 200);
constexpr QSize kDialog(900, 520);

class OpenPreview : public QWidget {
  Q_DECLARE_TR_FUNCTIONS(OpenPreview)

 public:
  explicit OpenPreview(QFileDialog& dialog)
      : QWidget(&dialog), picture_(new QLabel), text_(new QLabel), maker_(this) {
    setObjectName(QStringLiteral("preview"));
    picture_->setObjectName(QStringLiteral("previewPicture"));
    text_->setObjectName(QStringLiteral("previewText"));
    picture_->setFixedSize(kRoom);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    text_->setWordWrap(true);
    for (QLabel* label : {picture_, text_}) label->setAlignment(Qt::AlignCenter);
    auto* all = new QVBoxLayout(this);
    all->addStretch();
    all->addWidget(picture_);
    all->addWidget(text_);
    all->addStretch();
    connect(&dialog, &QFileDialog::currentChanged, this, &OpenPreview::Choose);
    connect(&maker_, &ThumbnailMaker::Made, this, &OpenPreview::Show);
  }

 private:
  void Choose(const QString& path) {
    maker_.DropWaiting();
    chosen_ = QFileInfo(path).isFile() ? path : QString();
    if (chosen_.isEmpty()) {
      picture_->clear();
      text_->clear();
    } else {
      maker_.Ask(chosen_, kRoom * devicePixelRatioF());
    }
  }

  void Show(const QString& path, const Thumbnail& thumbnail) {
    if (path != chosen_) return;
    QPixmap picture = QPixmap::fromImage(thumbnail.image);
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture_->setPixmap(picture);
    text_->setText(
        thumbnail.image.isNull()
            ? tr("No preview")
            : tr("%1 x %2 pixels").arg(thumbnail.size.width()).arg(thumbnail.size.height()));
  }

  QLabel* picture_;
  QLabel* text_;
  ThumbnailMaker maker_;
  QString chosen_;
};

}  // namespace

void AddOpenPreview(QFileDialog& dialog) {
  auto* grid = qobject_cast<QGridLayout*>(dialog.layout());
  if (grid == nullptr) return;
  grid->addWidget(new OpenPreview(dialog), 0, grid->columnCount(), grid->rowCount(), 1);
  const QSize room = dialog.screen()->availableSize() * 9 / 10;
  dialog.resize(dialog.sizeHint().expandedTo(kDialog).boundedTo(room));
}

}  // namespace plenovia
