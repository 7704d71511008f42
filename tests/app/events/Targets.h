// Which windows and controls a user can reach now, always in the same order.
#pragma once

#include "app/events/Dice.h"

#include <functional>
#include <QList>
#include <QWidget>

namespace Targets {

/// The windows on the screen, by their names.
QList<QWidget*> Windows();
/// The popup or modal dialog that is in front; null where there is neither.
QWidget* InFront();
/// The one in front, else any; now and then one that is shut out by it. Null where none is on the screen.
QWidget* AnyWindow(Dice& dice);
/// Those below a window that can be seen and used, in the order of the tree.
QList<QWidget*> Controls(QWidget& window, const std::function<bool(QWidget&)>& wanted);
/// One of these in any window that may be used; null where there is none.
QWidget* AnyControl(Dice& dice, const std::function<bool(QWidget&)>& wanted);
/// A place in a control: an entry of a menu, a tab, a row, the box of a check box; else anywhere.
QPoint PlaceIn(QWidget& control, Dice& dice);
/// What the log calls it.
QString NameOf(const QWidget& control);

} // namespace Targets
