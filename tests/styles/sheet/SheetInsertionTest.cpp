#include "styles/sheet/SheetInsertion.h"

#include "dialogs/TagRows.h"
#include "support/TestFrame.h"

namespace {

const QString sheet = QStringLiteral("H1 { a: b;  }\r\nP {  }\r\n");

TEST(SheetInsertion, TheBlockOfAHeadInBothCases) {
    Check({
        {[](TagCase tagCase) { return HeadBlock(sheet, tagCase); },
         u"\r\n<STYLE type=\"text/css\">\r\n<!--\r\nH1 { a: b;  }\r\nP {  }\r\n-->\r\n</STYLE>\r\n",
         u"\r\n<style type=\"text/css\">\r\n<!--\r\nH1 { a: b;  }\r\nP {  }\r\n-->\r\n</style>\r\n"},
        // The sheet's own words keep their case, and the last two characters go, whatever they are.
        {[](TagCase tagCase) { return HeadBlock(T(u"BODY {}xy"), tagCase); },
         u"\r\n<STYLE type=\"text/css\">\r\n<!--\r\nBODY {}\r\n-->\r\n</STYLE>\r\n",
         u"\r\n<style type=\"text/css\">\r\n<!--\r\nBODY {}\r\n-->\r\n</style>\r\n"},
        {[](TagCase tagCase) { return HeadBlock(T(u"\r\n"), tagCase); },
         u"\r\n<STYLE type=\"text/css\">\r\n<!--\r\n\r\n-->\r\n</STYLE>\r\n",
         u"\r\n<style type=\"text/css\">\r\n<!--\r\n\r\n-->\r\n</style>\r\n"},
        {[](TagCase tagCase) { return HeadBlock(T(u"x"), tagCase); }, u"\r\n", u"\r\n"},
        {[](TagCase tagCase) { return HeadBlock(QString(), tagCase); }, u"\r\n", u"\r\n"},
    });
}

struct Place {
    const char* before;
    QString after;
};

TEST(SheetInsertion, TheHeaderIsBehindTheTagOrAtFive) {
    TestFrame frame;
    const QString block = HeadBlock(sheet, TagCase::AsWritten);
    const Place rows[] = {
        {"<HTML><HEAD><TITLE>|", QStringLiteral("<HTML><HEAD>") + block + QStringLiteral("|<TITLE>")},
        {"|<html><head></head>", QStringLiteral("<html><head>") + block + QStringLiteral("|</head>")},
        {"<HEAD><HEAD>|", QStringLiteral("<HEAD>") + block + QStringLiteral("|<HEAD>")},
        {"no such tag|", QStringLiteral("no su") + block + QStringLiteral("|ch tag")},
        {"abc|", QStringLiteral("abc") + block + u'|'},
        {"|", block + u'|'},
        // Only a selection is searched where there is one.
        {"<HEAD>[<P>]</HEAD>", QStringLiteral("<HEAD") + block + QStringLiteral("|><P></HEAD>")},
        {"<P>[<HEAD><B>]</HEAD>", QStringLiteral("<P><HEAD>") + block + QStringLiteral("|<B></HEAD>")},
    };
    for (const Place& row : rows) {
        frame.SetMarked(row.before);
        AddToHeader(frame, sheet);
        EXPECT_EQ(frame.Marked(), row.after) << row.before;
        EXPECT_TRUE(frame.active->modified);
    }
}

TEST(SheetInsertion, AnEmptySheetLeavesALineEndInTheHead) {
    TestFrame frame;
    frame.SetMarked("<HEAD></HEAD>|");
    AddToHeader(frame, QString());
    EXPECT_EQ(frame.Marked(), T(u"<HEAD>\r\n|</HEAD>"));
}

TEST(SheetInsertion, TheLocationIsTheSelection) {
    TestFrame frame;
    const QString bare = QStringLiteral("H1 { a: b;  }\r\nP {  }");
    frame.SetMarked("a|b");
    AddToLocation(frame, sheet);
    EXPECT_EQ(frame.Marked(), u'a' + bare + QStringLiteral("|b"));
    frame.SetMarked("a[xyz]b");
    AddToLocation(frame, sheet);
    EXPECT_EQ(frame.Marked(), u'a' + bare + QStringLiteral("|b"));
    // Of two characters nothing is left, which is written; of fewer nothing can be.
    frame.SetMarked("a[xyz]b");
    AddToLocation(frame, T(u"\r\n"));
    EXPECT_EQ(frame.Marked(), T(u"a|b"));
    for (const char16_t* small : {u"", u"x"}) {
        frame.SetMarked("a[xyz]b");
        AddToLocation(frame, T(small));
        EXPECT_EQ(frame.Marked(), T(u"a[xyz]b"));
    }
}

TEST(SheetInsertion, IsPlainTextInTheColourOfItsPlaceAndOneUndoStep) {
    TestFrame frame;
    for (const auto write : {AddToHeader, AddToLocation}) {
        frame.SetText(T(u"<HEAD>x"));
        frame.Box().SetSelStart(0);
        frame.Box().SetSelLength(6);
        frame.Box().SetSelColor(0xff0000);
        frame.Box().SetSelStart(6);
        frame.Box().EmptyUndoBuffer();
        write(frame, sheet);
        const auto colors = frame.Colors();
        ASSERT_EQ(colors.size(), 2U);
        EXPECT_EQ(colors[1], std::pair(T(u"x"), 0));
        frame.Box().Send(RichTextBox::Message::Undo);
        EXPECT_EQ(frame.Box().Text(), T(u"<HEAD>x"));
        EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0);
    }
}

TEST(SheetInsertion, WithoutADocumentNothingHappens) {
    TestFrame frame;
    frame.CloseDocument();
    AddToHeader(frame, sheet);
    AddToLocation(frame, sheet);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST(SheetInsertion, ReadsTheCaseAtThatMoment) {
    TestFrame frame;
    frame.Store().WriteFlag(Keys::LowerCaseTags, true);
    frame.SetMarked("<HEAD>|");
    AddToHeader(frame, sheet);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<HEAD>") + HeadBlock(sheet, TagCase::Lower));
}

// In a style sheet a reference stands for nothing: what the document can't hold is an escape there.
TEST(SheetInsertion, ACharacterThatThePageCannotHoldIsAnEscape) {
    TestFrame frame;
    const QString snowman = T(u".\u2603 {  }\r\n");
    const std::pair<CharacterSet, QString> rows[] = {
        {CharacterSet::CodePage1252, QStringLiteral(".\\2603  {  }")},
        {CharacterSet::Unicode, T(u".\u2603 {  }")},
    };
    for (const auto& [holds, rule] : rows) {
        frame.Box().SetHolds(holds);
        frame.SetMarked("a|b");
        AddToLocation(frame, snowman);
        EXPECT_EQ(frame.Box().Text(), u'a' + rule + u'b');
        frame.SetMarked("<HEAD>|");
        AddToHeader(frame, snowman);
        EXPECT_EQ(frame.Box().Text(),
                  QStringLiteral("<HEAD>") + HeadBlock(rule + QStringLiteral("\r\n"), TagCase::AsWritten));
    }
}

} // namespace
