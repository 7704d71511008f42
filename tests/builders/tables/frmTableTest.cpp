#include "builders/tables/frmTable.h"

#include "builders/commands/AnyDialog.h"
#include "builders/tables/TableTest.h"
#include "platform/store/ProgramFolder.h"
#include "platform/store/WholeFile.h"
#include "support/Files.h"
#include <QFileInfo>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>

namespace {

class frmTableTest : public TableTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        ShowTable();
    }
    QString TestFile() const { return InProgramFolder(T(u"tabletest.html")); }
    bool IsEnabled(const char16_t* name) { return Control<QWidget>(T(name)).isEnabled(); }
    static QStringList Numbers(int first, int last, int step = 1) {
        QStringList numbers;
        for (int number = first; number <= last; number += step)
            numbers << QString::number(number);
        return numbers;
    }
    void Import(MsgAnswer goOn, MsgAnswer remove) {
        frame.prompts.messageAnswers = {goOn, remove};
        Press(T(u"cmdImport"));
    }
    /// Imports a page that is selected whole.
    void ImportPage(const char16_t* page) {
        SelectIn(T(page), 0, static_cast<int>(T(page).size()));
        Import(MsgAnswer::Yes, MsgAnswer::No);
    }
    QString PressOk() {
        Press(T(u"cmdOk"));
        return Text();
    }
};

TEST_F(frmTableTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Table"));
    const std::pair<const char16_t*, const char16_t*> labels[] = {
        {u"txtRows", u"Rows:"},
        {u"txtCols", u"Columns:"},
        {u"txtCaption", u"Caption:"},
        {u"txtCellPadding", u"Cell Padding:"},
        {u"txtCellSpacing", u"Cell Spacing:"},
        {u"txtBorderWidth", u"Border Width:"},
        {u"txtWidth", u"Table Width:"},
        {u"hsbWidth", u"Column Width:"},
        {u"Grid1", u"Click on Table to Edit:"},
    };
    for (const auto& [field, text] : labels)
        EXPECT_EQ(LabelOf(T(field)), T(text));
    EXPECT_EQ(Control<QLabel>(T(u"lblFirst")).text(), T(u"Select number of Rows and Columns first"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"optTop")).text().remove(u'&'), T(u"Top"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"optBottom")).text().remove(u'&'), T(u"Bottom"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdImport")).text(), T(u"&Import"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdPreview")).text(), T(u"&Preview"));
    for (const char16_t* size : {u"txtRows", u"txtCols"}) {
        EXPECT_EQ(Field(T(size)), T(u"2"));
        EXPECT_EQ(Items(T(size)), Numbers(1, 99));
    }
    for (const char16_t* name : {u"txtCellPadding", u"txtCellSpacing", u"txtBorderWidth"}) {
        EXPECT_EQ(Field(T(name)), QString());
        EXPECT_EQ(Items(T(name)), QStringList(QString()) + Numbers(1, 35));
    }
    EXPECT_EQ(Field(T(u"txtWidth")), QString());
    EXPECT_EQ(Items(T(u"txtWidth")), QStringList(QString()) + Numbers(0, 990, 10));
    const auto& hsbWidth = Control<QScrollBar>(T(u"hsbWidth"));
    EXPECT_EQ(hsbWidth.value(), 600);
    EXPECT_EQ(hsbWidth.minimum(), 600);
    EXPECT_EQ(hsbWidth.maximum(), 4000);
    EXPECT_EQ(hsbWidth.pageStep(), 100);
    EXPECT_EQ(Seen(), T(u",;,"));
}

TEST_F(frmTableTest, FitsOnASmallScreenAndHasRoomForRowsOnOthers) {
    EXPECT_LE(form->minimumSizeHint().width(), 500);
    EXPECT_LE(form->minimumSizeHint().height(), 360);
    EXPECT_GE(Grid1().height(), 190);
}

TEST_F(frmTableTest, WhatIsTypedFirstIsTheNumberOfRows) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == form; }));
    QTest::keyClicks(form->focusWidget(), T(u"5"));
    EXPECT_EQ(Field(T(u"txtRows")), T(u"5"));
    EXPECT_EQ(Grid1().Rows(), 5);
}

