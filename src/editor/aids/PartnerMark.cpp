#include "editor/aids/PartnerMark.h"

#include "platform/text/RichTextBox.h"

#include <array>
#include <utility>

namespace {

/// As many characters as take less than a millisecond.
constexpr int charactersATurn = 1 << 16;

CharRange RangeOf(const TagPlace& tag) {
    return {tag.start, tag.start + tag.length};
}

} // namespace

PartnerMark::PartnerMark(RichTextBox& text, QObject* parent) : QObject(parent), text_(text) {
    pause_.setSingleShot(true);
    pause_.setInterval(Pause);
    turns_.setInterval(0);
    connect(&text, &RichTextBox::Change, this, &PartnerMark::CaretMoved);
    connect(&text, &RichTextBox::SelChange, this, &PartnerMark::CaretMoved);
    connect(&pause_, &QTimer::timeout, this, &PartnerMark::Search);
    connect(&turns_, &QTimer::timeout, this, &PartnerMark::Turn);
}

void PartnerMark::CaretMoved() {
    turns_.stop();
    search_.reset();
    if (marked_ && !CaretIsMarked()) {
        text_.Aids().UnmarkInView();
        marked_ = false;
    }
    pause_.start();
}

bool PartnerMark::CaretIsMarked() const {
    const int caret = text_.CaretPosition();
    return text_.Aids().IsMarked(caret) || text_.Aids().IsMarked(caret - 1);
}

void PartnerMark::Search() {
    if (text_.SelLength() > 0)
        return Show(std::nullopt);
    search_.emplace(text_.CaretPosition(), ReaderOf(text_));
    turns_.start();
}

void PartnerMark::Turn() {
    if (search_->Turn(charactersATurn))
        return;
    turns_.stop();
    Show(std::exchange(search_, std::nullopt)->Found());
}

void PartnerMark::Show(const std::optional<TagPartners>& found) {
    marked_ = found.has_value();
    if (found)
        text_.Aids().Mark(std::array{RangeOf(found->atCaret), RangeOf(found->partner)});
    else
        text_.Aids().Unmark();
}
