// The spell check of a document: pieces, positions, reports and ends, with all oddities.
#include "editor/spelling/SpellFrame.h"

namespace {

using namespace Qt::StringLiterals;

class SpellRunTest : public testing::Test {
  protected:
    static QString Report(int checked, int replaced) {
        return u"Spellcheck complete!\n %1 Words Checked\n %2 Words Replaced"_s.arg(checked).arg(replaced);
    }
    SpellFrame frame;
};

struct PieceRow {
    const char* text;
    const char* found; ///< each with Ignore
    int checked;
};

const PieceRow pieces[] = {
    {"", "", 0},
    // A text of one character ends before it begins, and so does a last piece of one.
    {"q", "", 0},
    {"the<b>q", "", 1},
    {"the <b>qq", "7:qq", 2},
    {"the quick brown fox", "", 4},
    {"teh quick brwn", "0:teh 10:brwn", 3},
    // From tag to tag; attributes are skipped, a title is not.
    {"<TITLE>teh fox</TITLE><IMG ALT=\"wrng\">brwn", "7:teh 38:brwn", 3},
    {"<P><B></B><I></I>", "", 0},
    {"<P>t<B>e</B>h", "3:t 7:e", 2},
    // Quotes and comments are not regarded.
    {"<!-- a > wrng -->fox", "9:wrng", 2},
    {"<a title=\"x > wrng\">fox", "14:wrng", 2},
    {"a > wrng <b> x", "4:wrng", 3},
    {"<a <b>wrng", "6:wrng", 1},
    // An entity counts all of its characters.
    {"<p>caf&eacute; cff&eacute; x</p>", "15:cff&eacute;", 3},
};

TEST_F(SpellRunTest, ChecksFromTagToTag) {
    for (const PieceRow& row : pieces) {
        frame.SetText(QString::fromLatin1(row.text));
        const QString expected = QString::fromLatin1(row.found);
        const auto words = expected.isEmpty() ? 0 : expected.count(u' ') + 1;
        frame.Check(std::vector<Reply>(static_cast<std::size_t>(words), Reply{"cmdIgnore"}));
        EXPECT_EQ(frame.Found(), expected) << row.text;
        EXPECT_EQ(frame.Boxes(), Report(row.checked, 0)) << row.text;
        EXPECT_EQ(frame.Box().Text(), QString::fromLatin1(row.text));
        EXPECT_FALSE(frame.Dialog() && frame.Dialog()->isVisible());
    }
}

TEST_F(SpellRunTest, TheReportIsAPlainBox) {
    frame.SetText(u"the fox"_s);
    frame.Check();
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    const Asked& box = frame.prompts.asked[0];
    EXPECT_EQ(box.text, Report(2, 0));
    EXPECT_EQ(box.icon, MsgIcon::None);
    EXPECT_EQ(box.buttons, MsgButtons::OK);
    EXPECT_EQ(box.title, u"The Tarnwick"_s);
    EXPECT_TRUE(frame.State<SpellState>().SpellKeepGoing);
}

TEST_F(SpellRunTest, ACorrectionIsWrittenWithItsPieceAsOneUndoStep) {
    frame.SetText(u"<p>the teh fox</p>"_s);
    frame.Box().EmptyUndoBuffer();
    frame.Check({{"cmdChange", "the"}});
    EXPECT_EQ(frame.Box().Text(), u"<p>the the fox</p>"_s);
    EXPECT_EQ(frame.Boxes(), Report(3, 1));
    EXPECT_EQ(frame.Marked(), u"<p>the the fox|</p>"_s) << "behind what was written";
    frame.Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(frame.Box().Text(), u"<p>the teh fox</p>"_s);
    EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0);
}

// A first piece has the position 1, and so has one that starts behind no tag at all.
TEST_F(SpellRunTest, CorrectsTheFirstPiece) {
    frame.SetText(u"teh<b>fxo</b> fox"_s);
    frame.Check({{"cmdChange", "the"}, {"cmdChange", "fox"}});
    EXPECT_EQ(frame.Box().Text(), u"the<b>fox</b> fox"_s);
}

TEST_F(SpellRunTest, FindsAndCorrectsBehindLettersBeyondTheCodePage) {
    // Two units each, of four bytes.
    const QString face = QString::fromUtf16(u"\U0001f600");
    frame.Box().SetHolds(CharacterSet::Unicode);
    frame.SetText(face + u"<p>"_s + face + u" teh "_s + face + u"</p> fxo "_s + face);
    frame.Check({{"cmdChange", "the"}, {"cmdChange", "fo\xc5\xbe"}});
    EXPECT_EQ(frame.Found(), u"8:teh 19:fxo"_s);
    EXPECT_EQ(frame.Box().Text(), face + u"<p>"_s + face + u" the "_s + face + u"</p> fo\u017e "_s + face);
    EXPECT_EQ(frame.Boxes(), Report(2, 2));
}

