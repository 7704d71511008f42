#include "platform/values/Cp1252.h"

#include <algorithm>
#include <array>

namespace {

/// The characters of the bytes 80 to 9F hex; all others are the Latin-1 character of the same number.
constexpr std::array<char16_t, 32> Middle{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

constexpr bool IsPlain(char16_t character) {
    return character < 0x80 || (character >= 0xA0 && character <= 0xFF);
}

int CodeOf(char16_t character) {
    if (IsPlain(character))
        return character;
    const auto* found = std::find(Middle.begin(), Middle.end(), character);
    return found == Middle.end() ? -1 : 0x80 + static_cast<int>(found - Middle.begin());
}

bool IsInside(QChar character) {
    return CodeOf(character.unicode()) >= 0;
}

} // namespace

namespace Cp1252 {

QString FromBytes(QByteArrayView bytes) {
    QString text = QString::fromLatin1(bytes);
    // Counted, since that goes many bytes at a time, as a search for the first does not.
    const auto inMiddle = [](char byte) { return (byte & 0xE0) == 0x80; };
    if (std::count_if(bytes.begin(), bytes.end(), inMiddle) == 0)
        return text;
    for (QChar& character : text) {
        if (!IsPlain(character.unicode()))
            character = FromCode(character.unicode());
    }
    return text;
}

QByteArray ToBytes(QStringView text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), bytes.begin(), [](QChar character) {
        const int code = CodeOf(character.unicode());
        return static_cast<char>(code < 0 ? '?' : code);
    });
    return bytes;
}

QChar FromCode(int code) {
    const auto character = static_cast<char16_t>(code & 0xFF);
    return IsPlain(character) ? QChar(character) : QChar(Middle[static_cast<size_t>(character - 0x80)]);
}

int ToCode(QChar character) {
    return CodeOf(character.unicode());
}

bool Holds(QStringView text) {
    return std::all_of(text.begin(), text.end(), IsInside);
}

QString Accept(QStringView text) {
    if (Holds(text))
        return text.toString();
    QString accepted;
    accepted.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (IsInside(character)) {
            accepted += character;
            continue;
        }
        uint number = character.unicode();
        if (character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            number = QChar::surrogateToUcs4(character, text[++i]);
        accepted += QStringLiteral("&#%1;").arg(number);
    }
    return accepted;
}

} // namespace Cp1252
