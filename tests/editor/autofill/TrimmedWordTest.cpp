// The typed word: what is kept of it answers as the whole text between two positions would.
#include "editor/autofill/TrimmedWord.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

TrimmedWord Taken(TestFrame& frame, const QString& text, int start, int end) {
    frame.SetText(text);
    TrimmedWord word;
    word.Take(frame.Box(), start, end);
    return word;
}

TEST(TrimmedWord, CutsBlanksOnly) {
    struct Row {
        const char* text;
        int start;
        int end;
        int length;
    };
    TestFrame frame;
    for (const auto& [text, start, end, length] :
         {Row{"abc", 0, 3, 3}, Row{" h", 0, 2, 1}, Row{"  h  ", 0, 5, 1}, Row{"   ", 0, 3, 0},
          Row{"", 0, 0, 0}, Row{"a b", 0, 3, 3}, Row{"\ta\t", 0, 3, 3}, Row{"\r\na", 0, 3, 3},
          Row{"abc", 1, 2, 1}, Row{"abc", 5, 9, 0}, Row{"abc", 1, 9, 2}}) {
        const TrimmedWord word = Taken(frame, QString::fromLatin1(text), start, end);
        EXPECT_EQ(word.Length(), length) << text;
        EXPECT_EQ(word.IsEmpty(), length == 0) << text;
    }
}

TEST(TrimmedWord, AnEndBeforeTheStartChangesNothing) {
    TestFrame frame;
    TrimmedWord word = Taken(frame, QStringLiteral("<IMG hei"), 4, 8);
    word.Take(frame.Box(), 5, 2);
    EXPECT_EQ(word.Length(), 3);
    EXPECT_TRUE(word.Begins(u"HEIGHT"));
    word.Clear();
    EXPECT_TRUE(word.IsEmpty());
}

TEST(TrimmedWord, BeginsIgnoringCase) {
    TestFrame frame;
    const TrimmedWord word = Taken(frame, QStringLiteral("<IMG hei"), 4, 8);
    EXPECT_TRUE(word.Begins(u"HEIGHT"));
    EXPECT_TRUE(word.Begins(u"hei"));
    EXPECT_FALSE(word.Begins(u"HE"));
    EXPECT_FALSE(word.Begins(u"WIDTH"));
}

TEST(TrimmedWord, LongRunsOfBlanks) {
    TestFrame frame;
    for (const int blanks : {63, 64, 65, 1000, 200000}) {
        const QString run(blanks, u' ');
        EXPECT_EQ(Taken(frame, run, 0, blanks).Length(), 0) << blanks;
        const TrimmedWord word = Taken(frame, run + QStringLiteral("a b") + run, 0, 2 * blanks + 3);
        EXPECT_EQ(word.Length(), 3) << blanks;
        EXPECT_TRUE(word.Begins(u"a bc")) << blanks;
    }
}

TEST(TrimmedWord, ALongWordKeepsItsLengthAndFitsNoRow) {
    TestFrame frame;
    const TrimmedWord word = Taken(frame, QString(100000, u'h'), 0, 100000);
    EXPECT_EQ(word.Length(), 100000);
    EXPECT_FALSE(word.Begins(QString(100, u'h')));
    EXPECT_FALSE(word.Begins(u"HEIGHT"));
}

} // namespace
