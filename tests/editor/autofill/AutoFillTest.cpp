// The auto-fill lists as they are typed: when they open, what they select, what Enter writes.
#include "editor/autofill/AutoFill.h"

#include "editor/autofill/frmDropDown.h"
#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QListWidget>

namespace {

struct OpenRow {
    const char* name;
    const char* before; ///< "|" the caret
    int rows;           ///< of the list that a blank opens; 0 for none
};

class AutoFillOpens : public testing::TestWithParam<OpenRow> {};

TEST_P(AutoFillOpens, AtABlank) {
    const OpenRow& row = GetParam();
    TypingFrame frame;
    frame.SetMarked(row.before);
    frame.Type(" ");
    EXPECT_EQ(frame.PausePending(), row.rows > 0);
    EXPECT_EQ(frame.Flags().DropDownOpen(), row.rows > 0);
    EXPECT_EQ(frame.Rows().size(), row.rows);
    EXPECT_FALSE(frame.ListShown());
    EXPECT_EQ(frame.Marked(),
              QString::fromLatin1(row.before).replace(QStringLiteral("|"), QStringLiteral(" |")));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AutoFillOpens,
    testing::Values(OpenRow{"img", "<IMG|", 18}, OpenRow{"lower_case", "<img|", 18},
                    OpenRow{"mixed", "<TaBlE|", 20}, OpenRow{"behind_an_attribute", "<IMG SRC=\"a\"|", 18},
                    OpenRow{"inside_a_value", "<IMG ALT=\"a|b\">", 18}, OpenRow{"a", "<a|", 7},
                    OpenRow{"body", "<BODY|", 12}, OpenRow{"div", "<DIV|", 5}, OpenRow{"p", "<P|", 5},
                    OpenRow{"font", "<FONT|", 7}, OpenRow{"form", "<FORM|", 8},
                    OpenRow{"frame", "<FRAME|", 13}, OpenRow{"frameset", "<FRAMESET|", 10},
                    OpenRow{"param", "<PARAM|", 5}, OpenRow{"td", "<TD|", 16}, OpenRow{"th", "<TH|", 16},
                    OpenRow{"tr", "<TR|", 11}, OpenRow{"closed", "<table>|", 0}, OpenRow{"h1", "<h1|", 0},
                    OpenRow{"text", "img|", 0}, OpenRow{"empty", "|", 0}, OpenRow{"no_name", "<|", 0},
                    OpenRow{"blank_before_the_name", "< img|", 0},
                    OpenRow{"name_ends_at_a_blank_only", "<img\r\n|", 0},
                    OpenRow{"closing_tag", "</table|", 0},
                    OpenRow{"the_nearest_bracket_counts", "<img alt=\"<b|", 0},
                    OpenRow{"a_bracket_in_a_value", "<img alt=\"a>b\"|", 0},
                    OpenRow{"only_up_to_the_caret", "<p|re>", 5}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(AutoFill, ReachesBack150Characters) {
    for (const int distance : {149, 150, 151}) {
        TypingFrame frame;
        frame.SetText(QStringLiteral("x<IMG ") + QString(distance - 5, u'y'));
        frame.Type(" ");
        EXPECT_EQ(frame.Rows().size(), distance <= 150 ? 18 : 0) << distance;
    }
}

TEST(AutoFill, ClosesTheFlagAtABracket) {
    TypingFrame frame;
    frame.SetText(QStringLiteral("<table>"));
    frame.Flags().Open();
    frame.Lists().WhatChar(QStringLiteral(" "));
    EXPECT_FALSE(frame.Flags().DropDownOpen());
}

TEST(AutoFill, OpenFuncRaisesThePosition) {
    TypingFrame frame;
    frame.SetText(QStringLiteral("x<img"));
    int position = 2;
    frame.Lists().OpenFunc(QStringLiteral(" "), position);
    EXPECT_EQ(position, 3);
    EXPECT_EQ(frame.Rows().size(), 18);
}

TEST(AutoFill, OnlyWhenItIsOn) {
    TypingFrame frame;
    frame.State<EditorOptions>().UseAutoFill = false;
    frame.Type("<img ");
    EXPECT_FALSE(frame.PausePending());
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<img "));
}

TEST(AutoFill, ComesUpAfterThePause) {
    TypingFrame frame;
    frame.Type("<img ");
    EXPECT_EQ(frame.active->Timer1.interval(), 1150);
    EXPECT_FALSE(frame.ListShown());
    frame.Pause();
    EXPECT_TRUE(frame.ListShown());
    EXPECT_FALSE(frame.PausePending());
    EXPECT_TRUE(frame.Flags().DropDownOpen());
    EXPECT_EQ(frame.SelectedRow(), QStringLiteral("HEIGHT"));
    // The keyboard stays in the text.
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
    frame.Type("x");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img x|"));
}

TEST(AutoFill, AKeyWithinThePauseCancelsTheShowing) {
    TypingFrame frame;
    frame.Type("<img h");
    EXPECT_FALSE(frame.PausePending());
    EXPECT_FALSE(frame.ListShown());
    // The hidden list is open all the same: Enter takes its row.
    EXPECT_TRUE(frame.Flags().DropDownOpen());
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img HEIGHT=\"|\""));
}

TEST(AutoFill, TypingNarrows) {
    TypingFrame frame;
    frame.Type("<img ");
    frame.Pause();
    struct Row {
        const char* typed;
        const char* selected;
    };
    for (const auto& [typed, selected] :
         {Row{"a", "ALIGN"}, Row{"l", "ALIGN"}, Row{"T", "ALT"}, Row{"z", "ALT"}, Row{"\b", "ALT"},
          Row{"\b", "ALIGN"}, Row{"\b", "ALIGN"}, Row{"\b", "ALIGN"}, Row{"lo", "LOOP"},
          Row{"opd", "LOOPDELAY"}}) {
        frame.Type(typed);
        EXPECT_EQ(frame.SelectedRow(), QString::fromLatin1(selected)) << typed;
    }
}

TEST(AutoFill, EnterWritesTheAttribute) {
    TypingFrame frame;
    frame.Type("<img ");
    frame.Pause();
    frame.Type("h\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img HEIGHT=\"|\""));
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_FALSE(frame.PausePending());
}

