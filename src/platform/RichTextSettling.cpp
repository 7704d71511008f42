// The text control: what happens between the announcement of a change and the signals that tell of it.
#include "platform/RichTextBox.h"

#include <QPointer>

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
    StyleIncoming();
    HoldTypingStyle();
    const bool changed = std::exchange(changed_, false);
    const ByteRange selection = Selection();
    if (changed) {
        const QPointer<RichTextBox> alive(this);
        Q_EMIT Change();
        if (!alive)
            return;
    } else if (selection == lastSelection_) {
        return;
    }
    lastSelection_ = Selection();
    const int start = SelStart();
    const int length = SelLength();
    if (start == lastSelStart_ && length == lastSelLength_)
        return;
    lastSelStart_ = start;
    lastSelLength_ = length;
    Q_EMIT SelChange();
}

void RichTextBox::HoldTypingStyle() {
    const bool edited = std::exchange(caretMovedByEdit_, false);
    if (!typingStyle_)
        return;
    const ByteRange selection = Selection();
    if (edited && selection.Empty())
        typingCaret_ = selection.start;
    else if (!selection.Empty() || selection.start != typingCaret_)
        typingStyle_.reset();
}

void RichTextBox::StyleIncoming() {
    if (!incoming_)
        return;
    const Incoming text = *std::exchange(incoming_, std::nullopt);
    // What comes in has style 0 already.
    if (text.styles.Count() > 1 || (text.styles.Count() == 1 && text.styles.StyleOf(0) != 0))
        SetStyles(text.start, text.styles);
}

void RichTextBox::BeforeModification(int position, int type, int length) {
    if ((type & (SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE)) == 0)
        return;
    StyleIncoming();
    changed_ = true;
    if ((type & SC_MOD_BEFOREINSERT) != 0)
        BeforeInsertion(position, type, length);
    else
        BeforeDeletion(position, type, length);
}

void RichTextBox::BeforeInsertion(int position, int type, int length) {
    StyleRuns styles;
    if ((type & SC_PERFORMED_UNDO) != 0) {
        if (StyleRuns* entry = undoColors_.StepBack(UndoColors::Kind::Deletion))
            styles = std::move(*entry);
        typingStyle_.reset();
    } else if ((type & SC_PERFORMED_REDO) != 0) {
        if (StyleRuns* entry = undoColors_.StepForward(UndoColors::Kind::Insertion))
            styles = std::move(*entry);
        typingStyle_.reset();
    } else {
        styles = nextStyles_ ? std::move(*nextStyles_) : StyleRuns(length, StyleBefore(position));
        nextStyles_.reset();
        undoColors_.Append(UndoColors::Kind::Insertion, StyleRuns());
        caretMovedByEdit_ = true;
    }
    incoming_ = Incoming{position, std::move(styles)};
}

void RichTextBox::BeforeDeletion(int position, int type, int length) {
    StyleRuns styles = StylesOf(position, length);
    if ((type & SC_PERFORMED_UNDO) != 0) {
        if (StyleRuns* entry = undoColors_.StepBack(UndoColors::Kind::Insertion))
            *entry = std::move(styles);
        typingStyle_.reset();
    } else if ((type & SC_PERFORMED_REDO) != 0) {
        if (StyleRuns* entry = undoColors_.StepForward(UndoColors::Kind::Deletion))
            *entry = std::move(styles);
        typingStyle_.reset();
    } else {
        undoColors_.Append(UndoColors::Kind::Deletion, std::move(styles));
        caretMovedByEdit_ = true;
    }
}