TEST_F(frmTableTest, WithoutADocumentThereIsNothingToWriteTo) {
    EXPECT_TRUE(IsEnabled(u"cmdOk") && IsEnabled(u"cmdPreview"));
    Press(T(u"cmdCancel"));
    frame.CloseDocument();
    ShowTable();
    EXPECT_FALSE(IsEnabled(u"cmdOk"));
    EXPECT_FALSE(IsEnabled(u"cmdPreview"));
    EXPECT_TRUE(IsEnabled(u"cmdImport"));
    Import(MsgAnswer::Yes, MsgAnswer::Yes);
    EXPECT_EQ(frame.prompts.Messages().size(), 2);
    EXPECT_EQ(Grid1().Cols(), 0);
    EXPECT_EQ(Grid1().Rows(), 1);
}

TEST_F(frmTableTest, UntouchedCellsAreNotWritten) {
    SelectIn(T(u"a word b"), 2, 4);
    EXPECT_EQ(PressOk(), T(u"a <TABLE>\r\n<TR></TR>\r\n<TR></TR>\r\nword</TABLE> b"));
    EXPECT_FALSE(Loaded(T(u"frmTable")));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmTableTest, WritesTheCellsThatWereEdited) {
    TypeCell(0, 1, u"b");
    TypeCell(1, 0, u"c");
    Fill(T(u"txtCaption"), T(u"My Cats"));
    Press(T(u"optBottom"));
    Fill(T(u"txtCellPadding"), T(u"1"));
    Fill(T(u"txtCellSpacing"), T(u"2"));
    Fill(T(u"txtBorderWidth"), T(u"3"));
    Fill(T(u"txtWidth"), T(u"50%"));
    EXPECT_EQ(Seen(), T(u",b;c,"));
    EXPECT_EQ(PressOk(), T(u"<TABLE CELLPADDING=1 CELLSPACING=2 BORDER=3 WIDTH=50%>\r\n"
                           u"<CAPTION ALIGN=BOTTOM>My Cats</CAPTION>\r\n"
                           u"<TR><TD>b</TD></TR>\r\n<TR><TD>c</TD></TR>\r\n</TABLE>"));
}

TEST_F(frmTableTest, OneOfTheTwoPlacesOfTheCaption) {
    Fill(T(u"txtCaption"), T(u"c"));
    Press(T(u"optBottom"));
    Press(T(u"optTop"));
    EXPECT_FALSE(Control<QRadioButton>(T(u"optBottom")).isChecked());
    EXPECT_TRUE(PressOk().contains(T(u"<CAPTION>c</CAPTION>")));
}

TEST_F(frmTableTest, TheCaseIsThatOfTheMoment) {
    TypeCell(0, 0, u"a");
    LowerCaseTags();
    TypeCell(0, 1, u"B");
    EXPECT_EQ(PressOk(), T(u"<table>\r\n<tr><TD>a</TD><td>B</td></tr>\r\n<tr></tr>\r\n</table>"));
}

struct BadSize {
    const char16_t* typed;
    const char16_t* field;
    int grid;
    int written;
};

// From two rows or columns, each text at once.
const BadSize badSizes[] = {
    {u"3", u"3", 3, 3},
    {u"2.5", u"2.5", 2, 3},
    {u"3.5", u"3.5", 4, 4},
    {u"", u"1", 1, 1},
    {u"   ", u"1", 1, 1},
    {u"abc", u"1", 1, 1},
    {u"0", u"1", 1, 1},
    {u"-3", u"1", 1, 1},
    {u"0.5", u"1", 1, 1},
    {u"4x", u"4x", 2, 4},
    {u"99,999", u"99,999", 2, 99},
    {u"99999", u"99999", 2, 0},
    {u"32768", u"32768", 2, 0},
    {u"999999999999", u"999999999999", 2, 0},
};

