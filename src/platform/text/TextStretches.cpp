#include "platform/text/TextStretches.h"

#include "platform/text/CutPlaces.h"

#include <algorithm>

namespace {

bool IsBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

bool IsAscii(char left, char right) {
    constexpr int firstBeyondAscii = 0x80;
    return ((left | right) & firstBeyondAscii) == 0;
}

/// Behind these a piece of a tag ends that others share.
bool IsMark(char byte) {
    return byte == '"' || byte == '=' || byte == '/' || byte == '>';
}

bool EndsBehind(char left, char right, qsizetype length) {
    return (IsBlank(left) && !IsBlank(right)) || (IsMark(left) && length >= StretchCutter::shortest);
}

/// Whether a stretch of a length ends between two bytes of ASCII.
bool EndsBetween(char left, char right, qsizetype length) {
    return IsAscii(left, right) && (EndsBehind(left, right, length) || length >= StretchCutter::longest);
}

/// The same at a byte of a text, beside a character beyond ASCII. Their stretches are longer: so are words in
/// bytes, and where they may be cut is not as cheap to tell.
bool EndsBeyondAscii(QByteArrayView text, qsizetype at, qsizetype length) {
    if (length < StretchCutter::longest)
        return false;
    const bool ends =
        EndsBehind(text[at - 1], text[at], length) || length >= StretchCutter::longestBeyondAscii;
    return ends && MayCutAt(text, at);
}

/// Where in text the stretch ends that starts at `from` and is `length` bytes long before it.
qsizetype StretchEnd(QByteArrayView text, qsizetype from, qsizetype length) {
    for (qsizetype at = from + 1; at < text.size(); ++at) {
        const qsizetype soFar = length + at - from;
        if (IsAscii(text[at - 1], text[at]) ? EndsBetween(text[at - 1], text[at], soFar)
                                            : EndsBeyondAscii(text, at, soFar))
            return at;
    }
    return text.size();
}

/// The place nearest to one where text may be cut, at most `reach` bytes away, or -1.
int CutNear(QByteArrayView text, int place, int reach) {
    for (int away = 0; away <= reach; ++away) {
        for (const int at : {place - away, place + away}) {
            if (MayCutAt(text, at))
                return at;
        }
    }
    return -1;
}

} // namespace

StretchCutter::StretchCutter(const CellText& before) {
    const qsizetype size = before.text.size();
    if (size == 0)
        return;
    cell_ = before.cells[size - 1];
    last_ = before.text[size - 1];
    while (length_ < size && length_ <= longest && before.cells[size - 1 - length_] == cell_)
        ++length_;
}

void StretchCutter::Append(QByteArrayView text, int style, QByteArray& cells) {
    if (text.isEmpty())
        return;
    if (length_ == 0 || StyleCells::StyleOf(cell_) != style) {
        cell_ = StyleCells::First(style);
        length_ = 0;
    } else if (EndsBetween(last_, text.front(), length_)) {
        cell_ = StyleCells::Twin(cell_);
        length_ = 0;
    }
    for (qsizetype from = 0; from < text.size();) {
        const qsizetype end = StretchEnd(text, from, length_);
        cells.append(end - from, cell_);
        length_ = static_cast<int>(std::min<qsizetype>(length_ + end - from, longestBeyondAscii));
        from = end;
        if (from < text.size()) {
            cell_ = StyleCells::Twin(cell_);
            length_ = 0;
        }
    }
    last_ = text.back();
}

TextPart PartToTurn(const CellText& around, int place) {
    const auto size = static_cast<int>(around.cells.size());
    if (place >= size)
        --place;
    if (place < 0)
        return {0, 0};
    int start = place;
    while (start > 0 && around.cells[start - 1] == around.cells[place])
        --start;
    int end = place;
    while (end < size && around.cells[end] == around.cells[place])
        ++end;
    const int third = (end - start) / 3;
    if (end - start <= 2 * StretchCutter::longest)
        return {place, place};
    const int first = CutNear(around.text, start + third, third / 2);
    const int second = CutNear(around.text, end - third, third / 2);
    return first < 0 || second <= first ? TextPart{place, place} : TextPart{first, second};
}
