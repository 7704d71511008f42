// What commands write into a page in UTF-8, and into one that is not.
#include "editor/color/InsertTag.h"

#include "platform/store/Settings.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

TEST(InsertTagUtf8, ACharacterStaysItself) {
    for (const bool colored : {true, false}) {
        TestFrame frame;
        frame.Store().WriteFlag(Keys::ColoredTags, colored);
        frame.active->SetEncoding(TextEncoding::Utf8);
        InsertTag(frame, u"<A TITLE=\"Łódź 😀\">"_s, u"</ŻÓŁĆ>"_s, KeepCase::Yes);
        EXPECT_EQ(frame.Marked(), u"<A TITLE=\"Łódź 😀\">|</ŻÓŁĆ>"_s);
    }
}

TEST(InsertTagUtf8, ItIsLoweredAsLettersAre) {
    TestFrame frame;
    frame.Store().WriteFlag(Keys::LowerCaseTags, true);
    frame.active->SetEncoding(TextEncoding::Utf8);
    InsertTag(frame, u"<B>"_s, u"</ŻÓŁĆ>"_s, KeepCase::No);
    EXPECT_EQ(frame.Marked(), u"<b>|</żółć>"_s);
}

TEST(InsertTagUtf8, ElsewhereItIsAReferenceThatTheCaretCounts) {
    for (const bool colored : {true, false}) {
        TestFrame frame;
        frame.Store().WriteFlag(Keys::ColoredTags, colored);
        frame.Store().WriteFlag(Keys::LowerCaseTags, true);
        InsertTag(frame, u"<A TITLE=\"Ł\">"_s, u"</Ł😀>"_s, KeepCase::No);
        EXPECT_EQ(frame.Marked(), u"<a title=\"&#321;\">|</&#321;&#128512;>"_s) << colored;
    }
}

TEST(InsertTagUtf8, TheSelectionIsColouredAsItStands) {
    TestFrame frame;
    frame.active->SetEncoding(TextEncoding::Utf8);
    frame.SetMarked(u"[żółć <i>日本</i> {😀}]"_s);
    InsertTag(frame, u"<B>"_s, u"</B>"_s, KeepCase::No);
    EXPECT_EQ(frame.Marked(), u"<B>żółć <i>日本</i> {😀}|</B>"_s);
    const auto colors = frame.Colors();
    ASSERT_EQ(colors.size(), 7U);
    EXPECT_EQ(colors[2].first, u"<i>"_s);
    EXPECT_EQ(colors[3].first, u"日本"_s);
}

} // namespace
