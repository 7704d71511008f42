// The text of a settings file: sections, keys and values, each in a line of its own.
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// The values of a settings file by section and key.
using IniValues = QMap<QString, QMap<QString, QString>>;

namespace IniText {

/// What can be made out of the bytes of a file. A line that says nothing is passed over.
IniValues Read(const QByteArray& bytes);

/// The bytes that give the values back: keys with their odd characters as %XX, values as UTF-8 with a
/// backslash in front of what has a meaning of its own, in quotes where a comma, a semicolon or a blank at an
/// end asks for them.
QByteArray Write(const IniValues& values);

} // namespace IniText
