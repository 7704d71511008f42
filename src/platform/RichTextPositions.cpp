// The text control: characters to bytes and back, stretches of text, and the colours they have.
#include "platform/RichTextBox.h"

#include <algorithm>

int RichTextBox::ByteLength() const {
    return static_cast<int>(Sci(SCI_GETLENGTH));
}

int RichTextBox::TextLength() const {
    return length_;
}

bool RichTextBox::IsAscii() const {
    return length_ == ByteLength();
}

void RichTextBox::FreshenIndex() const {
    if (!std::exchange(indexIsStale_, false))
        return;
    Sci(SCI_RELEASELINECHARACTERINDEX, SC_LINECHARACTERINDEX_UTF32);
    Sci(SCI_ALLOCATELINECHARACTERINDEX, SC_LINECHARACTERINDEX_UTF32);
}

int RichTextBox::CharFromByte(int byte) const {
    if (IsAscii())
        return byte;
    FreshenIndex();
    const long line = Sci(SCI_LINEFROMPOSITION, byte);
    const long lineStart = Sci(SCI_POSITIONFROMLINE, line);
    return static_cast<int>(Sci(SCI_INDEXPOSITIONFROMLINE, line, SC_LINECHARACTERINDEX_UTF32) +
                            Sci(SCI_COUNTCHARACTERS, lineStart, byte));
}

int RichTextBox::ByteFromChar(int position) const {
    if (IsAscii())
        return position;
    if (position >= length_)
        return ByteLength();
    FreshenIndex();
    const long line = Sci(SCI_LINEFROMINDEXPOSITION, position, SC_LINECHARACTERINDEX_UTF32);
    const long rest = position - Sci(SCI_INDEXPOSITIONFROMLINE, line, SC_LINECHARACTERINDEX_UTF32);
    const long lineStart = Sci(SCI_POSITIONFROMLINE, line);
    return static_cast<int>(rest == 0 ? lineStart : Sci(SCI_POSITIONRELATIVE, lineStart, rest));
}

QByteArray RichTextBox::Bytes(int start, int end) const {
    return BytesInPlace(start, end).toByteArray();
}

QByteArrayView RichTextBox::BytesInPlace(int start, int end) const {
    if (end <= start)
        return QByteArrayView();
    return {reinterpret_cast<const char*>(Sci(SCI_GETRANGEPOINTER, start, end - start)), end - start};
}

QString RichTextBox::TextOf(ByteRange range) const {
    return QString::fromUtf8(BytesInPlace(range.start, range.end));
}

RichTextBox::ByteRange RichTextBox::Selection() const {
    return {static_cast<int>(Sci(SCI_GETSELECTIONSTART)), static_cast<int>(Sci(SCI_GETSELECTIONEND))};
}

void RichTextBox::Select(int anchorByte, int caretByte) {
    Sci(SCI_SETEMPTYSELECTION, anchorByte);
    Sci(SCI_SETCURRENTPOS, caretByte);
    ShowCaret();
}

void RichTextBox::MoveCaret(int byte) {
    Sci(SCI_SETEMPTYSELECTION, byte);
    ShowCaret();
}

void RichTextBox::ShowCaret() {
    caretMovedInHold_ = holds_ > 0;
    if (caretMovedInHold_)
        return;
    Sci(SCI_SCROLLCARET);
    Sci(SCI_CHOOSECARETX);
}

int RichTextBox::CaretPosition() const {
    return CharFromByte(static_cast<int>(Sci(SCI_GETCURRENTPOS)));
}

int RichTextBox::LineStart(int position) const {
    const long line = GetLineFromChar(position);
    return CharFromByte(static_cast<int>(Sci(SCI_POSITIONFROMLINE, line)));
}

int RichTextBox::NextLineStart(int position) const {
    const long line = GetLineFromChar(position);
    if (line + 1 >= Sci(SCI_GETLINECOUNT))
        return TextLength();
    return CharFromByte(static_cast<int>(Sci(SCI_POSITIONFROMLINE, line + 1)));
}

QPoint RichTextBox::PixelOfByte(long byte) const {
    return {static_cast<int>(Sci(SCI_POINTXFROMPOSITION, 0, byte)),
            static_cast<int>(Sci(SCI_POINTYFROMPOSITION, 0, byte))};
}

QPoint RichTextBox::CaretPixel() const {
    return PixelOfByte(Sci(SCI_GETCURRENTPOS));
}

