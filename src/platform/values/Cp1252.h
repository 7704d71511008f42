// Code page 1252: the 256 characters that a document can hold whose file is not in UTF-8.
#pragma once

#include <QByteArray>
#include <QString>

namespace Cp1252 {

/// One character per byte. The five unassigned bytes (81, 8D, 8F, 90, 9D hex) give their C1 control.
QString FromBytes(QByteArrayView bytes);
/// The reverse of FromBytes. A character outside the code page, which no document holds, becomes "?".
QByteArray ToBytes(QStringView text);
/// The character of a code 0 to 255.
QChar FromCode(int code);
/// The code of a character, or -1 if it is outside the code page.
int ToCode(QChar character);
/// Whether every character of a text is one of the code page's.
bool Holds(QStringView text);
/// Text from outside (clipboard, keyboard, drop) as a document can hold it: a character outside the code page
/// becomes its decimal character reference, "&#9731;", one for a surrogate pair.
QString Accept(QStringView text);

} // namespace Cp1252
