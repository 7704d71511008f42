#include "platform/text/TextBuffer.h"

#include "platform/values/Utf8.h"

#include <algorithm>
#include <Qsci/qsciscintillabase.h>
#include <utility>

namespace {

using Control = QsciScintillaBase;

/// A byte that begins a character of two UTF-16 units is one of these or above.
constexpr unsigned char firstOfPair = 0xf0;

/// The UTF-16 units of a text: one for each byte that begins a character, and one more for those beyond the
/// first plane, which take four bytes.
int UnitsIn(QByteArrayView utf8) {
    int units = 0;
    for (const char byte : utf8) {
        const auto value = static_cast<unsigned char>(byte);
        units += (value & 0xc0) != 0x80;
        units += value >= firstOfPair;
    }
    return units;
}

/// The byte at which so many UTF-16 units of a text end, or the text does. Half a character counts for none.
qsizetype ByteOfUnit(QByteArrayView utf8, qsizetype units) {
    for (qsizetype at = 0; at < utf8.size(); ++at) {
        const auto value = static_cast<unsigned char>(utf8[at]);
        if ((value & 0xc0) == 0x80)
            continue;
        units -= value >= firstOfPair ? 2 : 1;
        if (units < 0)
            return at;
    }
    return utf8.size();
}

/// Goes through a text from left to right, and tells where its characters lie.
class CharacterWalk {
  public:
    explicit CharacterWalk(QByteArrayView utf8) : utf8_(utf8) {}

    /// The byte of a character that lies no further left than the last one asked for; the text's end for one
    /// behind it.
    int ByteOf(int character) {
        while (character_ < character && byte_ < utf8_.size()) {
            const auto lead = static_cast<unsigned char>(utf8_[byte_]);
            byte_ += lead < 0x80 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
            character_ += lead < 0xf0 ? 1 : 2;
        }
        return static_cast<int>(byte_);
    }

  private:
    QByteArrayView utf8_;
    qsizetype byte_ = 0;
    int character_ = 0;
};

} // namespace

TextBuffer::TextBuffer(const QsciScintillaBase& control) : control_(control) {}

long TextBuffer::Ask(unsigned int message, long wParam, long lParam) const {
    return control_.SendScintilla(message, static_cast<unsigned long>(wParam), lParam);
}

void TextBuffer::SetUp() {
    Ask(Control::SCI_SETCODEPAGE, Control::SC_CP_UTF8);
    Ask(Control::SCI_ALLOCATELINECHARACTERINDEX, Control::SC_LINECHARACTERINDEX_UTF16);
}

int TextBuffer::Bytes() const {
    return static_cast<int>(Ask(Control::SCI_GETLENGTH));
}

void TextBuffer::FreshenIndex() const {
    if (!std::exchange(indexIsStale_, false))
        return;
    Ask(Control::SCI_RELEASELINECHARACTERINDEX, Control::SC_LINECHARACTERINDEX_UTF16);
    Ask(Control::SCI_ALLOCATELINECHARACTERINDEX, Control::SC_LINECHARACTERINDEX_UTF16);
}

int TextBuffer::CharFromByte(int byte) const {
    if (IsAscii())
        return byte;
    FreshenIndex();
    const int line = LineOf(byte);
    return static_cast<int>(
        Ask(Control::SCI_INDEXPOSITIONFROMLINE, line, Control::SC_LINECHARACTERINDEX_UTF16) +
        UnitsIn(InPlace({LineStart(line), byte})));
}

int TextBuffer::ByteFromChar(int position) const {
    if (position >= length_)
        return Bytes();
    if (IsAscii())
        return position;
    FreshenIndex();
    const long line = Ask(Control::SCI_LINEFROMINDEXPOSITION, position, Control::SC_LINECHARACTERINDEX_UTF16);
    const long rest =
        position - Ask(Control::SCI_INDEXPOSITIONFROMLINE, line, Control::SC_LINECHARACTERINDEX_UTF16);
    const int start = LineStart(static_cast<int>(line));
    constexpr long mostBytesOfUnit = 3;
    const auto end = static_cast<int>(std::min(start + mostBytesOfUnit * (rest + 1), long{Bytes()}));
    return start + static_cast<int>(ByteOfUnit(InPlace({start, end}), rest));
}

