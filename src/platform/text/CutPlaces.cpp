#include "platform/text/CutPlaces.h"

#include <algorithm>
#include <iterator>
#include <QChar>

namespace {

constexpr char32_t firstBeyondAscii = 0x80;

struct Range {
    char32_t first;
    char32_t last;
};

/// Characters that neither join their neighbours nor are joined by them, in order. Only whole ones: marks,
/// the parts of syllables and what joins or turns a text are left out.
constexpr Range standAlone[] = {
    {0x00A0, 0x00AC}, {0x00AE, 0x02FF},   {0x0370, 0x0482},   {0x048A, 0x0556}, {0x0561, 0x0587},
    {0x10A0, 0x10FF}, {0x1E00, 0x1FFF},   {0x2010, 0x2027},   {0x2030, 0x205E}, {0x2070, 0x20BF},
    {0x2100, 0x2121}, {0x2123, 0x2138},   {0x2150, 0x218B},   {0x2200, 0x22FF}, {0x2500, 0x259F},
    {0x2C60, 0x2C7F}, {0x2E80, 0x3029},   {0x3031, 0x3098},   {0x309B, 0x312F}, {0x3190, 0x31FF},
    {0x3400, 0x9FFF}, {0xA720, 0xA7FF},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF}, {0xFF01, 0xFF9D},
    {0xFFE0, 0xFFE6}, {0x20000, 0x2FA1F}, {0x30000, 0x3134F},
};

bool StandsAlone(char32_t character) {
    if (character < firstBeyondAscii)
        return true;
    const auto* range = std::lower_bound(std::begin(standAlone), std::end(standAlone), character,
                                         [](const Range& one, char32_t c) { return one.last < c; });
    return range != std::end(standAlone) && range->first <= character;
}

bool IsContinuation(char byte) {
    return (byte & 0xC0) == 0x80;
}

/// The one character of these bytes. What is cut off gives one that does not stand alone.
char32_t CharacterOf(QByteArrayView bytes) {
    const auto lead = static_cast<unsigned char>(bytes[0]);
    if (lead < firstBeyondAscii)
        return lead;
    const qsizetype size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (IsContinuation(bytes[0]) || bytes.size() != size)
        return QChar::ReplacementCharacter;
    char32_t character = lead & (0x7FU >> size);
    for (const char byte : bytes.sliced(1))
        character = character << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
    return character;
}

char32_t CharacterBehind(QByteArrayView utf8, qsizetype at) {
    qsizetype end = at + 1;
    while (end < utf8.size() && IsContinuation(utf8[end]))
        ++end;
    return CharacterOf(utf8.sliced(at, end - at));
}

char32_t CharacterBefore(QByteArrayView utf8, qsizetype at) {
    qsizetype start = at - 1;
    while (start > 0 && IsContinuation(utf8[start]))
        --start;
    return CharacterOf(utf8.sliced(start, at - start));
}

bool BeginsWordFromTheLeft(char32_t character) {
    const QChar::Direction direction = QChar::direction(character);
    const bool fromTheLeft = direction == QChar::DirL || direction == QChar::DirON;
    return fromTheLeft && (QChar::isLetter(character) || QChar::category(character) == QChar::Symbol_Other);
}

} // namespace

bool MayCutAt(QByteArrayView utf8, qsizetype at) {
    const char left = utf8[at - 1];
    const char right = utf8[at];
    if (((left | right) & firstBeyondAscii) == 0)
        return true;
    if (IsContinuation(right))
        return false;
    const char32_t behind = CharacterBehind(utf8, at);
    if (StandsAlone(behind) && StandsAlone(CharacterBefore(utf8, at)))
        return true;
    const bool blank = left == ' ' || left == '\t' || left == '\r' || left == '\n';
    return blank && BeginsWordFromTheLeft(behind);
}
