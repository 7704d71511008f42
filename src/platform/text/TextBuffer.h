// The text as the control holds it: bytes of UTF-8 inside, characters outside.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <span>
#include <vector>

class QsciScintillaBase;

/// A stretch of the buffer, in bytes.
struct ByteRange {
    int start;
    int end;
    int Length() const { return end - start; }
    bool Empty() const { return start == end; }
    bool operator==(const ByteRange&) const = default;
};

/// A stretch of the text, in characters.
struct CharRange {
    int start;
    int end;
    int Length() const { return end - start; }
    bool operator==(const CharRange&) const = default;
};

/// The one place that knows how characters and bytes correspond. Characters are counted from 0 as a QString
/// counts them, in UTF-16 units. While the text is plain ASCII the two are equal; else the control's index by
/// line is asked, so that no question costs more than one line.
class TextBuffer {
  public:
    explicit TextBuffer(const QsciScintillaBase& control);
    /// Sets the control up to keep the index. Comes before the first text.
    void SetUp();

    /// The text's length, in characters and in bytes.
    int Length() const { return length_; }
    int Bytes() const;
    ByteRange Whole() const { return {0, Bytes()}; }

    /// The character at a byte, and the byte of a character. A position behind the end is the end, and one
    /// between the two units of a character is that character.
    int CharFromByte(int byte) const;
    int ByteFromChar(int position) const;
    /// The bytes of the characters from start to end, both cut to what there is; one of which only one unit
    /// lies inside is whole.
    ByteRange FromChars(qint64 start, qint64 end) const;
    /// The bytes of many stretches, which come in their order; one walk however many there are.
    std::vector<ByteRange> FromChars(std::span<const CharRange> stretches) const;
    /// The bytes of the character that starts at a byte, and of the one that ends there; empty where there is
    /// none. A CR and its LF come together.
    ByteRange CharacterAt(int byte) const;
    ByteRange CharacterBefore(int byte) const;

    QString Text(ByteRange range) const;
    /// All bytes. They are copied where they lie: nothing of the text is moved for it.
    QByteArray CopyOfBytes() const;
    /// The units from start to end, both cut to what there is, as a QString cuts them out: a pair may be cut.
    QString TextOfUnits(qint64 start, qint64 end) const;
    /// The same as bytes, without a copy; for as long as nothing is asked of the control that changes the
    /// text.
    QByteArrayView InPlace(ByteRange range) const;

    int LineCount() const;
    /// The line of a byte, from 0, and the byte at which a line starts.
    int LineOf(int byte) const;
    int LineStart(int line) const;
    /// The character at which the line behind that of a character starts; the text's end for the last line.
    int NextLine(int position) const;
    /// The line end of the document: that of its first line, CR LF where there is none.
    QString LineEnd() const;

    /// The buffer keeps count of what the control tells of: text that stands there now, and text about to go.
    void CountInsertion(ByteRange range);
    void CountDeletion(ByteRange range);

  private:
    long Ask(unsigned int message, long wParam = 0, long lParam = 0) const;
    bool IsAscii() const { return length_ == Bytes(); }
    void FreshenIndex() const;
    void NoteSeam(long left, long right);

    const QsciScintillaBase& control_;
    int length_ = 0;
    /// The control loses count where an edit takes a CR and its LF apart or joins them.
    mutable bool indexIsStale_ = false;
};
