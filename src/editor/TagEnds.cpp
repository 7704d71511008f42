#include "editor/TagEnds.h"

#include <algorithm>

namespace {

constexpr int ChunkLength = 4096;

/// The nearest angle bracket left of a position, or -1.
int BracketBefore(int position, const TextReader& read, bool& opens) {
    for (int end = position; end > 0; end -= std::min(end, ChunkLength)) {
        const int start = std::max(0, end - ChunkLength);
        const QString chunk = read(start, end - start);
        for (qsizetype i = chunk.size() - 1; i >= 0; --i) {
            if (chunk[i] == u'<' || chunk[i] == u'>') {
                opens = chunk[i] == u'<';
                return start + static_cast<int>(i);
            }
        }
    }
    return -1;
}

/// The first ">" from a position on, or -1.
int CloseFrom(int position, const TextReader& read) {
    for (int start = position;; start += ChunkLength) {
        const QString chunk = read(start, ChunkLength);
        if (const qsizetype found = chunk.indexOf(u'>'); found >= 0)
            return start + static_cast<int>(found);
        if (chunk.size() < ChunkLength)
            return -1;
    }
}

} // namespace

std::optional<TagPlace> FindTagAround(int caret, const TextReader& read) {
    bool opens = false;
    const int bracket = BracketBefore(caret, read, opens);
    if (bracket < 0)
        return TagPlace{caret, 0};
    if (!opens)
        return std::nullopt;
    const int close = CloseFrom(bracket, read);
    if (close < 0)
        return std::nullopt;
    return TagPlace{bracket, close - bracket + 1};
}
