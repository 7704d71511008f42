#include "builders/applets/frmJava.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/TagRows.h"
#include <QGroupBox>

namespace {

class frmJavaTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(T(u"tb_java"), T(u"frmJava"));
    }
};

TEST_F(frmJavaTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"JAVA Applet"));
    const std::pair<QString, QString> labels[] = {
        {T(u"txtCodeBase"), T(u"Codebase:")}, {T(u"txtCode"), T(u"Code:")},
        {T(u"txtWidth"), T(u"Width:")},       {T(u"txtHeight"), T(u"Height:")},
        {T(u"txtAlt"), T(u"Alt:")},           {T(u"txtName"), T(u"Name:")},
        {T(u"txtVspace"), T(u"V Space:")},    {T(u"txtHSpace"), T(u"H Space:")},
        {T(u"cboAlign"), T(u"Align:")},
    };
    for (const auto& [field, label] : labels) {
        EXPECT_EQ(LabelOf(field), label);
        EXPECT_EQ(Field(field), QString());
    }
    QStringList frames;
    for (const QGroupBox* box : form->findChildren<QGroupBox*>())
        frames << box->title();
    EXPECT_EQ(frames, (QStringList{T(u"Required Attributes"), T(u"Optional Attributes")}));
    EXPECT_EQ(Items(T(u"cboAlign")),
              T(u",LEFT,RIGHT,TOP,TEXTTOP,ABSMIDDLE,BASELINE,BOTTOM,ABSBOTTOM").split(u','));
}

TEST_F(frmJavaTest, PutsTheSelectionInside) {
    SelectIn(T(u"text"), 0, 4);
    Fill(T(u"txtCodeBase"), T(u"base"));
    Fill(T(u"txtCode"), T(u"A.class"));
    Fill(T(u"txtWidth"), T(u"1"));
    Fill(T(u"txtHeight"), T(u"2"));
    Fill(T(u"txtAlt"), T(u"two words"));
    Fill(T(u"txtName"), T(u"n"));
    Fill(T(u"txtVspace"), T(u"3"));
    Fill(T(u"txtHSpace"), T(u"4"));
    Fill(T(u"cboAlign"), T(u"LEFT"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<APPLET CODEBASE=base CODE=A.class WIDTH=1 HEIGHT=2 ALT=two words NAME=n VSPACE=3 "
                        u"HSPACE=4 ALIGN=LEFT>text\r\n</APPLET>"));
    EXPECT_FALSE(Loaded(T(u"frmJava")));
}

TEST_F(frmJavaTest, LeavesTheCaretThreeCharactersTooFarBack) {
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<APPLET>\r\n</APPLET>"));
    EXPECT_EQ(frame.Box().SelStart(), 5);
    EXPECT_EQ(frame.Box().SelLength(), 0);
}

const AnyDialog inAnyDialogTest({.form = u"frmJava",
                                 .entries = {u"tb_java"},
                                 .field = u"txtCode",
                                 .open = u"<applet code=MiXed>",
                                 .close = u"\r\n</applet>"});

} // namespace
