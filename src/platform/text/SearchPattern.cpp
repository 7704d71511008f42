#include "platform/text/SearchPattern.h"

#include <algorithm>
#include <array>

namespace {

using Moves = std::vector<std::pair<qsizetype, qsizetype>>;

constexpr int mostBytes = 4;

constexpr std::array<char, 128> lowerAscii = [] {
    std::array<char, 128> table{};
    for (int code = 0; code < 128; ++code)
        table[static_cast<std::size_t>(code)] =
            static_cast<char>(code >= 'A' && code <= 'Z' ? code + 'a' - 'A' : code);
    return table;
}();

/// The bytes of the character that such a byte begins; 1 for one that begins none.
int LengthFrom(unsigned char first) {
    return first < 0xc0 ? 1 : first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
}

int LengthOf(char32_t code) {
    return code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
}

/// The folded character of one of more than one byte.
char32_t FoldedAt(const char* utf8, int length) {
    char32_t code = static_cast<unsigned char>(*utf8) & (0x7fU >> length);
    for (int i = 1; i < length; ++i)
        code = code << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3fU);
    return code > QChar::LastValidCodePoint ? code : QChar::toCaseFolded(code);
}

/// Writes a character, and returns where the next one goes.
char* Write(char32_t code, char* at) {
    const int length = LengthOf(code);
    if (length == 1) {
        *at = static_cast<char>(code);
        return at + 1;
    }
    for (int i = length - 1; i > 0; --i, code >>= 6)
        at[i] = static_cast<char>(0x80 | (code & 0x3f));
    *at = static_cast<char>(0xf00U >> length | code);
    return at + length;
}

/// Folds a text. No folded character has more than one byte more than it had, and only those of two bytes or
/// more do.
QByteArray Folded(QByteArrayView utf8, Moves& moved) {
    QByteArray folded(utf8.size() + utf8.size() / 2 + mostBytes, Qt::Uninitialized);
    char* to = folded.data();
    const char* const end = utf8.end();
    for (const char* at = utf8.begin(); at < end;) {
        const auto first = static_cast<unsigned char>(*at);
        const int length = LengthFrom(first);
        if (first < 0x80) {
            *to++ = lowerAscii[first];
            ++at;
            continue;
        }
        if (length == 1 || length > end - at) {
            *to++ = *at++;
            continue;
        }
        char* const next = Write(FoldedAt(at, length), to);
        at += length;
        if (next - to != length)
            moved.emplace_back(next - folded.data(), at - utf8.begin());
        to = next;
    }
    folded.truncate(to - folded.data());
    return folded;
}

QByteArray PatternBytes(const QString& text, bool matchCase) {
    Moves moved;
    return matchCase ? text.toUtf8() : Folded(text.toUtf8(), moved);
}

} // namespace

SearchPattern::SearchPattern(const QString& text, bool matchCase)
    : matchCase_(matchCase), search_(PatternBytes(text, matchCase)) {
    const auto characters = static_cast<int>(text.toUcs4().size());
    const auto bytes = static_cast<int>(search_.Size());
    shortest_ = matchCase ? bytes : characters;
    longest_ = matchCase ? bytes : characters * mostBytes;
}

qsizetype SearchPattern::Stretch::Source(qsizetype folded) const {
    const auto behind =
        std::upper_bound(moved_.begin(), moved_.end(), folded,
                         [](qsizetype place, const auto& move) { return place < move.first; });
    if (behind == moved_.begin())
        return folded;
    return std::prev(behind)->second + (folded - std::prev(behind)->first);
}

SearchPattern::Stretch SearchPattern::Comparable(QByteArrayView utf8) const {
    Stretch stretch;
    stretch.bytes_ = matchCase_ ? utf8.toByteArray() : Folded(utf8, stretch.moved_);
    return stretch;
}

std::optional<SearchPattern::Match> SearchPattern::FirstIn(const Stretch& stretch, qsizetype next) const {
    const qsizetype found = search_.IndexIn(stretch.bytes_, next);
    if (found < 0)
        return std::nullopt;
    const qsizetype at = stretch.Source(found);
    return Match{at, stretch.Source(found + search_.Size()) - at, found + 1};
}
