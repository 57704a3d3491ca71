#include "app/tests/monkey/chance.h"

#include <algorithm>

namespace plenovia {

QPoint Chance::In(const QRect& area) {
  return {Int(area.left(), std::max(area.left(), area.right())),
          Int(area.top(), std::max(area.top(), area.bottom()))};
}

QString Chance::Text() {
  static const QString kSpecial[] = {QString(),
                                     QStringLiteral("0"),
                                     QStringLiteral("-1"),
                                     QStringLiteral("2147483647"),
                                     QStringLiteral("-2147483648"),
                                     QStringLiteral("99999999999999999999"),
                                     QStringLiteral("1e9"),
                                     QStringLiteral("  12abc "),
                                     QStringLiteral("depth"),
                                     QStringLiteral("&ä€\U0001D11E%1%s"),
                                     QString(5000, u'7')};
  switch (Int(0, 3)) {
    case 0:
      return Pick(kSpecial);
    case 1:
      return QString::number(Int(-300, 1300));
    default:
      return QString::number(Int(1, 160));
  }
}

}  // namespace plenovia
