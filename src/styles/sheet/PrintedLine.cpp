#include "styles/sheet/PrintedLine.h"

#include "platform/values/Cp1252.h"
#include "platform/values/Values.h"

#include <QList>

namespace {

bool IsInside(QChar character) {
    return Cp1252::ToCode(character) >= 0;
}

} // namespace

QString WithEscapes(const QString& text, CharacterSet holds) {
    if (holds == CharacterSet::Unicode || Cp1252::Holds(text))
        return text;
    QString escaped;
    for (const uint character : text.toUcs4()) {
        if (character < 0x10000 && IsInside(QChar(static_cast<char16_t>(character))))
            escaped += QChar(static_cast<char16_t>(character));
        else
            // Its blank ends the escape and is no part of the text.
            escaped += u'\\' + QString::number(character, 16) + u' ';
    }
    return escaped;
}

QByteArray PrintedLine(const QString& text) {
    return Cp1252::ToBytes(WithEscapes(Values::Trim(text), CharacterSet::CodePage1252)) + "\r\n";
}
