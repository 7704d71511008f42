#include "builders/tables/frmGridInput.h"

#include "builders/tables/TableTest.h"
#include "dialogs/ColorSample.h"
#include "dialogs/DialogState.h"
#include "dialogs/frmImage.h"
#include "support/NoPlainFile.h"
#include "support/Site.h"
#include <QGroupBox>
#include <QPushButton>
#include <set>

namespace {

class frmGridInputTest : public TableTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        ShowTable();
        OpenCell(0, 0);
    }
    ColorSample& Label2() { return Control<ColorSample>(T(u"Label2")); }
    bool IsOn(const char16_t* box) { return Control<QCheckBox>(T(box)).isChecked(); }
    /// OK here and in the Table dialog: what is written of the cells.
    QString Written() {
        Press(T(u"cmdOK"));
        BackToTable();
        frame.SetText(QString());
        Press(T(u"cmdOk"));
        QString text = Text();
        return text.remove(T(u"<TABLE>\r\n<TR>")).remove(T(u"</TR>\r\n<TR></TR>\r\n</TABLE>"));
    }
    frmImage& Pictures() { return *frame.LoadedForms().Find<frmImage>(); }
    /// Presses the button, and OK on a picture of the list.
    void PickPicture(const QString& folder, const QString& name) {
        frame.State<DialogState>().LastDir = folder;
        Press(T(u"cmdGetFile"));
        auto& lstFiles = *Pictures().findChild<QListWidget*>(T(u"lstFiles"));
        const auto items = lstFiles.findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << name.toStdString();
        lstFiles.setCurrentItem(items.first());
        QTest::mouseClick(Pictures().findChild<QPushButton*>(T(u"cmdOK")), Qt::LeftButton);
    }
};

TEST_F(frmGridInputTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Table Input"));
    EXPECT_EQ(form->parentWidget(), frame.LoadedForms().Find<frmTable>());
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(LabelOf(T(u"cboColSpan")), T(u"ColSpan"));
    EXPECT_EQ(LabelOf(T(u"cboRowSpan")), T(u"RowSpan"));
    EXPECT_EQ(LabelOf(T(u"cboAlign")), T(u"Align"));
    EXPECT_EQ(LabelOf(T(u"cboVAlign")), T(u"VAlign"));
    const std::pair<const char16_t*, const char16_t*> buttons[] = {
        {u"chkHeader", u"Header"},   {u"chkWrapText", u"Wrap Text"},
        {u"chkForwardSlash", u"FS"}, {u"chkAbsolute", u"AP"},
        {u"cmdOK", u"OK"},           {u"cmdCancel", u"Cancel"},
    };
    for (const auto& [name, text] : buttons)
        EXPECT_EQ(Control<QAbstractButton>(T(name)).text().remove(u'&'), T(text));
    EXPECT_EQ(Tip(T(u"chkForwardSlash")), T(u"Use forward slashes in the filename"));
    EXPECT_EQ(Tip(T(u"chkAbsolute")), T(u"Display Absolute Path"));
    EXPECT_EQ(Tip(T(u"cmdGetFile")), T(u"Find Image"));
    const auto titleAround = [&](const char16_t* name) {
        return qobject_cast<QGroupBox*>(Control<QWidget>(T(name)).parentWidget())->title().remove(u'&');
    };
    EXPECT_EQ(titleAround(u"Label2"), T(u"Color"));
    EXPECT_EQ(titleAround(u"cmdGetFile"), T(u"Find Image"));
    EXPECT_FALSE(IsOn(u"chkHeader"));
    EXPECT_TRUE(IsOn(u"chkWrapText"));
    EXPECT_TRUE(IsOn(u"chkForwardSlash"));
    EXPECT_FALSE(IsOn(u"chkAbsolute"));
    QStringList numbers = {QString()};
    for (int number = 1; number <= 75; ++number)
        numbers << QString::number(number);
    EXPECT_EQ(Items(T(u"cboColSpan")), numbers);
    EXPECT_EQ(Items(T(u"cboRowSpan")), numbers);
    EXPECT_EQ(Items(T(u"cboAlign")), (QStringList{QString(), T(u"LEFT"), T(u"CENTER"), T(u"RIGHT")}));
    EXPECT_EQ(Items(T(u"cboVAlign")),
              (QStringList{QString(), T(u"TOP"), T(u"MIDDLE"), T(u"BOTTOM"), T(u"BASELINE")}));
    for (const char16_t* combo : {u"cboColSpan", u"cboRowSpan", u"cboAlign", u"cboVAlign"})
        EXPECT_EQ(Field(T(combo)), QString());
}

