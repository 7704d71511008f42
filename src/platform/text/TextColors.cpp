#include "platform/text/TextColors.h"

#include <algorithm>
#include <Qsci/qsciscintillabase.h>
#include <utility>

namespace {

using Control = QsciScintillaBase;

/// So many bytes are read or written in one go.
constexpr int step = 1 << 16;

} // namespace

long TextColors::Sci(unsigned int message, long wParam, long lParam) const {
    return control_.SendScintilla(message, static_cast<unsigned long>(wParam), lParam);
}

int TextColors::StyleFor(ColorNumber color) {
    const StyleTable::Found found = styles_.StyleFor(color);
    if (found.isNew)
        ShowStyle(found.style);
    return found.style;
}

void TextColors::ShowStyle(int style) {
    const char first = StyleCells::First(style);
    for (const char cell : {first, StyleCells::Twin(first)})
        Sci(Control::SCI_STYLESETFORE, static_cast<unsigned char>(cell), styles_.ColorOf(style));
}

void TextColors::ShowStyles() {
    for (int style = 1; style < styles_.End(); ++style)
        ShowStyle(style);
}

int TextColors::StyleAt(int byte) const {
    return StyleCells::StyleOf(static_cast<char>(Sci(Control::SCI_GETSTYLEAT, byte)));
}

int TextColors::StyleBefore(int byte) const {
    if (byte > 0)
        return StyleAt(byte - 1);
    return buffer_.Bytes() > 0 ? StyleAt(0) : 0;
}

CellText TextColors::CellsOf(int start, int end) const {
    const int from = std::max(start, 0);
    const int size = std::min(end, buffer_.Bytes()) - from;
    // Each byte of the text comes with its cell behind it, and two zero bytes follow the last one.
    QByteArray pairs(2 * size + 2, Qt::Uninitialized);
    control_.SendScintilla(Control::SCI_GETSTYLEDTEXT, from, from + size, pairs.data());
    CellText both{QByteArray(size, Qt::Uninitialized), QByteArray(size, Qt::Uninitialized)};
    char* text = both.text.data();
    char* cells = both.cells.data();
    for (const char* pair = pairs.constData(); pair < pairs.constData() + 2 * size; pair += 2) {
        *text++ = pair[0];
        *cells++ = pair[1];
    }
    return both;
}

StyleRuns TextColors::StylesOf(ByteRange range) const {
    StyleRuns runs;
    for (int from = range.start; from < range.end; from += step) {
        const QByteArray cells = CellsOf(from, std::min(from + step, range.end)).cells;
        qsizetype first = 0;
        for (qsizetype i = 1; i <= cells.size(); ++i) {
            if (i < cells.size() && StyleCells::SameStyle(cells[i], cells[first]))
                continue;
            runs.Append(static_cast<int>(i - first), StyleCells::StyleOf(cells[first]));
            first = i;
        }
    }
    return runs;
}

void TextColors::SetStyles(int start, const StyleRuns& styles) {
    StretchCutter cutter(CellsOf(start - StretchCutter::longest - 1, start));
    QByteArray cells;
    const auto write = [&] {
        control_.SendScintilla(Control::SCI_SETSTYLINGEX, static_cast<unsigned long>(cells.size()),
                               cells.constData());
        cells.resize(0);
    };
    Sci(Control::SCI_STARTSTYLING, start);
    int at = start;
    for (std::size_t run = 0; run < styles.Count(); ++run) {
        for (const int end = at + styles.LengthOf(run); at < end;) {
            const int next = std::min(end, at + step);
            cutter.Append(buffer_.InPlace({at, next}), styles.StyleOf(run), cells);
            at = next;
            if (cells.size() >= step)
                write();
        }
    }
    write();
    MendStretches(at);
    AllIsStyled();
}

void TextColors::AllIsStyled() {
    Sci(Control::SCI_STARTSTYLING, buffer_.Bytes());
}

void TextColors::MendStretches(int seam) {
    constexpr int reach = 2 * StretchCutter::longest;
    const int from = std::max(seam - reach, 0);
    const CellText around = CellsOf(from, seam + reach);
    const TextPart part = PartToTurn(around, seam - from);
    if (part.start == part.end)
        return;
    const auto cell = static_cast<unsigned char>(StyleCells::Twin(around.cells[part.start]));
    Sci(Control::SCI_STARTSTYLING, from + part.start);
    Sci(Control::SCI_SETSTYLING, part.end - part.start, cell);
}

int TextColors::StyleAtCaret(ByteRange selection) const {
    if (!selection.Empty())
        return StyleAt(selection.start);
    return typingStyle_ && typingCaret_ == selection.start ? *typingStyle_ : StyleBefore(selection.start);
}

void TextColors::KeepForTyping(int style, int byte) {
    typingStyle_ = style;
    typingCaret_ = byte;
}

void TextColors::CaretStandsAt(ByteRange selection, bool movedByEdit) {
    if (movedByEdit && selection.Empty())
        typingCaret_ = selection.start;
    else if (!selection.Empty() || selection.start != typingCaret_)
        typingStyle_.reset();
}

StyleRuns TextColors::Taken(StyleRuns* entry) {
    return entry ? std::move(*entry) : StyleRuns();
}

void TextColors::BeforeInsertion(ByteRange range, Cause cause) {
    StyleRuns styles;
    switch (cause) {
    case Cause::Undo:
        styles = Taken(undoColors_.StepBack(UndoColors::Kind::Deletion));
        break;
    case Cause::Redo:
        styles = Taken(undoColors_.StepForward(UndoColors::Kind::Insertion));
        break;
    case Cause::Edit:
        styles = nextStyles_ ? std::move(*nextStyles_) : StyleRuns(range.Length(), StyleBefore(range.start));
        nextStyles_.reset();
        undoColors_.Append(UndoColors::Kind::Insertion, StyleRuns());
    }
    if (cause != Cause::Edit)
        ForgetTyping();
    incoming_ = Incoming{range, std::move(styles)};
}

void TextColors::BeforeDeletion(ByteRange range, Cause cause) {
    buffer_.CountDeletion(range);
    StyleRuns styles = StylesOf(range);
    if (cause == Cause::Edit) {
        undoColors_.Append(UndoColors::Kind::Deletion, std::move(styles));
    } else {
        StyleRuns* entry = cause == Cause::Undo ? undoColors_.StepBack(UndoColors::Kind::Insertion)
                                                : undoColors_.StepForward(UndoColors::Kind::Deletion);
        if (entry)
            *entry = std::move(styles);
        ForgetTyping();
    }
    incoming_ = Incoming{{range.start, range.start}, {}};
}

std::optional<ByteRange> TextColors::TakeIncoming() {
    if (!incoming_)
        return std::nullopt;
    const Incoming incoming = *std::exchange(incoming_, std::nullopt);
    if (incoming.range.Empty()) {
        MendStretches(incoming.range.start);
        AllIsStyled();
        return std::nullopt;
    }
    buffer_.CountInsertion(incoming.range);
    SetStyles(incoming.range.start, incoming.styles);
    return incoming.range;
}
