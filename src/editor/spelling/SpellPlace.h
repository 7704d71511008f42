// Where the dialog of the spell check stands.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// The place of a dialog on the screen that leaves a word to be seen: where it is now (at, its top left
/// corner) if it does so there; else below the word's line, above it, or beside the word, the first that has
/// room within area; at last where it covers the least. All in pixels.
QPoint PlaceBesideWord(QPoint at, QSize dialog, const QRect& word, const QRect& area);