TEST(AutoFill, EnterWithNothingTypedWritesTheFirst) {
    TypingFrame frame;
    frame.Type("<img ");
    frame.Pause();
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img HEIGHT=\"|\""));
}

TEST(AutoFill, WritesInLowerCaseWhereTagsAre) {
    TypingFrame frame;
    frame.Store().WriteFlag(Keys::LowerCaseTags, true);
    frame.Type("<img ");
    frame.Type("ali\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img align=\"|\""));
    frame.Type("left\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img align=\"left|\""));
}

TEST(AutoFill, OddQuotesAndBareAttributes) {
    struct Row {
        const char* tag;
        const char* typed;
        const char* after;
    };
    for (const auto& [tag, typed, after] :
         {Row{"<img ", "cont", "<img CONTROLS\"|\""}, Row{"<td ", "now", "<td NOWRAP\"|\""},
          Row{"<tr ", "now", "<tr NOWRAP\"|\""}, Row{"<table ", "now", "<table NOWRAP|"},
          Row{"<frame ", "nor", "<frame NORESIZE|"}, Row{"<body ", "bgp", "<body BGPROPERTIES|"}}) {
        TypingFrame frame;
        frame.Type(tag);
        frame.Type(typed);
        frame.Type("\r");
        EXPECT_EQ(frame.Marked(), QString::fromLatin1(after));
        EXPECT_FALSE(frame.PausePending()) << after;
        EXPECT_FALSE(frame.Flags().DropDownOpen()) << after;
    }
}

TEST(AutoFill, AlignmentsFollow) {
    TypingFrame frame;
    frame.Type("<IMG ");
    frame.Pause();
    frame.Type("ali\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<IMG ALIGN=\"|\""));
    EXPECT_TRUE(frame.Lists().ValueList());
    EXPECT_FALSE(frame.ListShown());
    frame.Pause();
    EXPECT_TRUE(frame.ListShown());
    EXPECT_EQ(frame.Rows().size(), 9);
    EXPECT_EQ(frame.SelectedRow(), QStringLiteral("ABSBOTTOM"));
    frame.Type("le");
    EXPECT_EQ(frame.SelectedRow(), QStringLiteral("LEFT"));
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<IMG ALIGN=\"LEFT|\""));
    EXPECT_FALSE(frame.Lists().ValueList());
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_EQ(frame.List(), nullptr);
}

