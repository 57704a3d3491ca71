// Icons, button pictures and cursors by the numbers and names under which the program knows them.
#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QWidget>

namespace plenovia {

// A drawing (a resource) in this size in logical pixels, for a display with this scale factor; a
// null pixmap when there is none.
QPixmap DrawnPicture(const QString& file, const QSize& size, qreal scaleFactor);

// The resource with the face of the button of a command.
QString ButtonPictureFile(int command);
// The face of the button of a command; an empty icon when there is none.
QIcon ButtonPicture(int command);
// "i1" the program, "i2" a picture window, "i3" a depth map.
QIcon NamedIcon(const QString& name);

inline constexpr int kBusyCursor = 1250;
inline constexpr int kNormalCursor = 1251;

// Cursors 1250 to 1261, drawn for a display with this scale factor; the arrow for other numbers.
QCursor CursorById(int id, qreal scaleFactor);
// The busy or the normal cursor over a window.
void ShowBusyCursor(QWidget& window, bool busy);

}  // namespace plenovia
