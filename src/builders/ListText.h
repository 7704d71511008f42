// What the Lists dialog computes: a whole list, one item a line.
#pragma once

#include <QString>
#include <QStringList>

class Frame;

/// kind is "U" for bullets, "O" for numbers, "D" for definitions; any other kind gives an empty text.
QString ListText(Frame& frame, const QString& kind, const QStringList& items);
