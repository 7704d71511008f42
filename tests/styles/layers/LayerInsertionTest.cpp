#include "styles/layers/LayerInsertion.h"

#include "support/TestFrame.h"

#include <gtest/gtest.h>

namespace {

TEST(LayerInsertion, AClassGoesOverTheSelectionOrOverTheHeadEnd) {
    const struct {
        const char* before;
        ClassPlace place;
        const char* after;
    } rows[] = {
        {"a|b</HEAD>", ClassPlace::Selection, "a.c|b</HEAD>"},
        {"a[b]c", ClassPlace::Selection, "a.c|c"},
        {"<HEAD></HEAD><BODY>|", ClassPlace::HeadEnd, "<HEAD>.c|<BODY>"},
        {"|<head></head><body>", ClassPlace::HeadEnd, "<head>.c|<body>"},
        // The selection plays no part in this search.
        {"a[b]</HEAD>", ClassPlace::HeadEnd, "ab.c|"},
        // Without the tag seven characters from the caret go.
        {"a|bcdefghij", ClassPlace::HeadEnd, "a.c|ij"},
        {"a[bc]defghij", ClassPlace::HeadEnd, "a.c|ij"},
        {"ab|c", ClassPlace::HeadEnd, "ab.c|"},
        // The search begins at 1: a tag at the very top is not found.
        {"</HEAD>a|bcdefghi", ClassPlace::HeadEnd, "</HEAD>a.c|i"},
        {"</HEAD></HEAD>|", ClassPlace::HeadEnd, "</HEAD>.c|"},
    };
    TestFrame frame;
    for (const auto& row : rows) {
        frame.SetMarked(row.before);
        frame.Box().EmptyUndoBuffer();
        const QString text = frame.Box().Text();
        InsertClass(frame, QStringLiteral(".c"), row.place);
        EXPECT_EQ(frame.Marked(), QString::fromLatin1(row.after)) << row.before;
        frame.Box().Send(RichTextBox::Message::Undo);
        EXPECT_EQ(frame.Box().Text(), text) << row.before;
        EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0) << row.before;
    }
}

TEST(LayerInsertion, TheColourSettingCountsOnlyWhereItIsANumber) {
    const struct {
        const char* setting;
        int color;
    } rows[] = {
        {"\\red0\\green0\\blue255", 0},
        {"255", 255},
        {" 16711680 ", 16711680},
        {"0", 0},
        {"-1", 0},
        {"16777216", 0},
        {"x", 0},
        {"", 0},
        {"16777215", 16777215},
        {"1e400", 0},
    };
    TestFrame frame;
    for (const auto& row : rows) {
        frame.Store().Write(Keys::EdTextColor[1], QString::fromLatin1(row.setting));
        frame.SetMarked("a[b]c");
        frame.Box().EmptyUndoBuffer();
        InsertClass(frame, QStringLiteral(".c"), ClassPlace::Selection);
        EXPECT_EQ(frame.Box().ColorAt(1), row.color) << row.setting;
        EXPECT_EQ(frame.Box().ColorAt(3), 0) << row.setting;
        frame.Box().Send(RichTextBox::Message::Undo);
        EXPECT_EQ(frame.Box().Text(), QStringLiteral("abc")) << row.setting;
        EXPECT_EQ(frame.Box().ColorAt(1), 0) << row.setting;
        EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0) << row.setting;
    }
}

TEST(LayerInsertion, WithoutADocumentNothingHappens) {
    TestFrame frame;
    frame.CloseDocument();
    InsertClass(frame, QStringLiteral(".c"), ClassPlace::Selection);
    InsertClass(frame, QStringLiteral(".c"), ClassPlace::HeadEnd);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

// A reference would be no part of the class's name.
TEST(LayerInsertion, ACharacterThatThePageCannotHoldIsAnEscape) {
    TestFrame frame;
    const QString snowman = QStringLiteral(".\u2603 {}");
    for (const ClassPlace place : {ClassPlace::Selection, ClassPlace::HeadEnd}) {
        frame.Box().SetHolds(CharacterSet::CodePage1252);
        frame.SetMarked("|");
        InsertClass(frame, snowman, place);
        EXPECT_EQ(frame.Box().Text(), QStringLiteral(".\\2603  {}"));
        frame.Box().SetHolds(CharacterSet::Unicode);
        frame.SetMarked("|");
        InsertClass(frame, snowman, place);
        EXPECT_EQ(frame.Box().Text(), snowman);
    }
}

} // namespace