TEST(AutoFill, ColorsFollowTheirAttributes) {
    struct Row {
        const char* tag;
        const char* attribute;
    };
    for (const auto& [tag, attribute] :
         {Row{"body", "bgcolor"}, Row{"body", "alink"}, Row{"body", "link"}, Row{"body", "text"},
          Row{"body", "vlink"}, Row{"font", "color"}, Row{"table", "bordercolor"},
          Row{"table", "bordercolordark"}, Row{"table", "bordercolorlight"}}) {
        TypingFrame frame;
        frame.Type(QStringLiteral("<%1 %2\r").arg(QLatin1String(tag), QLatin1String(attribute)));
        EXPECT_EQ(frame.Rows().size(), 17) << attribute;
        EXPECT_TRUE(frame.Lists().ValueList()) << attribute;
        frame.Type("re\r");
        EXPECT_EQ(frame.Marked(), QStringLiteral("<%1 %2=\"red|\"")
                                      .arg(QLatin1String(tag), QString::fromLatin1(attribute).toUpper()));
    }
}

TEST(AutoFill, OtherAttributesHaveNoValueList) {
    TypingFrame frame;
    frame.Type("<td valign\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<td VALIGN=\"|\""));
    EXPECT_FALSE(frame.PausePending());
    EXPECT_FALSE(frame.Lists().ValueList());
}

TEST(AutoFill, AValueIsTypedOverWhatWasTyped) {
    TypingFrame frame;
    frame.SetMarked("<p id=\"x\"|>text");
    frame.Type(" al\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<p id=\"x\" ALIGN=\"|\">text"));
    frame.Pause();
    frame.Type("mi\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<p id=\"x\" ALIGN=\"MIDDLE|\">text"));
}

TEST(AutoFill, CustomColor) {
    TypingFrame frame;
    frame.prompts.colorAnswers = {255};
    frame.Type("<font col\r");
    frame.Pause();
    EXPECT_EQ(frame.SelectedRow(), QStringLiteral(" custom..."));
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<font COLOR=\"#FF0000|\""));
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.prompts.asked.front().kind, Asked::Color);
    EXPECT_EQ(frame.prompts.asked.front().owner, frame.Window());
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_EQ(frame.List(), nullptr);
}

TEST(AutoFill, CustomWritesThePickedColor) {
    struct Row {
        ColorNumber picked;
        const char* text;
    };
    for (const auto& [picked, text] :
         {Row{255, "#FF0000"}, Row{0, "#000000"}, Row{1, "#010000"}, Row{0x00ABCDEF, "#EFCDAB"}}) {
        TypingFrame frame;
        frame.prompts.colorAnswers = {picked};
        frame.Type("<font color\r\r");
        EXPECT_EQ(frame.Marked(), QStringLiteral("<font COLOR=\"%1|\"").arg(QLatin1String(text)));
    }
}

TEST(AutoFill, ACancelledColorLetsTheEnterThrough) {
    // A word that fits no row leaves the selection where it is.
    for (const char* typed : {"zz\r", "\r"}) {
        TypingFrame frame;
        frame.prompts.colorAnswers = {std::nullopt};
        frame.Type("<font col\r");
        frame.Type(typed);
        EXPECT_EQ(frame.Marked(), QStringLiteral("<font COLOR=\"\r\n|\""));
        EXPECT_FALSE(frame.Flags().DropDownOpen());
        EXPECT_EQ(frame.List(), nullptr);
    }
}

TEST(AutoFill, CustomIsNotLowered) {
    TypingFrame frame;
    frame.Store().WriteFlag(Keys::LowerCaseTags, true);
    frame.prompts.colorAnswers = {0x00ABCDEF};
    frame.Type("<font col\r\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<font color=\"#EFCDAB|\""));
}

TEST(AutoFill, ABlankInAnOpenListUnloadsItAndStopsFollowing) {
    TypingFrame frame;
    frame.Type("<img ");
    frame.Pause();
    frame.Type("h ");
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_FALSE(frame.Flags().DropDownFollowsCaret());
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img h |"));
    EXPECT_FALSE(frame.PausePending());
    // A further blank opens the list again; it is placed when loaded and stays there.
    frame.Type(" ");
    ASSERT_NE(frame.List(), nullptr);
    const QPoint place = frame.List()->Place();
    frame.Type("wid");
    EXPECT_EQ(frame.List()->Place(), place);
    EXPECT_FALSE(frame.Flags().DropDownFollowsCaret());
}

