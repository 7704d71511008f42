// Characters and bytes of a text, both ways.
#include "platform/text/TextParts.h"

namespace {

using namespace Qt::StringLiterals;

using TextBufferTest = TextParts;

/// Each place where a character starts, in characters and in bytes, and the end.
void ExpectCounts(const TextBuffer& buffer, const QString& text) {
    EXPECT_EQ(buffer.Length(), text.size());
    EXPECT_EQ(buffer.Bytes(), text.toUtf8().size());
    for (int at = 0; at <= text.size(); ++at) {
        if (at < text.size() && text[at].isLowSurrogate())
            continue;
        const auto byte = static_cast<int>(text.left(at).toUtf8().size());
        EXPECT_EQ(buffer.ByteFromChar(at), byte) << at;
        EXPECT_EQ(buffer.CharFromByte(byte), at) << at;
    }
}

TEST_F(TextBufferTest, CharactersAreCountedAsAStringCountsThem) {
    for (const QString& text :
         {u""_s, u"plain"_s, u"a\r\nb\rc\n"_s, u"caf\u00e9 \u20ac\r\n\u00e9\n"_s,
          u"\u05d0\u05d1 \u65e5\u672c\r\ne\u0301x"_s, u"a\U0001F600b\n\U0001F600\U0001F600\r\nz"_s}) {
        Put(text);
        ExpectCounts(buffer, text);
    }
}

TEST_F(TextBufferTest, TheCountSurvivesALineEndTakenApartAndJoined) {
    Put(u"\u00e9\r\n\u00e9x"_s);
    // Between the CR and the LF, and out again.
    editing.MoveCaret(3);
    editing.ReplaceSelection(QByteArrayLiteral("ab"));
    ExpectCounts(buffer, u"\u00e9\rab\n\u00e9x"_s);
    editing.Replace({3, 5}, QByteArray(), StyleRuns());
    ExpectCounts(buffer, u"\u00e9\r\n\u00e9x"_s);
    Send(Control::SCI_UNDO);
    ExpectCounts(buffer, u"\u00e9\rab\n\u00e9x"_s);
}

TEST_F(TextBufferTest, APositionBehindTheEndIsTheEndAndARangeIsCutToWhatThereIs) {
    Put(u"\u00e9a"_s);
    EXPECT_EQ(buffer.ByteFromChar(99), 3);
    EXPECT_EQ(buffer.FromChars(-5, 1), (ByteRange{0, 2}));
    EXPECT_EQ(buffer.FromChars(1, qint64{1} << 40), (ByteRange{2, 3}));
    EXPECT_TRUE(buffer.FromChars(2, 1).Empty());
}

TEST_F(TextBufferTest, TheLineEndIsThatOfTheFirstLine) {
    const QString rows[][2] = {
        {u"a"_s, u"\r\n"_s}, {u"a\nb\r\n"_s, u"\n"_s}, {u"a\rb\n"_s, u"\r"_s}, {u"\r\n\n"_s, u"\r\n"_s}};
    for (const auto& [text, end] : rows) {
        Put(text);
        EXPECT_EQ(buffer.LineEnd(), end) << text.toStdString();
    }
}

TEST_F(TextBufferTest, LinesStartBehindEachKindOfLineEnd) {
    Put(u"\u00e9\r\nb\rc\nd"_s);
    EXPECT_EQ(buffer.LineCount(), 4);
    EXPECT_EQ(buffer.LineStart(1), 4);
    EXPECT_EQ(buffer.LineStart(2), 6);
    EXPECT_EQ(buffer.LineOf(7), 2);
    EXPECT_EQ(buffer.LineOf(8), 3);
    EXPECT_EQ(buffer.NextLine(0), 3);
    EXPECT_EQ(buffer.NextLine(3), 5);
    EXPECT_EQ(buffer.NextLine(7), 8) << "the last line ends with the text";
}

TEST_F(TextBufferTest, NoPositionLiesInsideACharacter) {
    const QString text = u"\u00e9\U0001F600b\r\n\U0001F600\U0001F601"_s;
    Put(text);
    EXPECT_EQ(buffer.ByteFromChar(2), 2);
    EXPECT_EQ(buffer.ByteFromChar(7), 9);
    EXPECT_EQ(buffer.ByteFromChar(9), 13);
    EXPECT_EQ(buffer.FromChars(2, 3), (ByteRange{2, 6}));
    EXPECT_EQ(buffer.FromChars(1, 2), (ByteRange{2, 6}));
    EXPECT_EQ(buffer.FromChars(7, 9), (ByteRange{9, 17}));
    EXPECT_TRUE(buffer.FromChars(7, 7).Length() == 4);
}

TEST_F(TextBufferTest, UnitsAreCutOutAsAStringCutsThemOut) {
    for (const QString& text :
         {u"plain\r\n"_s, u"\u00e9\U0001F600b\r\n\U0001F600\U0001F601"_s, u"\uFEFFa\uFEFF"_s}) {
        Put(text);
        for (int start = -1; start <= text.size() + 1; ++start) {
            for (int end = start; end <= text.size() + 1; ++end) {
                const int from = std::max(start, 0);
                EXPECT_EQ(buffer.TextOfUnits(start, end), text.mid(from, std::max(end - from, 0)))
                    << start << ' ' << end;
            }
        }
    }
}

TEST_F(TextBufferTest, AMarkIsACharacterWhereverATextIsCut) {
    Put(u"a\uFEFF\uFEFFb"_s);
    EXPECT_EQ(Text(), u"a\uFEFF\uFEFFb"_s);
    EXPECT_EQ(buffer.Text({1, 7}), u"\uFEFF\uFEFF"_s);
}

} // namespace