ByteRange TextBuffer::FromChars(qint64 start, qint64 end) const {
    const qint64 from = std::clamp<qint64>(start, 0, length_);
    const qint64 to = std::clamp<qint64>(end, from, length_);
    const int last = ByteFromChar(static_cast<int>(to));
    const bool cutsPair = !IsAscii() && CharFromByte(last) < to;
    return {ByteFromChar(static_cast<int>(from)), cutsPair ? CharacterAt(last).end : last};
}

QString TextBuffer::TextOfUnits(qint64 start, qint64 end) const {
    const ByteRange range = FromChars(start, end);
    const QString text = Text(range);
    if (IsAscii())
        return text;
    const int first = CharFromByte(range.start);
    const qint64 from = std::max<qint64>(start, 0);
    return text.mid(from - first, std::max<qint64>(end - from, 0));
}

std::vector<ByteRange> TextBuffer::FromChars(std::span<const CharRange> stretches) const {
    std::vector<ByteRange> ranges;
    ranges.reserve(stretches.size());
    CharacterWalk walk(InPlace(Whole()));
    for (const CharRange& stretch : stretches) {
        const int start = walk.ByteOf(stretch.start);
        ranges.push_back({start, walk.ByteOf(stretch.end)});
    }
    return ranges;
}

ByteRange TextBuffer::CharacterAt(int byte) const {
    return {byte, static_cast<int>(Ask(Control::SCI_POSITIONAFTER, byte))};
}

ByteRange TextBuffer::CharacterBefore(int byte) const {
    return {static_cast<int>(Ask(Control::SCI_POSITIONBEFORE, byte)), byte};
}

QString TextBuffer::Text(ByteRange range) const {
    return Utf8::ToText(InPlace(range));
}

QByteArray TextBuffer::CopyOfBytes() const {
    // The control keeps room for the next key in the middle of its text. What is asked for across that gap
    // would be moved together first, and apart again by the next key.
    const auto gap = static_cast<int>(Ask(Control::SCI_GETGAPPOSITION));
    QByteArray bytes;
    bytes.reserve(Bytes());
    bytes += InPlace({0, gap});
    bytes += InPlace({gap, Bytes()});
    return bytes;
}

QByteArrayView TextBuffer::InPlace(ByteRange range) const {
    if (range.end <= range.start)
        return QByteArrayView();
    const long address = Ask(Control::SCI_GETRANGEPOINTER, range.start, range.Length());
    return {reinterpret_cast<const char*>(address), range.Length()};
}

int TextBuffer::LineCount() const {
    return static_cast<int>(Ask(Control::SCI_GETLINECOUNT));
}

int TextBuffer::LineOf(int byte) const {
    return static_cast<int>(Ask(Control::SCI_LINEFROMPOSITION, byte));
}

int TextBuffer::LineStart(int line) const {
    return static_cast<int>(Ask(Control::SCI_POSITIONFROMLINE, line));
}

int TextBuffer::NextLine(int position) const {
    const int line = LineOf(ByteFromChar(position));
    return line + 1 < LineCount() ? CharFromByte(LineStart(line + 1)) : length_;
}

QString TextBuffer::LineEnd() const {
    if (LineCount() < 2)
        return QStringLiteral("\r\n");
    return Text({static_cast<int>(Ask(Control::SCI_GETLINEENDPOSITION, 0)), LineStart(1)});
}

void TextBuffer::CountInsertion(ByteRange range) {
    const QByteArrayView text = InPlace(range);
    length_ += UnitsIn(text);
    const long before = Ask(Control::SCI_GETCHARAT, range.start - 1);
    const long behind = Ask(Control::SCI_GETCHARAT, range.end);
    NoteSeam(before, behind);
    NoteSeam(before, text.front());
    NoteSeam(text.back(), behind);
}

void TextBuffer::CountDeletion(ByteRange range) {
    length_ -= IsAscii() ? range.Length() : UnitsIn(InPlace(range));
    const long before = Ask(Control::SCI_GETCHARAT, range.start - 1);
    const long behind = Ask(Control::SCI_GETCHARAT, range.end);
    NoteSeam(before, behind);
    NoteSeam(before, Ask(Control::SCI_GETCHARAT, range.start));
    NoteSeam(Ask(Control::SCI_GETCHARAT, range.end - 1), behind);
}

void TextBuffer::NoteSeam(long left, long right) {
    indexIsStale_ = indexIsStale_ || (left == '\r' && right == '\n');
}
