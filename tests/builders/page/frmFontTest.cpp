#include "builders/page/frmFont.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "builders/page/FontTag.h"
#include "dialogs/TagRows.h"
#include "platform/desktop/FaceNames.h"
#include <QSignalSpy>

namespace {

class frmFontTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(T(u"tb_abc"), T(u"frmFont"));
    }
    QListWidget& Faces() { return Control<QListWidget>(T(u"List1")); }
    /// Two faces of known names, whatever fonts this computer has.
    void TwoFaces() {
        Faces().clear();
        Faces().addItems({T(u"Arial"), T(u"Verdana")});
    }
    void DoubleClick(int row) {
        const QPoint at = Faces().visualItemRect(Faces().item(row)).center();
        QTest::mouseClick(Faces().viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(Faces().viewport(), Qt::LeftButton, {}, at);
    }
};

TEST_F(frmFontTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Font"));
    EXPECT_EQ(LabelOf(T(u"cboFontSize")), T(u"Font Size:"));
    EXPECT_EQ(LabelOf(T(u"txtFontColor")), T(u"Font Color:"));
    EXPECT_EQ(LabelOf(T(u"txtFontFace")), T(u"Font Face:"));
    EXPECT_EQ(LabelOf(T(u"List1")), T(u"Double-Click to Add Font Face(s):"));
    EXPECT_EQ(Tip(T(u"cmdShowColor")), T(u"Pick Font Color"));
    EXPECT_EQ(Field(T(u"cboFontSize")), QString());
    EXPECT_EQ(Field(T(u"txtFontColor")), QString());
    EXPECT_EQ(Field(T(u"txtFontFace")), QString());
    EXPECT_EQ(Items(T(u"cboFontSize")), T(u"1 2 3 4 5 6 7").split(u' '));
}

TEST_F(frmFontTest, ListsTheNamesThatTheSystemKnows) {
    QStringList shown;
    for (int row = 0; row < Faces().count(); ++row)
        shown << Faces().item(row)->text();
    EXPECT_EQ(shown, FaceNames());
    EXPECT_TRUE(shown.contains(T(u"Arial")));
}

TEST_F(frmFontTest, DoubleClicksAddFacesInTheirOrder) {
    TwoFaces();
    DoubleClick(1);
    EXPECT_EQ(Field(T(u"txtFontFace")), T(u"Verdana"));
    Control<QLineEdit>(T(u"txtFontFace")).clear();
    DoubleClick(0);
    DoubleClick(1);
    EXPECT_EQ(Field(T(u"txtFontFace")), T(u"Arial, Verdana"));
    EXPECT_TRUE(Loaded(T(u"frmFont")));
}

TEST_F(frmFontTest, EnterOnTheListAddsAFaceAndIsNoOk) {
    TwoFaces();
    Faces().setFocus();
    Faces().setCurrentRow(0);
    QTest::keyClick(&Faces(), Qt::Key_Return);
    QTest::keyClick(&Faces(), Qt::Key_Down);
    QTest::keyClick(&Faces(), Qt::Key_Enter);
    EXPECT_EQ(Field(T(u"txtFontFace")), T(u"Arial, Verdana"));
    EXPECT_TRUE(Loaded(T(u"frmFont")));
    EXPECT_EQ(Text(), QString());
}

TEST_F(frmFontTest, EnterOnAListWithNothingSelectedDoesNothing) {
    Faces().clear();
    QTest::keyClick(&Faces(), Qt::Key_Return);
    EXPECT_EQ(Field(T(u"txtFontFace")), QString());
    EXPECT_TRUE(Loaded(T(u"frmFont")));
}

TEST_F(frmFontTest, PicksAColour) {
    frame.prompts.colorAnswers = {0x0000FF, std::nullopt};
    Press(T(u"cmdShowColor"));
    EXPECT_EQ(frame.prompts.asked.last().owner, form);
    EXPECT_EQ(Field(T(u"txtFontColor")), T(u"#FF0000"));
    // Cancel is black.
    Press(T(u"cmdShowColor"));
    EXPECT_EQ(Field(T(u"txtFontColor")), T(u"#000000"));
}

TEST_F(frmFontTest, WrapsTheSelection) {
    SelectIn(T(u"abc"), 1, 1);
    Fill(T(u"cboFontSize"), T(u"3"));
    Fill(T(u"txtFontColor"), T(u"#FF0000"));
    Fill(T(u"txtFontFace"), T(u"Arial, Verdana"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"a<FONT SIZE=3 COLOR=#FF0000 FACE=\"Arial, Verdana\">b</FONT>c"));
    EXPECT_FALSE(Loaded(T(u"frmFont")));
}

TEST_F(frmFontTest, WritesACharacterFromOutsideTheCodePageAsItsReference) {
    Fill(T(u"txtFontFace"), T(u"\u2603 \u20AC"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<FONT FACE=\"&#9731; \u20AC\"></FONT>"));
}

TEST_F(frmFontTest, WritesAnyCharacterIntoAPageInUtf8) {
    frame.active->SetEncoding(TextEncoding::Utf8);
    Fill(T(u"txtFontFace"), T(u"\u2603 \u20AC \U0001F600"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<FONT FACE=\"\u2603 \u20AC \U0001F600\"></FONT>"));
}

const AnyDialog inAnyDialogTest({.form = u"frmFont",
                                 .entries = {u"tb_abc"},
                                 .field = u"txtFontColor",
                                 .open = u"<font color=MiXed>",
                                 .close = u"</font>"});

} // namespace