TEST(AutoFill, FollowsTheCaret) {
    TypingFrame frame;
    frame.Type("<img ");
    frame.Pause();
    const QPoint caret = frame.Box().CaretPixel();
    const QPoint frameTwips = frame.window->frameGeometry().topLeft() * 15;
    EXPECT_EQ(frame.List()->Place(),
              QPoint(frameTwips.x() + caret.x() * 15 + 100, frameTwips.y() + caret.y() * 15 + 2070));
    const QPoint before = frame.List()->pos();
    frame.Type("wid");
    const QPoint moved = frame.Box().CaretPixel();
    EXPECT_GT(moved.x(), caret.x());
    EXPECT_EQ(frame.List()->Place().x(), frameTwips.x() + moved.x() * 15 + 100);
    EXPECT_EQ(frame.List()->pos() - before, moved - caret);
}

TEST(AutoFill, StandsBelowTheCaretsLine) {
    TypingFrame frame;
    frame.Type("\r\r<img ");
    frame.Pause();
    const QPoint caret = frame.Box().viewport()->mapTo(frame.window.get(), frame.Box().CaretPixel());
    EXPECT_EQ(frame.List()->x(), caret.x());
    EXPECT_GT(frame.List()->y(), caret.y() + 5);
    EXPECT_LT(frame.List()->y(), caret.y() + 40);
    EXPECT_TRUE(frame.window->rect().contains(frame.List()->geometry()));
}

TEST(AutoFill, BackspaceUnloadsWithNothingTyped) {
    TypingFrame frame;
    frame.Type("<img ");
    frame.Pause();
    frame.Type("h\b");
    EXPECT_TRUE(frame.ListShown());
    frame.Type("\b");
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img|"));
}

TEST(AutoFill, BackspaceForgetsThatItIsAValueList) {
    TypingFrame frame;
    frame.Type("<img ali\r");
    frame.Pause();
    frame.Type("lx\b");
    EXPECT_FALSE(frame.Lists().ValueList());
    EXPECT_TRUE(frame.Flags().DropDownOpen());
    // From then on the pick counts from one character further right, as for an attribute.
    frame.Type("\r");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<img ALIGN=\"lLEFT"));
}

TEST(AutoFill, AnEqualSignUnloads) {
    TypingFrame frame;
    frame.Type("<img ali\r");
    frame.Pause();
    frame.Type("=");
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_FALSE(frame.Lists().ValueList());
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img ALIGN=\"=|\""));
}

TEST(AutoFill, EscAndRightUnload) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Right}) {
        TypingFrame frame;
        frame.Type("<img ali\r");
        frame.Pause();
        frame.Key(key);
        EXPECT_EQ(frame.List(), nullptr);
        EXPECT_FALSE(frame.Flags().DropDownOpen());
        EXPECT_FALSE(frame.Lists().ValueList());
        frame.Type("\r");
        EXPECT_EQ(frame.Box().Text().count(QStringLiteral("\r\n")), 1);
    }
}

TEST(AutoFill, EscWithinThePauseCallsTheListOff) {
    for (const char* typed : {"<IMG ", "<img ali\r"}) {
        TypingFrame frame;
        frame.Type(typed);
        ASSERT_TRUE(frame.PausePending()) << typed;
        const QString text = frame.Marked();
        frame.Key(Qt::Key_Escape);
        EXPECT_FALSE(frame.PausePending()) << typed;
        EXPECT_EQ(frame.List(), nullptr) << typed;
        EXPECT_FALSE(frame.Flags().DropDownOpen()) << typed;
        EXPECT_EQ(frame.Marked(), text);
        // The next blank asks anew.
        frame.Type(" ");
        EXPECT_TRUE(frame.PausePending()) << typed;
        EXPECT_EQ(frame.Rows().size(), 18) << typed;
    }
}

TEST(AutoFill, RightWithinThePauseLeavesItAndNoListComesUp) {
    TypingFrame frame;
    frame.SetText(QStringLiteral("<img"));
    frame.Type(" ");
    frame.Key(Qt::Key_Right);
    EXPECT_EQ(frame.List(), nullptr);
    frame.Pause();
    EXPECT_FALSE(frame.ListShown());
    EXPECT_EQ(frame.Rows(), QStringList());
    EXPECT_TRUE(frame.Flags().DropDownOpen());
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
    // There is no row to take: an Enter is an ordinary one, and what was typed stays.
    frame.Type("al\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img al\r\n|"));
    EXPECT_EQ(frame.List(), nullptr);
}

