// A coloured text as RTF, and back.
#include "platform/text/RtfWriter.h"
#include "platform/text/RtfReader.h"
#include "platform/text/TextParts.h"

namespace {

using namespace Qt::StringLiterals;

using RtfWriterTest = TextParts;

TEST_F(RtfWriterTest, TheReaderGivesBackTextAndColors) {
    const QString text = u"a{b}\\c\r\n\t\u00e9\u20ac \n<p>"_s;
    const QByteArray bytes = text.toUtf8();
    StyleRuns styles(4, colors.StyleFor(0xff));
    styles.Append(static_cast<int>(bytes.size()) - 4, colors.StyleFor(0x8000));
    editing.Replace(buffer.Whole(), bytes, styles);
    const RtfText back = ReadRtf(WriteRtf(buffer, colors, buffer.Whole()), RawLineEnds::Keep);
    EXPECT_EQ(back.text, bytes);
    EXPECT_EQ(back.runs, (std::vector<RtfRun>{{4, 0xff}, {static_cast<int>(bytes.size()) - 4, 0x8000}}));
}

TEST_F(RtfWriterTest, AStretchIsWrittenAlone) {
    Put(u"abc"_s);
    EXPECT_EQ(WriteRtf(buffer, colors, {1, 2}), u"{{\\colortbl ;}\\cf0 b}"_s);
}

} // namespace
