#include "editor/spelling/TextCharacter.h"

#include "editor/spelling/LetterEntities.h"
#include "platform/values/Cp1252.h"

#include <algorithm>
#include <QChar>

namespace {

/// No entity is longer: a "&" is looked at no further than this.
constexpr qsizetype longestEntity = 12;

bool IsAsciiLetter(char32_t code) {
    return (code >= U'a' && code <= U'z') || (code >= U'A' && code <= U'Z');
}

bool IsAsciiDigit(char32_t code) {
    return code >= U'0' && code <= U'9';
}

/// The character of a numeric reference, "#233" or "#xE9". Browsers take 128 to 159 as of code page 1252.
char32_t CodeOfNumber(QStringView reference) {
    const bool hex = reference.size() > 1 && reference[1].toLower() == u'x';
    bool ok = false;
    const uint code = reference.mid(hex ? 2 : 1).toUInt(&ok, hex ? 16 : 10);
    if (!ok || code == 0 || code > 0x10ffff || (code >= 0xd800 && code < 0xe000))
        return TextCharacter::Unknown;
    return code >= 128 && code < 160 ? Cp1252::FromCode(static_cast<int>(code)).unicode() : code;
}

/// What stands between "&" and ";" names a character.
bool IsReference(QStringView inner) {
    if (inner.isEmpty())
        return false;
    const QStringView name = inner.startsWith(u'#') ? inner.mid(1) : inner;
    return !name.isEmpty() && std::ranges::all_of(name, [](QChar c) {
        return IsAsciiLetter(c.unicode()) || IsAsciiDigit(c.unicode());
    });
}

TextCharacter Entity(QStringView text, qsizetype at) {
    const QStringView behind = text.mid(at + 1, longestEntity);
    const QStringView inner = behind.left(std::max(qsizetype{0}, behind.indexOf(u';')));
    if (!IsReference(inner))
        return {U'&', 1};
    const char32_t named = inner[0] == u'#' ? CodeOfNumber(inner) : CodeOfEntity(inner);
    return {named == 0 ? TextCharacter::Unknown : named, inner.size() + 2};
}

bool HasNoBlanksBetweenWords(char32_t code) {
    switch (QChar::script(code)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar:
        return true;
    default:
        return false;
    }
}

} // namespace

bool TextCharacter::IsBlank() const {
    return code <= U' ' || (code > 127 && QChar::isSpace(code));
}

bool TextCharacter::IsLetter() const {
    if (code < 128)
        return IsAsciiLetter(code);
    return (QChar::isLetter(code) || QChar::isMark(code)) && !HasNoBlanksBetweenWords(code);
}

bool TextCharacter::IsDigit() const {
    return code < 128 ? IsAsciiDigit(code) : QChar::isNumber(code);
}

TextCharacter CharacterAt(QStringView text, qsizetype at) {
    const QChar first = text[at];
    if (first == u'&')
        return Entity(text, at);
    if (first.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
        return {QChar::surrogateToUcs4(first, text[at + 1]), 2};
    return {first.unicode(), 1};
}
