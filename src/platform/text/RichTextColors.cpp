#include "platform/text/RichTextColors.h"

#include <algorithm>
#include <QtGlobal>
#include <utility>

namespace {

constexpr std::uint32_t longestRun = 0xffffff;

int Distance(ColorNumber a, ColorNumber b) {
    const ColorParts one = PartsOf(a);
    const ColorParts other = PartsOf(b);
    const int red = one.red - other.red;
    const int green = one.green - other.green;
    const int blue = one.blue - other.blue;
    return red * red + green * green + blue * blue;
}

} // namespace

void StyleRuns::Append(int length, int style) {
    const auto tag = static_cast<std::uint32_t>(style);
    auto rest = static_cast<std::uint32_t>(std::max(length, 0));
    if (rest > 0 && !packed_.empty() && (packed_.back() & 0xff) == tag) {
        const std::uint32_t taken = std::min(rest, longestRun - (packed_.back() >> 8));
        packed_.back() += taken << 8;
        rest -= taken;
    }
    while (rest > 0) {
        const std::uint32_t taken = std::min(rest, longestRun);
        packed_.push_back(taken << 8 | tag);
        rest -= taken;
    }
}

void StyleRuns::Append(const StyleRuns& more) {
    for (std::size_t run = 0; run < more.Count(); ++run)
        Append(more.LengthOf(run), more.StyleOf(run));
}

StyleTable::Found StyleTable::StyleFor(ColorNumber color) {
    if (color < 0)
        return {0, false};
    color &= 0xffffff;
    if (const auto known = styles_.constFind(color); known != styles_.cend())
        return {*known, false};
    if (next_ == count)
        return {Nearest(color), false};
    const int style = next_++;
    colors_[static_cast<std::size_t>(style)] = color;
    styles_.insert(color, style);
    return {style, true};
}

int StyleTable::Nearest(ColorNumber color) const {
    int best = 0;
    for (int style = 1; style < next_; ++style) {
        if (Distance(ColorOf(style), color) < Distance(ColorOf(best), color))
            best = style;
    }
    return best;
}

void UndoColors::Append(Kind kind, StyleRuns colors) {
    entries_.resize(cursor_);
    entries_.push_back({std::move(colors), kind});
    ++cursor_;
}

StyleRuns* UndoColors::StepBack(Kind kind) {
    if (cursor_ == 0 || entries_[cursor_ - 1].kind != kind) {
        Q_ASSERT_X(false, "UndoColors", "an undo step without its colours");
        return nullptr;
    }
    return &entries_[--cursor_].colors;
}

StyleRuns* UndoColors::StepForward(Kind kind) {
    if (cursor_ == entries_.size() || entries_[cursor_].kind != kind) {
        Q_ASSERT_X(false, "UndoColors", "a redo step without its colours");
        return nullptr;
    }
    return &entries_[cursor_++].colors;
}

void UndoColors::Clear() {
    entries_.clear();
    entries_.shrink_to_fit();
    cursor_ = 0;
}
