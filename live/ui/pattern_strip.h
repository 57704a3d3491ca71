// The patterns as a strip of thumbnails.
#pragma once

#include <QListWidget>
#include <memory>
#include <vector>

#include "images/sird_patt.h"

namespace plenovia {

// Each is shown dot for dot, as much of it as there is room.
class PatternStrip : public QListWidget {
  Q_OBJECT

 public:
  explicit PatternStrip(QWidget* parent);

  // Shows what the library holds, which may be null, and which one is current.
  void Update(const TSirdPatt* library);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {80, sizeHint().height()}; }

 Q_SIGNALS:
  void Chosen(int index);

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  std::vector<std::weak_ptr<const IndexedImage>> shown_;
};

}  // namespace plenovia
