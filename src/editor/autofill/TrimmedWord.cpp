#include "editor/autofill/TrimmedWord.h"

#include "platform/text/RichTextBox.h"

#include <algorithm>

namespace {

/// No row of any list is as long as this.
constexpr int headLength = 64;

/// Texts between words are short, those of a page made of blanks are not: look at more each time.
constexpr int firstLook = 64;
constexpr int longestLook = 1 << 16;

/// How many blanks stand directly before end, looking back to start.
int BlanksBefore(const RichTextBox& text, int start, int end) {
    int blanks = 0;
    for (int look = firstLook; end - blanks > start; look = std::min(2 * look, longestLook)) {
        const int from = std::max(start, end - blanks - look);
        const QString piece = text.TextRange(from, end - blanks - from);
        const auto other = std::find_if(piece.rbegin(), piece.rend(), [](QChar c) { return c != u' '; });
        blanks += static_cast<int>(other - piece.rbegin());
        if (other != piece.rend())
            break;
    }
    return blanks;
}

/// How many blanks stand at start, looking forward to end.
int BlanksAfter(const RichTextBox& text, int start, int end) {
    int blanks = 0;
    for (int look = firstLook; start + blanks < end; look = std::min(2 * look, longestLook)) {
        const QString piece = text.TextRange(start + blanks, std::min(look, end - start - blanks));
        const auto other = std::find_if(piece.begin(), piece.end(), [](QChar c) { return c != u' '; });
        blanks += static_cast<int>(other - piece.begin());
        if (other != piece.end())
            break;
    }
    return blanks;
}

} // namespace

void TrimmedWord::Clear() {
    length_ = 0;
    head_.clear();
}

void TrimmedWord::Take(const RichTextBox& text, int start, int end) {
    if (end < start)
        return;
    const int stop = std::min(end, text.TextLength());
    const int last = stop - BlanksBefore(text, std::min(std::max(start, 0), stop), stop);
    const int first = std::min(std::max(start, 0), last);
    const int behindBlanks = first + BlanksAfter(text, first, last);
    length_ = last - behindBlanks;
    head_ = text.TextRange(behindBlanks, std::min(length_, headLength));
}

bool TrimmedWord::Begins(QStringView text) const {
    return length_ <= headLength && text.startsWith(head_, Qt::CaseInsensitive);
}