TEST_F(frmTableTest, BadNumbersOfRows) {
    for (const BadSize& row : badSizes) {
        Fill(T(u"txtRows"), T(u"2"));
        Fill(T(u"txtRows"), T(row.typed));
        EXPECT_EQ(Field(T(u"txtRows")), T(row.field));
        EXPECT_EQ(Grid1().Rows(), row.grid) << T(row.typed).toStdString();
        EXPECT_EQ(Grid1().Cols(), 2);
        EXPECT_EQ(PressOk().count(T(u"<TR>")), row.written) << T(row.typed).toStdString();
        frame.SetText(QString());
        ShowTable();
    }
}

TEST_F(frmTableTest, BadNumbersOfColumns) {
    for (const BadSize& row : badSizes) {
        Fill(T(u"txtCols"), T(u"2"));
        Fill(T(u"txtCols"), T(row.typed));
        EXPECT_EQ(Field(T(u"txtCols")), T(row.field));
        EXPECT_EQ(Grid1().Cols(), row.grid) << T(row.typed).toStdString();
        EXPECT_EQ(Grid1().Rows(), 2);
        EXPECT_EQ(PressOk().count(T(u"<TR></TR>")), 2) << T(row.typed).toStdString();
        frame.SetText(QString());
        ShowTable();
    }
}

TEST_F(frmTableTest, BadTextsInTheOtherFieldsAreWrittenAsTheyStand) {
    for (const char16_t* text : {u"abc", u"0", u"-1", u"2.5", u"99,999", u" "}) {
        for (const char16_t* field : {u"txtCellPadding", u"txtCellSpacing", u"txtBorderWidth", u"txtWidth"})
            Fill(T(field), T(text));
        const QString written = T(u"<TABLE CELLPADDING=%1 CELLSPACING=%1 BORDER=%1 WIDTH=%1>").arg(T(text));
        EXPECT_TRUE(PressOk().startsWith(written)) << Text().toStdString();
        frame.SetText(QString());
        ShowTable();
    }
}

TEST_F(frmTableTest, EveryChangeOfSizeForgetsTheCellsButNotWhatTheGridShows) {
    for (const char16_t* size : {u"txtRows", u"txtCols"}) {
        TypeCell(0, 0, u"a");
        TypeCell(1, 1, u"b");
        Fill(T(size), T(u"3"));
        EXPECT_EQ(Grid1().Cells().At(1, 1), T(u"b"));
        TypeCell(1, 0, u"c");
        EXPECT_EQ(PressOk().count(T(u"<TD>")), 1);
        EXPECT_TRUE(Text().contains(T(u"<TD>c</TD>")));
        frame.SetText(QString());
        ShowTable();
    }
}

TEST_F(frmTableTest, ASizeThatIsNoneForgetsNothing) {
    TypeCell(0, 0, u"a");
    Fill(T(u"txtRows"), T(u"2x"));
    Fill(T(u"txtRows"), T(u"99999"));
    Fill(T(u"txtCols"), T(u"2x"));
    Fill(T(u"txtRows"), T(u"2x"));
    EXPECT_EQ(PressOk(), T(u"<TABLE>\r\n<TR><TD>a</TD></TR>\r\n<TR></TR>\r\n</TABLE>"));
}

TEST_F(frmTableTest, ThePickOfTheSameSizeForgetsTheCellsAndLeavingAFieldDoesNot) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    auto& txtCols = Control<QComboBox>(T(u"txtCols"));
    // Typed, so that the field and the list disagree.
    txtCols.setFocus();
    txtCols.lineEdit()->selectAll();
    QTest::keyClicks(&txtCols, T(u"3"));
    EXPECT_EQ(Grid1().Cols(), 3);
    TypeCell(0, 0, u"a");
    txtCols.setFocus();
    QTest::keyClick(&txtCols, Qt::Key_Tab);
    TypeCell(0, 1, u"b");
    EXPECT_TRUE(PressOk().contains(T(u"<TR><TD>a</TD><TD>b</TD></TR>"))) << Text().toStdString();

    frame.SetText(QString());
    ShowTable();
    for (const char16_t* size : {u"txtRows", u"txtCols"}) {
        TypeCell(0, 0, u"a");
        auto& combo = Control<QComboBox>(T(size));
        combo.setCurrentIndex(1);
        combo.showPopup();
        QTest::keyClick(combo.view(), Qt::Key_Return);
        EXPECT_EQ(combo.currentText(), T(u"2"));
        EXPECT_FALSE(PressOk().contains(T(u"<TD>"))) << T(size).toStdString();
        frame.SetText(QString());
        ShowTable();
    }
}

