// A look at one pattern, dot for dot.
#pragma once

#include <QWidget>
#include <memory>

#include "platform/indexed_image.h"

namespace plenovia {

// Shows the pattern from its top left corner, one dot a pixel of the display at any scale factor;
// what is larger is cut off, and what is left free is white.
class PatternSample : public QWidget {
  Q_OBJECT

 public:
  explicit PatternSample(QWidget* parent = nullptr);

  // Null shows nothing.
  void SetPattern(std::shared_ptr<const IndexedImage> pattern);
  const std::shared_ptr<const IndexedImage>& Pattern() const { return pattern_; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::shared_ptr<const IndexedImage> pattern_;
};

}  // namespace plenovia