TEST(AutoFill, AListThatAnotherDocumentTookAwayWithinThePauseDoesNotComeUpEmpty) {
    TypingFrame frame;
    frame.Type("<img ");
    TestDocument* first = frame.active;
    frame.NewDocument();
    const TypingEngine second(frame, *frame.active, frame.active->Timer1, nullptr);
    frame.Box().SetFocus();
    frame.Type("=");
    ASSERT_EQ(frame.List(), nullptr);
    ASSERT_TRUE(first->Timer1.isActive());
    ASSERT_TRUE(QMetaObject::invokeMethod(&first->Timer1, "timeout"));
    EXPECT_FALSE(frame.ListShown());
}

TEST(AutoFill, AnAttributeThatIsThereIsOfferedStill) {
    TypingFrame frame;
    frame.Type("<IMG");
    frame.Type(" ");
    const QStringList rows = frame.Rows();
    TypingFrame second;
    second.SetMarked("<IMG SRC=\"a\" ALT=\"b\"|>");
    second.Type(" ");
    EXPECT_EQ(second.Rows(), rows);
    EXPECT_TRUE(rows.contains(QStringLiteral("SRC")));
}

TEST(AutoFill, OpenDDCountsTheWordFromTheCaretWhateverItsArgument) {
    for (const bool quoted : {false, true}) {
        TypingFrame frame;
        frame.SetText(QStringLiteral("  abc"));
        frame.Type("d");
        ASSERT_FALSE(frame.Lists().TypedWord().IsEmpty());
        frame.window->setFocus();
        frame.Lists().OpenDD(quoted);
        EXPECT_TRUE(frame.PausePending());
        EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
        EXPECT_TRUE(frame.Lists().TypedWord().IsEmpty());
        EXPECT_EQ(frame.Lists().WordStart(), 7);
        EXPECT_TRUE(frame.Flags().DropDownOpen());
        EXPECT_EQ(frame.List(), nullptr);
    }
}

TEST(AutoFill, TheValueListCountsTheWordFromTheSecondQuote) {
    TypingFrame frame;
    frame.Type("<img ali\r");
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<img ALIGN=\"\""));
    EXPECT_EQ(frame.Lists().WordStart(), 13);
    frame.Type("le");
    EXPECT_EQ(frame.Lists().TypedWord().Length(), 2);
}

TEST(AutoFill, AnAttributeTakesTheFirstEqualSignBehindIt) {
    // NOWRAP"" has none of its own: the name then runs on to the next one, and is none that is known.
    TypingFrame frame;
    frame.SetMarked("<td| ALIGN=\"x\">");
    frame.Type(" now\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<td NOWRAP\"|\" ALIGN=\"x\">"));
    EXPECT_FALSE(frame.PausePending());
    EXPECT_FALSE(frame.Lists().ValueList());
}

TEST(AutoFill, EnterOfAValueEndsAsAnEnterThatWasTaken) {
    // The handler goes on behind the pick, with no key left to handle.
    TypingFrame frame;
    frame.Type("<img ali\r");
    frame.Type("to");
    int KeyAscii = 13;
    frame.engine->txtinput_KeyPress(KeyAscii);
    EXPECT_EQ(KeyAscii, 0);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img ALIGN=\"TOP|\""));
}

TEST(AutoFill, StandsWhereTheLastListWas) {
    // The typed word counts from the last list on, also when the caret has long gone elsewhere.
    TypingFrame frame;
    EXPECT_EQ(frame.Lists().WordStart(), 0);
    frame.SetText(QStringLiteral("  abc"));
    EXPECT_EQ(frame.Lists().WordStart(), 1);
    frame.Type("d ");
    EXPECT_EQ(frame.Lists().TypedWord().Length(), 4);
    frame.Type("<img ");
    EXPECT_EQ(frame.Lists().WordStart(), 12);
    EXPECT_EQ(frame.Lists().TypedWord().Length(), 0);
    frame.Box().SetSelStart(0);
    frame.Type("\bx");
    EXPECT_EQ(frame.Lists().WordStart(), 12);
}

TEST(AutoFill, ClosingTheDocumentEndsThePause) {
    TypingFrame frame;
    frame.Type("<img ");
    frame.LoadedForms().Unload<frmDropDown>();
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    frame.CloseDocument();
    EXPECT_EQ(frame.ActiveForm(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(frame.LoadedForms().Count(), 0);
}

} // namespace
