// The text control: what happens between the announcement of a change and the signals that tell of it.
#include "platform/text/RichTextBox.h"

RichTextBox::Settling::Settling(RichTextBox& box, bool outermost) : box_(box), outer_(box.depth_) {
    box_.depth_ = outermost ? 1 : outer_ + 1;
}

RichTextBox::Settling::~Settling() {
    if (box_.depth_ == 1) {
        box_.depth_ = 0;
        box_.Settle();
    }
    box_.depth_ = outer_;
}

void RichTextBox::Settle() {
    TakeIncoming();
    const ByteRange selection = editing_.Selection();
    colors_.CaretStandsAt(selection, std::exchange(caretMovedByEdit_, false));
    const bool changed = std::exchange(changed_, false);
    if (!changed && selection == lastSelection_)
        return;
    if (news_.Wanted()) {
        news_.TellChanges();
        if (selection != lastSelection_)
            news_.TellCaret(SelStart(), SelLength(), CaretPosition());
    }
    if (changed) {
        aids_.SuitLength();
        Q_EMIT Change();
    }
    // A handler may have moved the selection and told of it.
    lastSelection_ = editing_.Selection();
    const int start = SelStart();
    const int length = SelLength();
    if (start == lastSelStart_ && length == lastSelLength_)
        return;
    lastSelStart_ = start;
    lastSelLength_ = length;
    Q_EMIT SelChange();
}

void RichTextBox::TakeIncoming() {
    const std::optional<ByteRange> came = colors_.TakeIncoming();
    if (came && news_.Wanted())
        news_.Inserted(buffer_.CharFromByte(came->start), buffer_.Text(*came));
}

void RichTextBox::BeforeModification(int position, int type, int length) {
    if ((type & (SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE)) == 0)
        return;
    TakeIncoming();
    changed_ = true;
    const ByteRange range{position, position + length};
    const auto cause = (type & SC_PERFORMED_UNDO) != 0   ? TextColors::Cause::Undo
                       : (type & SC_PERFORMED_REDO) != 0 ? TextColors::Cause::Redo
                                                         : TextColors::Cause::Edit;
    caretMovedByEdit_ = caretMovedByEdit_ || cause == TextColors::Cause::Edit;
    if ((type & SC_MOD_BEFOREINSERT) != 0) {
        colors_.BeforeInsertion(range, cause);
        return;
    }
    if (news_.Wanted())
        news_.Removed(buffer_.CharFromByte(position), buffer_.Text(range));
    colors_.BeforeDeletion(range, cause);
}
