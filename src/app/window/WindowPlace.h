// Where windows stand: plain functions of rectangles.
#pragma once

#include <QList>
#include <QRect>
#include <QSize>

namespace WindowPlace {

/// A window of a size in the middle of a screen: half the screen's size minus half the window's, each half a
/// whole number.
QRect Centred(QSize window, QRect screen);

/// The window in a possible size, moved as little as needed for a person to get hold of its title bar on one
/// of the screens; where it is already within reach it stays as it is. The first screen takes in a window
/// that is off them all.
QRect Reachable(QRect window, const QList<QRect>& screens);

/// The size, cut to what a person could have given a window: twice all the screens together. Beyond it lies
/// damage, which would take all memory.
QSize Possible(QSize window, const QList<QRect>& screens);

/// Places of windows side by side without gaps: rows first, in as few columns as keep them no wider than
/// needed, each column as wide as the others.
QList<QRect> TiledHorizontally(int windows, QSize area);

/// Places of minimised windows: in rows from the area's lower left corner, upwards.
QList<QRect> IconsInRows(int windows, QSize icon, QSize area);

} // namespace WindowPlace
