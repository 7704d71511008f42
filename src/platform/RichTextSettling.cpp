// The text control: what happens between the announcement of a change and the signals that tell of it.
#include "platform/RichTextBox.h"

#include <algorithm>
#include <QAccessible>

namespace {

int Characters(QByteArrayView utf8) {
    const auto starts = [](char byte) { return (byte & 0xc0) != 0x80; };
    return static_cast<int>(std::count_if(utf8.begin(), utf8.end(), starts));
}

} // namespace

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
    HoldTypingStyle();
    const bool changed = std::exchange(changed_, false);
    const ByteRange selection = Selection();
    if (!changed && selection == lastSelection_)
        return;
    if (HasAssistants())
        TellOfChanges(selection != lastSelection_);
    if (changed)
        Q_EMIT Change();
    // A handler may have moved the selection and told of it.
    lastSelection_ = Selection();
    const int start = SelStart();
    const int length = SelLength();
    if (start == lastSelStart_ && length == lastSelLength_)
        return;
    lastSelStart_ = start;
    lastSelLength_ = length;
    Q_EMIT SelChange();
}

bool RichTextBox::HasAssistants() const {
    return QAccessible::isActive();
}

void RichTextBox::TellAssistants(QAccessibleEvent& event) const {
    QAccessible::updateAccessibility(&event);
}

void RichTextBox::TellOfChanges(bool caretMoved) {
    for (const TextChange& change : std::exchange(untold_, {})) {
        if (change.inserted) {
            QAccessibleTextInsertEvent event(this, change.position, change.text);
            TellAssistants(event);
        } else {
            QAccessibleTextRemoveEvent event(this, change.position, change.text);
            TellAssistants(event);
        }
    }
    if (!caretMoved)
        return;
    const int start = SelStart();
    QAccessibleTextSelectionEvent selection(this, start, start + SelLength());
    selection.setCursorPosition(CaretPosition());
    TellAssistants(selection);
    QAccessibleTextCursorEvent caret(this, CaretPosition());
    TellAssistants(caret);
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

void RichTextBox::TakeIncoming() {
    if (!incoming_)
        return;
    const Incoming incoming = *std::exchange(incoming_, std::nullopt);
    if (incoming.length == 0) {
        MendStretches(incoming.start);
        return;
    }
    const QByteArrayView text = BytesInPlace(incoming.start, incoming.start + incoming.length);
    CountInsertion(incoming.start, text);
    if (HasAssistants())
        untold_.push_back({true, CharFromByte(incoming.start), QString::fromUtf8(text)});
    SetStyles(incoming.start, incoming.styles);
}

void RichTextBox::CountInsertion(int start, QByteArrayView text) {
    length_ += Characters(text);
    const long before = Sci(SCI_GETCHARAT, start - 1);
    const long behind = Sci(SCI_GETCHARAT, start + static_cast<int>(text.size()));
    NoteSeam(before, behind);
    NoteSeam(before, text.front());
    NoteSeam(text.back(), behind);
}

void RichTextBox::CountDeletion(int start, int length) {
    const int end = start + length;
    length_ -= IsAscii() ? length : Characters(BytesInPlace(start, end));
    const long before = Sci(SCI_GETCHARAT, start - 1);
    const long behind = Sci(SCI_GETCHARAT, end);
    NoteSeam(before, behind);
    NoteSeam(before, Sci(SCI_GETCHARAT, start));
    NoteSeam(Sci(SCI_GETCHARAT, end - 1), behind);
}

void RichTextBox::NoteSeam(long left, long right) {
    indexIsStale_ = indexIsStale_ || (left == '\r' && right == '\n');
}

void RichTextBox::BeforeModification(int position, int type, int length) {
    if ((type & (SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE)) == 0)
        return;
    TakeIncoming();
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
    incoming_ = Incoming{position, length, std::move(styles)};
}

void RichTextBox::BeforeDeletion(int position, int type, int length) {
    if (HasAssistants())
        untold_.push_back({false, CharFromByte(position), TextOf({position, position + length})});
    CountDeletion(position, length);
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
    incoming_ = Incoming{position, 0, {}};
}
