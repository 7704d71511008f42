// What the Lists dialog computes: a whole list, one item a line.
#pragma once

#include "editor/color/TagCase.h"

#include <QStringList>

/// Named by the letter that tells them apart in the page: UL, OL, DL.
enum class ListKind : char { Bullets = 'U', Numbers = 'O', Definitions = 'D' };

QString ListText(ListKind kind, const QStringList& items, TagCase tagCase);
