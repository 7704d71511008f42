// Text with styles in it on its way into a file or a document.
#pragma once

#include "platform/values/CharacterSet.h"

#include <QByteArray>
#include <QString>

/// A text in which a character that can't be held is an escape of style sheets: "\2603 ". A reference would
/// stand for nothing there.
QString WithEscapes(const QString& text, CharacterSet holds);

/// The bytes that a file gets: the text without the blanks (32) at its two ends, and one more CR LF.
QByteArray PrintedLine(const QString& text);