TEST_F(frmGridInputTest, WritesACellWithAllItsFields) {
    Fill(T(u"txtGridInput"), T(u"text"));
    Press(T(u"chkHeader"));
    Press(T(u"chkWrapText"));
    Fill(T(u"cboColSpan"), T(u"2"));
    Fill(T(u"cboRowSpan"), T(u"3"));
    Fill(T(u"cboAlign"), T(u"CENTER"));
    Fill(T(u"cboVAlign"), T(u"TOP"));
    frame.prompts.colorAnswers = {0x0000FF};
    QTest::mouseDClick(&Label2(), Qt::LeftButton);
    EXPECT_EQ(frame.prompts.asked.last().owner, form);
    EXPECT_EQ(Label2().BackNumber(), 0x0000FF);
    EXPECT_EQ(Written(),
              T(u"<TH NOWRAP COLSPAN=2 ROWSPAN=3 ALIGN=CENTER VALIGN=TOP BGCOLOR=#FF0000>text</TH>"));
}

TEST_F(frmGridInputTest, ASingleClickOnTheColorAsksNothing) {
    QTest::mouseClick(&Label2(), Qt::LeftButton);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(Written(), T(u"<TD></TD>"));
}

TEST_F(frmGridInputTest, ACancelledColorIsBlackAndTheLastOneCounts) {
    frame.prompts.colorAnswers = {0x0000FF, std::nullopt};
    QTest::keyClick(&Label2(), Qt::Key_Space);
    QTest::keyClick(&Label2(), Qt::Key_Return);
    EXPECT_EQ(Written(), T(u"<TD BGCOLOR=#000000></TD>"));
}

// What the dialog's ground looks like is a colour like any other once it was picked.
TEST_F(frmGridInputTest, AColorLikeTheDialogsOwnIsWritten) {
    frame.prompts.colorAnswers = {Label2().BackNumber()};
    QTest::mouseDClick(&Label2(), Qt::LeftButton);
    EXPECT_TRUE(Written().startsWith(T(u"<TD BGCOLOR=#")));
}

TEST_F(frmGridInputTest, AReopenedCellHasItsTextAlone) {
    Fill(T(u"txtGridInput"), T(u"kept"));
    Press(T(u"chkHeader"));
    Press(T(u"chkWrapText"));
    Fill(T(u"cboAlign"), T(u"LEFT"));
    Press(T(u"cmdOK"));
    OpenCell(0, 0);
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"kept"));
    EXPECT_FALSE(IsOn(u"chkHeader"));
    EXPECT_TRUE(IsOn(u"chkWrapText"));
    EXPECT_EQ(Field(T(u"cboAlign")), QString());
    EXPECT_EQ(Written(), T(u"<TD>kept</TD>"));
}

TEST_F(frmGridInputTest, CancelAndEscLeaveTheCell) {
    Fill(T(u"txtGridInput"), T(u"x"));
    Press(T(u"cmdCancel"));
    EXPECT_FALSE(Loaded(T(u"frmGridInput")));
    OpenCell(0, 0);
    EXPECT_EQ(Field(T(u"txtGridInput")), QString());
    Fill(T(u"txtGridInput"), T(u"x"));
    QTest::keyClick(form, Qt::Key_Escape);
    EXPECT_FALSE(Loaded(T(u"frmGridInput")));
    EXPECT_TRUE(Loaded(T(u"frmTable")));
    EXPECT_EQ(Seen(), T(u",;,"));
}

TEST_F(frmGridInputTest, EnterIsOkFromEveryField) {
    for (const char16_t* name : {u"txtGridInput", u"chkHeader", u"chkWrapText", u"cboColSpan", u"cboRowSpan",
                                 u"cboAlign", u"cboVAlign", u"chkForwardSlash", u"chkAbsolute"}) {
        Fill(T(u"txtGridInput"), T(name));
        QTest::keyClick(&Control<QWidget>(T(name)), Qt::Key_Return);
        EXPECT_FALSE(Loaded(T(u"frmGridInput")));
        EXPECT_EQ(Grid1().Text(), T(name));
        OpenCell(0, 0);
    }
}

TEST_F(frmGridInputTest, ASecondCellGoesToTheFormThatIsUp) {
    const QWidget* first = form;
    Fill(T(u"txtGridInput"), T(u"typed"));
    OpenCell(1, 1);
    EXPECT_EQ(form, first);
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"typed"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Seen(), T(u",;,typed"));
}

TEST_F(frmGridInputTest, GettingTheKeysItSelectsItsWholeText) {
    auto& text = Control<QLineEdit>(T(u"txtGridInput"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    EXPECT_EQ(form->focusWidget(), &text);
    text.setText(T(u"some text"));
    Control<QWidget>(T(u"cboAlign")).setFocus();
    BackToTable();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == form; }));
    OpenCell(1, 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == form; }));
    EXPECT_EQ(form->focusWidget(), &text);
    EXPECT_EQ(text.selectedText(), T(u"some text"));
    text.deselect();
    Control<QWidget>(T(u"cboAlign")).setFocus();
    text.setFocus();
    EXPECT_EQ(text.selectedText(), T(u"some text"));
}

