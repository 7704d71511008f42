// What the Lists dialog computes: a whole list, one item a line.
#pragma once

#include "editor/color/TagCase.h"

#include <QStringList>

/// kind is "U" for bullets, "O" for numbers, "D" for definitions; any other kind gives an empty text.
QString ListText(const QString& kind, const QStringList& items, TagCase tagCase);