QRect RichTextBox::CharacterRect(int position) const {
    const int byte = ByteFromChar(std::clamp(position, 0, TextLength()));
    const QPoint here = PixelOfByte(byte);
    const QPoint next = PixelOfByte(Sci(SCI_POSITIONAFTER, byte));
    const int height = LineHeight();
    // The last character of a line is followed by one on the next line.
    const int width = next.y() == here.y() ? next.x() - here.x() : 1;
    return {here, QSize(std::max(width, 1), height)};
}

int RichTextBox::PositionAt(QPoint pixel) const {
    return CharFromByte(static_cast<int>(Sci(SCI_CHARPOSITIONFROMPOINT, pixel.x(), pixel.y())));
}

void RichTextBox::ScrollTo(int start, int end) {
    const int all = TextLength();
    Sci(SCI_SCROLLRANGE, ByteFromChar(std::clamp(end, 0, all)), ByteFromChar(std::clamp(start, 0, all)));
}

int RichTextBox::StyleFor(ColorNumber color) {
    const StyleTable::Found found = styles_.StyleFor(color);
    if (found.isNew)
        ShowStyle(found.style);
    return found.style;
}

void RichTextBox::ShowStyle(int style) {
    const char first = StyleCells::First(style);
    for (const char cell : {first, StyleCells::Twin(first)})
        Sci(SCI_STYLESETFORE, static_cast<unsigned char>(cell), styles_.ColorOf(style));
}

int RichTextBox::StyleAt(int byte) const {
    return StyleCells::StyleOf(static_cast<char>(Sci(SCI_GETSTYLEAT, byte)));
}

int RichTextBox::StyleBefore(int byte) const {
    if (byte > 0)
        return StyleAt(byte - 1);
    return ByteLength() > 0 ? StyleAt(0) : 0;
}

int RichTextBox::StyleAtCaret() const {
    const ByteRange range = Selection();
    if (!range.Empty())
        return StyleAt(range.start);
    if (typingStyle_ && typingCaret_ == range.start)
        return *typingStyle_;
    return StyleBefore(range.start);
}

CellText RichTextBox::CellsOf(int start, int end) const {
    const int from = std::max(start, 0);
    const int size = std::min(end, ByteLength()) - from;
    // Each byte of the text comes with its cell behind it, and two zero bytes follow the last one.
    QByteArray pairs(2 * size + 2, Qt::Uninitialized);
    SendScintilla(SCI_GETSTYLEDTEXT, from, from + size, pairs.data());
    CellText both{QByteArray(size, Qt::Uninitialized), QByteArray(size, Qt::Uninitialized)};
    char* text = both.text.data();
    char* cells = both.cells.data();
    for (const char* pair = pairs.constData(); pair < pairs.constData() + 2 * size; pair += 2) {
        *text++ = pair[0];
        *cells++ = pair[1];
    }
    return both;
}

StyleRuns RichTextBox::StylesOf(int start, int length) const {
    constexpr int step = 1 << 16;
    StyleRuns runs;
    for (int from = start; from < start + length; from += step) {
        const QByteArray cells = CellsOf(from, std::min(from + step, start + length)).cells;
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

void RichTextBox::SetStyles(int start, const StyleRuns& styles) {
    constexpr int step = 1 << 16;
    StretchCutter cutter(CellsOf(start - StretchCutter::longest - 1, start));
    QByteArray cells;
    const auto write = [&] {
        SendScintilla(SCI_SETSTYLINGEX, static_cast<unsigned long>(cells.size()), cells.constData());
        cells.resize(0);
    };
    Sci(SCI_STARTSTYLING, start);
    int at = start;
    for (std::size_t run = 0; run < styles.Count(); ++run) {
        for (const int end = at + styles.LengthOf(run); at < end;) {
            const int next = std::min(end, at + step);
            cutter.Append(BytesInPlace(at, next), styles.StyleOf(run), cells);
            at = next;
            if (cells.size() >= step)
                write();
        }
    }
    write();
    MendStretches(at);
}

void RichTextBox::MendStretches(int seam) {
    constexpr int reach = 2 * StretchCutter::longest;
    const int from = std::max(seam - reach, 0);
    const CellText around = CellsOf(from, seam + reach);
    const TextPart part = PartToTurn(around, seam - from);
    if (part.start == part.end)
        return;
    const auto cell = static_cast<unsigned char>(StyleCells::Twin(around.cells[part.start]));
    Sci(SCI_STARTSTYLING, from + part.start);
    Sci(SCI_SETSTYLING, part.end - part.start, cell);
}