TEST_F(SpellRunTest, APieceKeepsItsColor) {
    frame.SetText(u"<p>teh</p>"_s);
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(3);
    frame.Box().SetSelColor(0xff0000);
    frame.Check({{"cmdChange", "the"}});
    EXPECT_EQ(frame.Box().Text(), u"<p>the</p>"_s);
    EXPECT_EQ(frame.Box().ColorAt(2), 0xff0000);
    EXPECT_EQ(frame.Box().ColorAt(3), 0);
    EXPECT_EQ(frame.Box().ColorAt(5), 0);
}

TEST_F(SpellRunTest, ChangeAllAndIgnoreAllHoldForFurtherPieces) {
    frame.SetText(u"teh <b>teh</b> fxo teh <i>fxo</i> fxo x"_s);
    frame.Check({{"cmdChangeAll", "the"}, {"cmdIgnoreAll"}});
    EXPECT_EQ(frame.Box().Text(), u"the <b>the</b> fxo the <i>fxo</i> fxo x"_s);
    EXPECT_EQ(frame.Boxes(), Report(7, 3));
    EXPECT_EQ(frame.Found(), u"0:teh 15:fxo"_s);
    // Another run asks again what to change, and what was ignored stays so.
    frame.SetText(u"teh fxo"_s);
    frame.Check({{"cmdIgnore"}});
    EXPECT_EQ(frame.Found(), u"0:teh"_s);
}

// The positions stay as they were: a longer correction leaves less of the end, within the old length.
TEST_F(SpellRunTest, ALongerCorrectionCutsTheEnd) {
    frame.SetText(u"teh <b>x</b> wrng"_s);
    frame.Check({{"cmdChange", "there"}, {"cmdIgnore"}});
    EXPECT_EQ(frame.Found(), u"0:teh 15:wr"_s);
    EXPECT_EQ(frame.Box().Text(), u"there <b>x</b> wrng"_s);
}

// And the search for the ">" goes on from the old place of the "<": a shorter one skips a piece.
TEST_F(SpellRunTest, AShorterCorrectionSkipsText) {
    frame.SetText(u"thee <b>wrng</b>"_s);
    frame.Check({{"cmdChange", "a"}});
    EXPECT_EQ(frame.Found(), u"0:thee"_s);
    EXPECT_EQ(frame.Box().Text(), u"a <b>wrng</b>"_s);
}

TEST_F(SpellRunTest, ACancelEndsTheRunWithoutAReport) {
    for (const char* text : {"teh <b>x</b> wrng", "teh", "the <b>teh"}) {
        frame.SetText(QString::fromLatin1(text));
        frame.Check({{"cmdCancel"}});
        EXPECT_EQ(frame.Boxes(), u"Canceled"_s) << text;
        ASSERT_EQ(frame.prompts.asked.size(), 1);
        EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::None);
        EXPECT_FALSE(frame.State<SpellState>().SpellKeepGoing);
        EXPECT_EQ(frame.Box().Text(), QString::fromLatin1(text));
    }
    frame.SetText(u"the fox"_s);
    frame.Check();
    EXPECT_TRUE(frame.State<SpellState>().SpellKeepGoing) << "the next run goes on";
}

TEST_F(SpellRunTest, WhatWasCorrectedBeforeACancelStays) {
    frame.SetText(u"teh brwn fxo"_s);
    frame.Check({{"cmdChange", "the"}, {"cmdCancel"}});
    EXPECT_EQ(frame.Box().Text(), u"the brwn fxo"_s);
    EXPECT_EQ(frame.Boxes(), u"Canceled"_s);
}

TEST_F(SpellRunTest, WithoutADocumentTheReportHasTheOldCounts) {
    frame.SetText(u"the teh"_s);
    frame.Check({{"cmdChange", "the"}});
    frame.CloseDocument();
    frame.Check();
    EXPECT_EQ(frame.Boxes(), Report(2, 1));
    frame.NewDocument();
    frame.Check();
    EXPECT_EQ(frame.Boxes(), Report(0, 0)) << "an empty document clears them";
}

TEST_F(SpellRunTest, AfterTheEndTheCheckItselfReportsOnceMore) {
    frame.SetText(u"the teh"_s);
    frame.Start();
    frame.WaitForQuestion();
    frame.State<SpellState>().SpellFinished = true;
    frame.Give({"cmdIgnore"});
    frame.WaitForEnd();
    EXPECT_EQ(frame.Boxes(), Report(2, 0));
}

