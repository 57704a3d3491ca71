// What mouse and keyboard can do to a window and the widgets in it.
#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include "app/tests/monkey/chance.h"

namespace plenovia {

// A child that can be seen and used, or the window itself.
QWidget* AnyWidgetIn(QWidget& window, Chance& chance);

void Click(QWidget& widget, QPoint place, Chance& chance);
// A click, double click, drag, way or turn of the wheel that begins in the widget. What lies above
// the widget gets it, as with a real mouse.
void UseMouse(QWidget& widget, Chance& chance);
// Presses the keys and releases them; what comes after the end of the window is left out.
void StrikeKey(const QPointer<QWindow>& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
// A key, or a short word, to what has the focus in the window.
void UseKeys(QWidget& window, Chance& chance);
// Something that fits the kind of the widget: text for a field, another choice of a list, ...
void Poke(QWidget& widget, Chance& chance);

}  // namespace plenovia