TEST_F(frmGridInputTest, GoesWithTheTableDialog) {
    for (const char16_t* button : {u"cmdOk", u"cmdCancel"}) {
        BackToTable();
        Press(T(button));
        EXPECT_FALSE(Loaded(T(u"frmGridInput")));
        ShowTable();
        OpenCell(0, 0);
    }
    frame.LoadedForms().Unload<frmTable>();
    EXPECT_FALSE(Loaded(T(u"frmGridInput")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(frmGridInputTest, ACharacterThatNoPageHoldsIsItsReference) {
    Fill(T(u"txtGridInput"), T(u"\u2603"));
    EXPECT_EQ(Written(), T(u"<TD>&#9731;</TD>"));
}

TEST_F(frmGridInputTest, PicksAPictureByTheTwoBoxes) {
    const Site site;
    frame.active->caption = site.Path(T(u"pages/a.htm"));
    PickPicture(site.Path(T(u"img")), T(u"low.png"));
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"<IMG SRC=../img/low.png>"));
    EXPECT_FALSE(Loaded(T(u"frmImage")));
    Press(T(u"chkAbsolute"));
    PickPicture(site.Path(T(u"img")), T(u"low.png"));
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"<IMG SRC=") + site.Path(T(u"img/low.png")) + u'>');
    // Turning slashes is not this dialog's: its text is no path.
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"<IMG SRC=") + site.Path(T(u"img/low.png")) + u'>');
    EXPECT_EQ(frame.State<DialogState>().LastDir, site.Path(T(u"img")));
}

TEST_F(frmGridInputTest, TheCaseOptionLeavesThePictureItsCapitals) {
    const Site site;
    LowerCaseTags();
    frame.active->caption = site.Path(T(u"pages/a.htm"));
    PickPicture(site.Path(T(u"img")), T(u"low.png"));
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"<IMG SRC=../img/low.png>"));
}

TEST_F(frmGridInputTest, ThePictureWindowIsModalAndItsCancelChangesNothing) {
    const Site site;
    Fill(T(u"txtGridInput"), T(u"old"));
    frame.State<DialogState>().LastDir = site.Path(T(u"img"));
    Press(T(u"cmdGetFile"));
    EXPECT_TRUE(Pictures().isVisible());
    EXPECT_TRUE(Pictures().isModal());
    EXPECT_EQ(Pictures().windowModality(), Qt::ApplicationModal);
    EXPECT_EQ(Pictures().parentWidget(), form);
    auto& lstFiles = *Pictures().findChild<QListWidget*>(T(u"lstFiles"));
    lstFiles.setCurrentRow(lstFiles.count() - 1);
    QTest::mouseClick(Pictures().findChild<QPushButton*>(T(u"cmdCancel")), Qt::LeftButton);
    EXPECT_FALSE(Loaded(T(u"frmImage")));
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"old"));
    Press(T(u"cmdGetFile"));
    QTest::keyClick(&Pictures(), Qt::Key_Escape);
    EXPECT_FALSE(Loaded(T(u"frmImage")));
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"old"));
}

TEST_F(frmGridInputTest, APictureThatIsNoneIsAPathAllTheSame) {
    const Site site;
    frame.active->caption = site.Path(T(u"pages/a.htm"));
    QFile file(site.Path(T(u"img/broken.gif")));
    ASSERT_TRUE(file.open(QFile::WriteOnly) && file.write("no picture") > 0);
    file.close();
    PickPicture(site.Path(T(u"img")), T(u"broken.gif"));
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"<IMG SRC=../img/broken.gif>"));
}

TEST_F(frmGridInputTest, ANeverSavedDocumentGetsTheBox) {
    const Site site;
    frame.active->caption.clear();
    PickPicture(site.Path(T(u"img")), T(u"low.png"));
    ASSERT_EQ(frame.prompts.Messages().size(), 1);
    EXPECT_TRUE(frame.prompts.Messages().first().startsWith(T(u"I am unable to complete")));
    EXPECT_EQ(frame.prompts.asked.first().owner, form);
    EXPECT_TRUE(Field(T(u"txtGridInput")).startsWith(T(u"<IMG SRC=")));
}

TEST_F(frmGridInputTest, WithoutADocumentARelativePathLeavesTheTextAsItIs) {
    const Site site;
    frame.CloseDocument();
    Fill(T(u"txtGridInput"), T(u"old"));
    PickPicture(site.Path(T(u"img")), T(u"low.png"));
    EXPECT_EQ(Field(T(u"txtGridInput")), T(u"old"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmGridInputTest, MnemonicsAreUnique) {
    std::set<QChar> seen;
    QStringList texts;
    for (QLabel* label : form->findChildren<QLabel*>())
        texts << label->text();
    for (QAbstractButton* button : form->findChildren<QAbstractButton*>())
        texts << button->text();
    for (QGroupBox* box : form->findChildren<QGroupBox*>())
        texts << box->title();
    for (const QString& text : texts) {
        const qsizetype at = text.indexOf(u'&');
        if (at < 0)
            continue;
        EXPECT_TRUE(seen.insert(text[at + 1].toLower()).second) << text.toStdString();
    }
    EXPECT_EQ(seen.size(), 10U);
}

} // namespace