TEST_F(SpellRunTest, AnUnclosedTagStartsOverUntilTheUserCancels) {
    frame.SetText(u"teh <b>fox</b> a < wrng"_s);
    frame.Check({{"cmdIgnore"}, {"cmdIgnore"}, {"cmdIgnore"}, {"cmdCancel"}});
    EXPECT_EQ(frame.Found(), u"0:teh 0:teh 0:teh 0:teh"_s);
    EXPECT_EQ(frame.Boxes(), u"Canceled"_s);
}

TEST_F(SpellRunTest, EscEndsARunThatNeverAsks) {
    frame.SetText(u"the <b"_s);
    frame.Start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return frame.checker->WordsChecked() > 2; }));
    EXPECT_TRUE(frame.Run().Running());
    EXPECT_TRUE(frame.Box().Enabled()) << "between two pieces keys go into the text";
    QTest::keyClick(&frame.Box(), Qt::Key_Escape);
    EXPECT_FALSE(frame.Run().Running());
    EXPECT_EQ(frame.Boxes(), u"Canceled"_s);
    EXPECT_EQ(frame.statuses.last(), QString());
}

TEST_F(SpellRunTest, ClosingTheDocumentCancels) {
    for (const char* text : {"the <b", "the teh fox"}) {
        frame.prompts.asked.clear();
        frame.SetText(QString::fromLatin1(text));
        frame.Start();
        ASSERT_TRUE(QTest::qWaitFor([&] { return frame.checker->WordsChecked() > 1; }));
        frame.CloseDocument();
        frame.WaitForEnd();
        EXPECT_EQ(frame.Boxes(), u"Canceled"_s) << text;
        EXPECT_FALSE(frame.Asking());
        frame.NewDocument();
    }
}

TEST_F(SpellRunTest, ClosingAnotherDocumentDoesNot) {
    TestDocument* first = frame.active;
    frame.NewDocument();
    frame.SetText(u"the teh fox"_s);
    frame.Start();
    frame.WaitForQuestion();
    delete first;
    QCoreApplication::processEvents();
    frame.Give({"cmdIgnore"});
    frame.WaitForEnd();
    EXPECT_EQ(frame.Boxes(), Report(3, 0));
}

// Each piece is read from the document that is active then.
TEST_F(SpellRunTest, GoesOnInTheDocumentThatIsActive) {
    frame.SetText(u"the <b"_s);
    TestDocument* first = frame.active;
    frame.NewDocument();
    frame.SetText(u"teh <b"_s);
    TestDocument* second = frame.active;
    frame.ActivateDocument(*first);
    frame.Start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return frame.checker->WordsChecked() > 1; }));
    frame.ActivateDocument(*second);
    frame.WaitForQuestion();
    EXPECT_EQ(second->input->SelText(), u"teh"_s);
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
    EXPECT_EQ(frame.Boxes(), u"Canceled"_s);
}

TEST_F(SpellRunTest, NothingIsTypedIntoAPieceUnderCheck) {
    frame.SetText(u"the teh fox"_s);
    frame.Start();
    frame.WaitForQuestion();
    EXPECT_FALSE(frame.Box().Enabled());
    EXPECT_TRUE(frame.Dialog()->isModal());
    frame.Give({"cmdIgnore"});
    frame.WaitForEnd();
    EXPECT_TRUE(frame.Box().Enabled());
}

TEST_F(SpellRunTest, WhatChangedUnderTheCheckIsNotWrittenOver) {
    frame.SetText(u"the teh fox"_s);
    frame.Start();
    frame.WaitForQuestion();
    frame.Box().SetText(u"quite another text"_s);
    frame.Give({"cmdChange", "the"});
    // The piece is taken anew, of the length that the run began with.
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
    EXPECT_EQ(frame.Found(), u"4:teh 0:quite"_s);
    EXPECT_EQ(frame.Box().Text(), u"quite another text"_s);
}

