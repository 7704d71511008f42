// Text with styles in it on its way into a file.
#pragma once

#include <QByteArray>
#include <QString>

/// A text in which a character from outside code page 1252 is an escape of style sheets: "\2603 ".
QString WithEscapes(const QString& text);

/// The bytes that a file gets: the text without the blanks (32) at its two ends, and one more CR LF.
QByteArray PrintedLine(const QString& text);
