// What a ">" does to the key and to the text. The tags that it colours are told where they are typed.
#include "editor/typing/TagCloser.h"

#include "editor/color/ColorStream.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char* name;
    int code;
    const char* before;
    int left; ///< of the code
    const char* after;
};

class TagCloserTest : public testing::TestWithParam<Row> {};

TEST_P(TagCloserTest, TakesTheKeyOrLeavesIt) {
    TestFrame frame;
    frame.SetMarked(GetParam().before);
    int KeyAscii = GetParam().code;
    TagCloser(frame, *frame.active).KeyPress(KeyAscii);
    EXPECT_EQ(KeyAscii, GetParam().left);
    EXPECT_EQ(frame.Marked(), QString::fromLatin1(GetParam().after));
    // Only a tag that is coloured lets the stream through.
    EXPECT_EQ(frame.State<ColorStream>().RtfFlushNow(), GetParam().left == 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, TagCloserTest,
                         testing::Values(Row{"before_a_tag", '>', "<B|<I>", 0, "<B>|<I>"},
                                         Row{"selection", '>', "<B[x]<I>", 0, "<B>|<I>"},
                                         Row{"at_the_end", '>', "<B|", '>', "<B|"},
                                         Row{"empty_tag", '>', "<|<I>", '>', "<|<I>"},
                                         Row{"closed_already", '>', "<B>x|<I>", '>', "<B>x|<I>"},
                                         Row{"no_tag", '>', "x|<I>", '>', "x|<I>"},
                                         Row{"another_key", '/', "<B|<I>", '/', "<B|<I>"}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(TagCloser, WritesIntoItsOwnDocument) {
    TestFrame frame;
    frame.SetMarked("<B|<I>");
    TestDocument& first = *frame.active;
    frame.NewDocument();
    int KeyAscii = '>';
    TagCloser(frame, first).KeyPress(KeyAscii);
    EXPECT_EQ(first.input->Text(), QStringLiteral("<B><I>"));
    EXPECT_EQ(first.input->ColorAt(1), 16711680);
    EXPECT_EQ(frame.Box().Text(), QString());
}

} // namespace
