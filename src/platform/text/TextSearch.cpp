#include "platform/text/TextSearch.h"

#include "platform/text/SearchPattern.h"
#include "platform/text/TextBuffer.h"

#include <algorithm>
#include <QByteArray>

namespace {

/// The first chunk is small, since most searches end soon; each further one doubles up to this.
constexpr int firstChunk = 1 << 9;
constexpr int longestChunk = 1 << 18;

/// A mark belongs to the letter before it.
bool IsWordCharacter(char32_t c) {
    return QChar::isLetterOrNumber(c) || QChar::isMark(c) || c == u'_';
}

/// Whether a word goes on from the last character of one text to the first of another.
bool Joined(const QString& left, const QString& right) {
    return !left.isEmpty() && !right.isEmpty() && IsWordCharacter(left.toUcs4().back()) &&
           IsWordCharacter(right.toUcs4().front());
}

} // namespace

std::optional<ByteRange> TextSearch::Forward(const QString& text, ByteRange range, int options) const {
    return Forward(SearchPattern(text, (options & MatchCase) != 0), range, options);
}

std::vector<ByteRange> TextSearch::Each(const QString& text, ByteRange range, int gap, int options) const {
    const SearchPattern pattern(text, (options & MatchCase) != 0);
    std::vector<ByteRange> matches;
    while (const std::optional<ByteRange> match = Forward(pattern, range, options)) {
        matches.push_back(*match);
        range.start = match->end;
        for (int i = 0; i < gap && range.start < range.end; ++i)
            range.start += LengthAt(range.start);
    }
    return matches;
}

std::optional<ByteRange> TextSearch::Forward(const SearchPattern& pattern, ByteRange range,
                                             int options) const {
    int from = range.start;
    int chunk = std::max(firstChunk, 2 * pattern.Longest());
    while (range.end - from >= pattern.Shortest()) {
        const int to = static_cast<int>(std::min<qint64>(qint64{from} + chunk, range.end));
        // A copy: looking at the characters around a match may move what lies in place.
        const SearchPattern::Stretch stretch = pattern.Comparable(buffer_.InPlace({from, to}));
        for (auto found = pattern.FirstIn(stretch); found; found = pattern.FirstIn(stretch, found->next)) {
            const int at = from + static_cast<int>(found->at);
            const ByteRange match{at, at + static_cast<int>(found->size)};
            if ((options & WholeWord) == 0 || IsWholeWord(match))
                return match;
        }
        if (to == range.end)
            break;
        // What begins in the last bytes may end behind them, and is looked at anew.
        from = to - pattern.Longest() + 1;
        chunk = std::max(std::min(2 * chunk, longestChunk), 2 * pattern.Longest());
    }
    return std::nullopt;
}

/// The bytes of the character at a byte; a CR and its LF are two.
int TextSearch::LengthAt(int byte) const {
    const bool isPair = buffer_.InPlace({byte, byte + 1}).startsWith('\r');
    return isPair ? 1 : buffer_.CharacterAt(byte).Length();
}

bool TextSearch::IsWholeWord(ByteRange match) const {
    const QString before = buffer_.Text(buffer_.CharacterBefore(match.start));
    const QString behind = buffer_.Text(buffer_.CharacterAt(match.end));
    const QString found = buffer_.Text(match);
    return !Joined(before, found) && !Joined(found, behind);
}