TEST_F(frmTableTest, ABoxThatComesInFrontIsNoLeavingOfTheRows) {
    Grid1().SetRows(7);
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
        QFocusEvent goes(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&Control<QWidget>(T(u"txtRows")), &goes);
        EXPECT_EQ(Grid1().Rows(), 7);
    }
}

TEST_F(frmTableTest, LeavingTheRowsSetsTheGridsRowsOnceMore) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    TypeCell(0, 0, u"a");
    Grid1().SetRows(7);
    Grid1().SetCols(7);
    Control<QWidget>(T(u"txtCols")).setFocus();
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Grid1().Cols(), 7);
    Control<QWidget>(T(u"txtRows")).setFocus();
    EXPECT_EQ(Grid1().Rows(), 7);
    QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(Grid1().Rows(), 2);
    EXPECT_EQ(Grid1().Cols(), 7);
    EXPECT_TRUE(PressOk().contains(T(u"<TD>a</TD>")));
}

TEST_F(frmTableTest, SetsTheWidthOfTheCurrentColumnOnTheScreenAlone) {
    Grid1().SetCol(1);
    Control<QScrollBar>(T(u"hsbWidth")).setValue(3000);
    EXPECT_EQ(Grid1().ColWidth(1), 3000);
    EXPECT_EQ(Grid1().ColWidth(0), 960);
    Grid1().SetCols(0);
    Control<QScrollBar>(T(u"hsbWidth")).setValue(600);
    EXPECT_EQ(PressOk(), T(u"<TABLE>\r\n<TR></TR>\r\n<TR></TR>\r\n</TABLE>"));
}

TEST_F(frmTableTest, TableFillIsTheCurrentRowInPlainTags) {
    auto& table = *frame.LoadedForms().Find<frmTable>();
    TypeCell(1, 0, u"a & <B>");
    EXPECT_EQ(table.TableFill(), T(u"<TR><TD>a & <B></TD><TD></TD></TR>"));
    EXPECT_EQ(Grid1().Col(), 1);
    EXPECT_EQ(Grid1().Row(), 1);
    Grid1().SetRow(0);
    EXPECT_EQ(table.TableFill(), T(u"<TR><TD></TD><TD></TD></TR>"));
    Grid1().SetCols(0);
    EXPECT_EQ(table.TableFill(), T(u"<TR></TR>"));
}

TEST_F(frmTableTest, PreviewsInUpperCaseAndStaysOpen) {
    LowerCaseTags();
    TypeCell(0, 0, u"a");
    Fill(T(u"txtCaption"), T(u"caf\u00E9 \u2603"));
    Fill(T(u"txtBorderWidth"), T(u"1"));
    Press(T(u"cmdPreview"));
    EXPECT_EQ(ReadFile(TestFile()),
              QByteArray("<HTML><HEAD><TITLE>Table Test</TITLE><BODY><CENTER><TABLE BORDER=1>\r\n"
                         "<CAPTION>caf\xE9 &#9731;</CAPTION>\r\n<TR><td>a</td></TR>\r\n<TR></TR>\r\n</TABLE>"
                         "</CENTER></BODY></HTML>"));
    EXPECT_EQ(frame.previewed, QStringList(TestFile()));
    EXPECT_TRUE(Loaded(T(u"frmTable")));
    EXPECT_EQ(Text(), QString());
}

