#include "editor/color/ColorStream.h"

#include <gtest/gtest.h>

namespace {

TEST(ColorStream, GathersPiecesBehindTheirColourWords) {
    ColorStream stream;
    stream.Gather(u"a\r\nb\rc\nd", u"\\cf1 ");
    stream.Gather(u"\r\n\r\n", u"\\cf2 ");
    stream.Add(u"x\r\n", u"\\cf3 ");
    EXPECT_EQ(stream.RtfBuffer(), QStringLiteral("\\cf1 a\\par b\rc\nd\\cf2 \\par \\par \\cf3 x\r\n"));
}

TEST(ColorStream, IsTakenAsOneDocumentAndThenEmpty) {
    ColorStream stream;
    stream.LetThrough();
    stream.Add(u"x", u"\\cf1 ");
    EXPECT_EQ(stream.TakeDocument(u"{{}"), QStringLiteral("{{}\\cf1 x}"));
    EXPECT_EQ(stream.RtfBuffer(), QString());
    EXPECT_TRUE(stream.RtfFlushNow()) << "taking it does not hold it";
    EXPECT_EQ(stream.TakeDocument(u"{{}"), QStringLiteral("{{}}"));
}

TEST(ColorStream, ResetDropsThePiecesAndNothingElse) {
    ColorStream stream;
    EXPECT_FALSE(stream.RtfFlushNow());
    stream.LetThrough();
    stream.Add(u"x", {});
    stream.Reset();
    EXPECT_EQ(stream.RtfBuffer(), QString());
    EXPECT_TRUE(stream.RtfFlushNow());
    stream.Hold();
    EXPECT_FALSE(stream.RtfFlushNow());
}

TEST(WithParagraphs, TurnsPairsOnly) {
    EXPECT_EQ(WithParagraphs(u"\r\r\n\n\r"), QStringLiteral("\r\\par \n\r"));
    EXPECT_EQ(WithParagraphs({}), QString());
}

} // namespace
