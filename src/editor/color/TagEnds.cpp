#include "editor/color/TagEnds.h"

#include "platform/text/RichTextBox.h"

#include <algorithm>

namespace {

/// Most tags are short: the first look is, and those that follow grow.
constexpr int firstChunk = 1 << 9;
constexpr int longestChunk = 1 << 13;

} // namespace

TextReader ReaderOf(const RichTextBox& text) {
    return [&text](int start, int length) { return text.TextRange(start, length); };
}

std::optional<BracketPlace> BracketBefore(int caret, const TextReader& read, int reach) {
    const int first = caret - std::min(caret, reach);
    int chunk = firstChunk;
    for (int end = caret; end > first;) {
        const int start = end - std::min(end - first, chunk);
        const QString text = read(start, end - start);
        for (qsizetype i = text.size() - 1; i >= 0; --i) {
            if (text[i] == u'<' || text[i] == u'>')
                return BracketPlace{text[i] == u'<' ? Bracket::Open : Bracket::Close,
                                    start + static_cast<int>(i)};
        }
        end = start;
        chunk = std::min(2 * chunk, longestChunk);
    }
    return std::nullopt;
}

std::optional<TagPlace> TagFrom(int open, const TextReader& read) {
    int chunk = firstChunk;
    for (int start = open;;) {
        const QString text = read(start, chunk);
        if (const qsizetype found = text.indexOf(u'>'); found >= 0)
            return TagPlace{open, start + static_cast<int>(found) - open + 1};
        if (text.size() < chunk)
            return std::nullopt;
        start += chunk;
        chunk = std::min(2 * chunk, longestChunk);
    }
}

std::optional<TagPlace> FindTagAround(int caret, const TextReader& read) {
    const auto bracket = BracketBefore(caret, read);
    if (!bracket)
        return TagPlace{caret, 0};
    return bracket->kind == Bracket::Open ? TagFrom(bracket->place, read) : std::nullopt;
}