TEST_F(frmTableTest, TheTestFileGoesWithOkAndCancelAndTheirKeys) {
    for (const char16_t* button : {u"cmdOk", u"cmdCancel"}) {
        Press(T(u"cmdPreview"));
        ASSERT_TRUE(QFileInfo::exists(TestFile()));
        Press(T(button));
        EXPECT_FALSE(QFileInfo::exists(TestFile()));
        EXPECT_FALSE(Loaded(T(u"frmTable")));
        ShowTable();
    }
    Press(T(u"cmdPreview"));
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(QFileInfo::exists(TestFile()));
}

TEST_F(frmTableTest, AFileOfThatNameThatIsNotItsOwnStays) {
    WriteFile(TestFile(), "x");
    Press(T(u"cmdOk"));
    EXPECT_EQ(ReadFile(TestFile()), QByteArray("x"));
}

TEST_F(frmTableTest, APreviewThatCannotBeWrittenDoesNothing) {
    // A folder in its place.
    ASSERT_TRUE(QDir().mkpath(TestFile()));
    Press(T(u"cmdPreview"));
    EXPECT_TRUE(frame.previewed.isEmpty());
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_TRUE(Loaded(T(u"frmTable")));
    Press(T(u"cmdCancel"));
    EXPECT_TRUE(QFileInfo(TestFile()).isDir());
}

TEST_F(frmTableTest, ImportAsksTwiceAndTakesBothFirstAnswersAlike) {
    for (const MsgAnswer goOn : {MsgAnswer::Yes, MsgAnswer::No}) {
        frame.prompts.asked.clear();
        SelectIn(T(u"a<TABLE><TR><TD>x</TD></TR></TABLE>b"), 1, 34);
        Import(goOn, MsgAnswer::No);
        EXPECT_EQ(Seen(), T(u"x"));
        EXPECT_EQ(Text(), T(u"a<TABLE><TR><TD>x</TD></TR></TABLE>b"));
        EXPECT_EQ(frame.Box().SelLength(), 34);
        const QStringList questions = {
            T(u"This feature is still under development and may not work properly.\r"
              u"Do you want to continue?"),
            T(u"Remove imported table from HTML document?\r"
              u"If you select No, you must move your cursor to a clear location in the HTML document.")};
        ASSERT_EQ(frame.prompts.Messages(), questions);
        for (const Asked& asked : frame.prompts.asked) {
            EXPECT_EQ(asked.title, T(u"The Tarnwick"));
            EXPECT_EQ(asked.buttons, MsgButtons::YesNo);
            EXPECT_EQ(asked.icon, MsgIcon::Question);
            EXPECT_EQ(asked.owner, form);
        }
        Press(T(u"cmdCancel"));
        ShowTable();
    }
}

TEST_F(frmTableTest, ImportRemovesTheTableWhereAsked) {
    SelectIn(T(u"a<TABLE><TR><TD>x</TD></TR></TABLE>b"), 1, 34);
    Import(MsgAnswer::Yes, MsgAnswer::Yes);
    EXPECT_EQ(Text(), T(u"ab"));
    EXPECT_EQ(Seen(), T(u"x"));
}

TEST_F(frmTableTest, ImportFillsTheFields) {
    Fill(T(u"txtCellSpacing"), T(u"9"));
    ImportPage(
        u"<TABLE CELLPADDING=12 BORDER=\"4\" WIDTH=90%><TR><TD>a</TD><TD>b</TD><TD>c</TD></TR></TABLE>");
    EXPECT_EQ(Field(T(u"txtCellPadding")), T(u"1"));
    EXPECT_EQ(Field(T(u"txtBorderWidth")), T(u"\""));
    EXPECT_EQ(Field(T(u"txtCellSpacing")), T(u"9"));
    EXPECT_EQ(Field(T(u"txtWidth")), QString());
    EXPECT_EQ(Field(T(u"txtCols")), T(u"3"));
    EXPECT_EQ(Field(T(u"txtRows")), T(u"2"));
    EXPECT_EQ(Seen(), T(u"a,b,c"));
}

