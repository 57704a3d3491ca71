// All patterns of the library as a grid of small pictures.
#pragma once

#include <QListWidget>

#include "images/sird_patt.h"

namespace plenovia {

// Moved through with the arrow keys, and by typing a pattern's number.
class PatternGrid : public QListWidget {
  Q_OBJECT

 public:
  explicit PatternGrid(QWidget* parent = nullptr);

  // Shows the library's patterns, and the current one as chosen.
  void Update(const TSirdPatt& library);

  QSize sizeHint() const override;

 Q_SIGNALS:
  // By the user: the pattern at this position.
  void Chosen(int index);
};

}  // namespace plenovia
