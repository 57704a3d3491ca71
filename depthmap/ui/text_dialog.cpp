#include "depthmap/ui/text_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QImage>
#include <QPixmap>
#include <algorithm>
#include <span>
#include <utility>

#include "depthmap/depth_list.h"
#include "platform/ui/dialog_controls.h"
#include "platform/ui/picture_painting.h"

namespace plenovia {

namespace {

constexpr QSize kPreview(420, 110);
constexpr std::int32_t kShown = 1;

// The shapes dot for dot, white on black, as far as they fit.
QImage Picture(std::vector<std::unique_ptr<TDepthObj>> shapes, const QSize& size) {
  TDepthList list(size.width(), size.height());
  for (auto& shape : shapes) list.AddObject(std::move(shape));
  QImage picture(size, QImage::Format_Grayscale8);
  std::vector<std::int32_t> levels(static_cast<std::size_t>(size.width()));
  for (int y = 0; y < size.height(); ++y) {
    list.LevelRow(y, levels);
    const std::span row(picture.scanLine(y), levels.size());
    std::ranges::transform(levels, row.begin(), [](std::int32_t level) {
      return static_cast<uchar>(level == kShown ? 255 : 0);
    });
  }
  return picture;
}

}  // namespace

TextDialog::TextDialog(QWidget* parent, const TextStyle& style)
    : QDialog(parent),
      text_(new QLineEdit(style.text)),
      family_(new QFontComboBox),
      size_(MakeSpinBox("textSize", kLeastTextSize, kGreatestTextSize, style.size)),
      spacing_(MakeSpinBox("textSpacing", -kGreatestSpacing, kGreatestSpacing, style.spacing)),
      bold_(new QCheckBox(tr("&Bold"))),
      preview_(new QLabel),
      facts_(new QLabel) {
  setWindowTitle(tr("Text"));
  text_->setObjectName(QStringLiteral("text"));
  text_->setMaxLength(kLongestText);
  family_->setObjectName(QStringLiteral("textFont"));
  family_->setFontFilters(QFontComboBox::ScalableFonts);
  if (!style.family.isEmpty()) family_->setCurrentFont(QFont(style.family));
  bold_->setObjectName(QStringLiteral("textBold"));
  bold_->setChecked(style.bold);
  preview_->setObjectName(QStringLiteral("textPreview"));
  preview_->setFixedSize(kPreview);
  facts_->setObjectName(QStringLiteral("textFacts"));
  auto* form = new QFormLayout(this);
  form->addRow(tr("&Text:"), text_);
  form->addRow(tr("&Font:"), family_);
  form->addRow(tr("&Size:"), size_);
  form->addRow(tr("S&pacing:"), spacing_);
  form->addRow(bold_);
  form->addRow(preview_);
  form->addRow(facts_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  ok_ = buttons->button(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
  connect(text_, &QLineEdit::textChanged, this, &TextDialog::ShowPreview);
  connect(family_, &QFontComboBox::currentFontChanged, this, &TextDialog::ShowPreview);
  connect(size_, &QSpinBox::valueChanged, this, &TextDialog::ShowPreview);
  connect(spacing_, &QSpinBox::valueChanged, this, &TextDialog::ShowPreview);
  connect(bold_, &QCheckBox::toggled, this, &TextDialog::ShowPreview);
  ShowPreview();
}

TextStyle TextDialog::Style() const {
  return {text_->text(), family_->currentFont().family(), size_->value(), spacing_->value(),
          bold_->isChecked()};
}

void TextDialog::ShowPreview() {
  auto shapes = TextShapes(Style(), kShown);
  const PixelRect box = BoxAround(shapes);
  ok_->setEnabled(!shapes.empty());
  facts_->setText(shapes.empty() ? tr("Nothing to be seen yet.")
                                 : tr("%1 x %2 pixels, polygons: %3")
                                       .arg(box.right - box.left)
                                       .arg(box.bottom - box.top)
                                       .arg(shapes.size()));
  QPixmap picture = QPixmap::fromImage(
      Picture(std::move(shapes), (QSizeF(kPreview) * devicePixelRatioF()).toSize()));
  picture.setDevicePixelRatio(devicePixelRatioF());
  preview_->setPixmap(picture);
}

}  // namespace plenovia
