// What the mathematical figures are called.
#pragma once

#include <QString>
#include <QStringList>

namespace plenovia {

// Empty for a number that no figure has.
QString FigureTitle(int figure);
// Of all figures, in the order of their numbers.
QStringList FigureTitles();

}  // namespace plenovia