TEST_F(SpellRunTest, KeysTypedBeforeTheFirstQuestionAreNotLost) {
    frame.SetText(u"the quick brown fox "_s.repeated(50'000) + u"teh"_s);
    frame.Start();
    ASSERT_FALSE(frame.Asking());
    frame.Box().SetSelStart(0);
    QTest::keyClicks(&frame.Box(), u"a "_s);
    frame.WaitForQuestion();
    EXPECT_TRUE(frame.Box().Text().startsWith(u"a the quick"_s));
    // The run has the length that it began with: the end of the text lies behind it now.
    EXPECT_EQ(frame.found.last(), u"1000002:t"_s);
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
}

TEST_F(SpellRunTest, ASecondRunDoesNotStartWithinOne) {
    frame.SetText(u"the teh fox"_s);
    frame.Start();
    frame.WaitForQuestion();
    frame.Start();
    EXPECT_TRUE(frame.Asking());
    frame.Give({"cmdIgnore"});
    frame.WaitForEnd();
    EXPECT_EQ(frame.Boxes(), Report(3, 0));
}

TEST_F(SpellRunTest, WhereThereIsNoDictionaryOneBoxSaysSo) {
    const QByteArray kept[] = {qgetenv("XDG_DATA_DIRS"), qgetenv("XDG_DATA_HOME")};
    qputenv("XDG_DATA_DIRS", QFile::encodeName(TestFolder()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(TestFolder()));
    frame.checker->StandardDic = TestFolder() + u"/american.vtd"_s;
    frame.SetText(u"<p>teh</p> <b>wrng"_s);
    frame.Check();
    EXPECT_EQ(frame.Boxes(),
              u"There is no dictionary to check the spelling with.\r\n%1 could not be used, and "
              u"the system has no American English one."_s.arg(frame.checker->StandardDic));
    EXPECT_EQ(frame.Box().Text(), u"<p>teh</p> <b>wrng"_s);
    EXPECT_TRUE(frame.Box().Enabled());
    // Once there is one it is found, in the same run of the program.
    WriteFile(frame.checker->StandardDic, "teh\nwrng\n");
    frame.Check();
    EXPECT_EQ(frame.Boxes(), Report(2, 0));
    qputenv("XDG_DATA_DIRS", kept[0]);
    qputenv("XDG_DATA_HOME", kept[1]);
    if (kept[0].isNull())
        qunsetenv("XDG_DATA_DIRS");
    if (kept[1].isNull())
        qunsetenv("XDG_DATA_HOME");
}

TEST_F(SpellRunTest, ADictionaryIsReadForTheFirstWordOnly) {
    frame.checker->StandardDic = TestFolder() + u"/later"_s;
    frame.SetText(u"<p>1234</p>"_s);
    frame.Check();
    EXPECT_EQ(frame.Boxes(), Report(0, 0));
    WriteFile(frame.checker->StandardDic, "wrng\n");
    frame.SetText(u"<p>wrng</p>"_s);
    frame.Check();
    EXPECT_EQ(frame.Boxes(), Report(1, 0));
}

TEST_F(SpellRunTest, AWordThatIsAddedIsKnownFromThenOn) {
    frame.SetText(u"<p>Tarnwick <b>Tarnwick</b> caf&eacute;x</p>"_s);
    frame.Check({{"cmdAdd"}, {"cmdAdd"}});
    EXPECT_EQ(frame.Found(), u"3:Tarnwick 28:caf&eacute;x"_s);
    EXPECT_EQ(ReadFile(frame.checker->CustomDic), "Tarnwick\ncaf\xc3\xa9x\n");
    EXPECT_EQ(frame.Boxes(), Report(3, 0));
    frame.Check();
    EXPECT_EQ(frame.Found(), QString());
}

TEST_F(SpellRunTest, AWordThatCannotBeAddedIsKnownForTheRunOfTheProgram) {
    frame.checker->CustomDic = TestFolder() + u"/words/custom.vtc"_s;
    frame.SetText(u"<p>Tarnwick Tarnwick</p>"_s);
    frame.Check({{"cmdAdd"}});
    EXPECT_EQ(frame.Found(), u"3:Tarnwick"_s);
    EXPECT_EQ(frame.Boxes(), u"The word could not be added to the custom dictionary:\r\n"_s +
                                 frame.checker->CustomDic + u'|' + Report(2, 0));
}

// A line of many words is one piece: the program stays alive meanwhile.
TEST_F(SpellRunTest, ALongPieceIsCheckedInTurns) {
    frame.SetText(u"the quick brown fox "_s.repeated(250'000) + u"teh"_s);
    frame.Start();
    ASSERT_TRUE(frame.Run().Running());
    int turns = 0;
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            ++turns;
            return frame.Asking();
        },
        120'000));
    EXPECT_GT(turns, 2);
    EXPECT_EQ(frame.Found(), u"5000000:teh"_s);
    QTest::keyClick(frame.Dialog(), Qt::Key_Escape);
    frame.WaitForEnd();
    EXPECT_EQ(frame.Boxes(), u"Canceled"_s);
}

} // namespace