TEST_F(frmTableTest, OnlyImportedCellsThatAreOpenedReachTheOutput) {
    ImportPage(u"<TABLE><TR><TD>a</TD><TD>b</TD><TD>c</TD></TR><TR><TD>d</TD><TD>e</TD><TD>f</TD></TR>"
               u"<TR><TD>g</TD><TD>h</TD><TD>i</TD></TR></TABLE>");
    EXPECT_EQ(Seen(), T(u"a,b,c;d,e,f;g,h,i"));
    OpenCell(1, 2);
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"f"));
    Press(T(u"cmdOK"));
    BackToTable();
    TypeCell(0, 0, u"A");
    // The third row is spare, since the number of rows was not touched.
    TypeCell(2, 1, u"H");
    EXPECT_EQ(Seen(), T(u"A,b,c;d,e,f;g,H,i"));
    frame.SetText(QString());
    EXPECT_EQ(PressOk(), T(u"<TABLE>\r\n<TR><TD>A</TD></TR>\r\n<TR><TD>f</TD></TR>\r\n</TABLE>"));
}

TEST_F(frmTableTest, ACellBeyondTheSizeShowsItsTextAndIsNotWritten) {
    ImportPage(u"<TABLE><TR><TD>a</TD></TR><TR></TR><TR></TR><TR></TR></TABLE>");
    EXPECT_EQ(Grid1().Rows(), 4);
    TypeCell(3, 0, u"x");
    EXPECT_EQ(Grid1().Cells().At(3, 0), T(u"x"));
    frame.SetText(QString());
    EXPECT_FALSE(PressOk().contains(T(u"<TD>")));
}

TEST_F(frmTableTest, AnImportOfAsManyColumnsForgetsNoCell) {
    TypeCell(0, 0, u"kept");
    ImportPage(u"<TABLE><TR><TD>a</TD><TD>b</TD></TR></TABLE>");
    EXPECT_EQ(Seen(), T(u"a,b"));
    frame.SetText(QString());
    EXPECT_TRUE(PressOk().contains(T(u"<TR><TD>kept</TD></TR>")));
}

TEST_F(frmTableTest, AnImportOfOtherColumnsForgetsAllCells) {
    TypeCell(0, 0, u"lost");
    ImportPage(u"<TABLE><TR><TD>a</TD></TR></TABLE>");
    frame.SetText(QString());
    EXPECT_EQ(PressOk(), T(u"<TABLE>\r\n<TR></TR>\r\n<TR></TR>\r\n</TABLE>"));
}

TEST_F(frmTableTest, AnImportOfNothingLeavesNoColumn) {
    SelectIn(T(u"abc"), 1, 0);
    Import(MsgAnswer::No, MsgAnswer::Yes);
    EXPECT_EQ(Grid1().Cols(), 0);
    EXPECT_EQ(Grid1().Rows(), 1);
    EXPECT_EQ(Field(T(u"txtCols")), T(u"1"));
    EXPECT_EQ(Text(), T(u"abc"));
    // The next one finds no row to take away.
    Import(MsgAnswer::No, MsgAnswer::No);
    Import(MsgAnswer::No, MsgAnswer::No);
    EXPECT_EQ(Grid1().Rows(), 0);
    // The number of rows that stands there already changes nothing.
    Size(u"2", u"2");
    EXPECT_EQ(Grid1().Cols(), 2);
    EXPECT_EQ(Grid1().Rows(), 0);
    Size(u"3", u"2");
    TypeCell(1, 1, u"x");
    EXPECT_EQ(Seen(), T(u",;,x;,"));
}

const AnyDialog inAnyDialogTest({.form = u"frmTable",
                                 .entries = {u"tb_table"},
                                 .field = u"txtCaption",
                                 .open = u"<table>\r\n<caption>MiXed</caption>\r\n<tr></tr>\r\n<tr></tr>\r\n",
                                 .close = u"</table>",
                                 .ok = {u"cmdOk", u"&OK"},
                                 .cancel = {u"cmdCancel", u"&Cancel"},
                                 .needsDocument = true,
                                 .presets = {{u"txtRows", u"2"}, {u"txtCols", u"2"}}});

} // namespace
