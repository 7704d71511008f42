// Where the auto-fill list stands.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// The place that the list reckons for itself, in twips: the frame's Left plus the caret's x and 100, its Top
/// plus the caret's y and 2070. The two numbers stand for a frame's title, menu and strips of one fixed
/// height. frame is in twips, caret in pixels of the text control.
QPoint DropDownTwips(QPoint frame, QPoint caret);

/// The place on the screen, in pixels of area's surroundings: below the caret's line, or above it where there
/// is more room, moved left and shortened so that it stays within area.
QRect DropDownRect(const QRect& caretLine, QSize list, const QRect& area);
