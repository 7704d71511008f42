// How wide the control takes a stretch of text with words from right to left.
#pragma once

#include <QList>
#include <QStringView>

class QFont;
class QString;

/// Whether a letter of the text is of a script that is written from right to left.
bool HasRightToLeft(QStringView text);

/// Where each UTF-16 unit of a text ends, in pixels from its start, if its characters stood from left to
/// right in the order they are read; each as wide as it is drawn. None ends before the one in front of it,
/// and the last ends where the drawn text does, whatever directions it mixes.
QList<qreal> EndsFromTheLeft(const QString& text, const QFont& font);

/// Called by the control, so that the linker takes in how its base class measures from then on: it puts what
/// follows a stretch where the caret stands behind its last character, which is at the left of a word from
/// right to left, and so over it.
void UseStretchMeasure();
