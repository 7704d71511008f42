// The word typed since a list opened.
#include "editor/TrimmedWord.h"

#include "platform/RichTextBox.h"

#include <algorithm>

namespace {

/// No row of any list is as long as this.
constexpr int headLength = 64;

} // namespace

void TrimmedWord::Clear() {
    length_ = 0;
    head_.clear();
}

void TrimmedWord::Take(const RichTextBox& text, int start, int end) {
    if (end < start)
        return;
    const QChar blank = u' ';
    int last = std::min(end, text.TextLength());
    int first = std::min(std::max(start, 0), last);
    while (first < last && text.CharAt(first) == blank)
        ++first;
    while (last > first && text.CharAt(last - 1) == blank)
        --last;
    length_ = last - first;
    head_ = text.TextRange(first, std::min(length_, headLength));
}

bool TrimmedWord::Begins(QStringView text) const {
    return length_ <= headLength && text.startsWith(head_, Qt::CaseInsensitive);
}
