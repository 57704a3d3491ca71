#include "images/ui/figure_titles.h"

#include <array>

#include "figures/sirdmath.h"

namespace plenovia {

QString FigureTitle(int figure) {
  std::array<char, 128> title{};
  _GetFigureTitle(figure, title.data(), static_cast<std::int32_t>(title.size()));
  return QString::fromUtf8(title.data());
}

QStringList FigureTitles() {
  QStringList titles;
  for (int figure = 0; figure < _GetFigureCount(); ++figure) titles << FigureTitle(figure);
  return titles;
}

}  // namespace plenovia
