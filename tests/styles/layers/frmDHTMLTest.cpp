#include "styles/layers/frmDHTML.h"

#include "styles/StyleTest.h"
#include <QAccessible>
#include <QGroupBox>
#include <QPushButton>

namespace {

class frmDHTMLTest : public StyleTest {
  protected:
    void SetUp() override {
        StyleTest::SetUp();
        Open(T(u"tb_Layer"), T(u"frmDHTML"));
    }
    void FillBox() {
        Fill(T(u"txtName"), T(u"box"));
        Fill(T(u"cboPosition"), T(u"absolute"));
        Fill(T(u"txtTop"), T(u"10"));
        Fill(T(u"txtLeft"), T(u"20"));
    }
    QPushButton& Button(const char16_t* name) { return Control<QPushButton>(T(name)); }
};

const QString boxClass = T(u".box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;}");

TEST_F(frmDHTMLTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"DHTML"));
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(form->parentWidget(), frame.Window());
    EXPECT_EQ(Control<QGroupBox>(T(u"frameClass")).title(), T(u"Class"));
    EXPECT_EQ(Control<QGroupBox>(T(u"frameLayer")).title(), T(u"Layer"));
    const char16_t* const rows[][3] = {{u"txtName", u"Name", u""},
                                       {u"cboPosition", u"Position", u"static"},
                                       {u"txtTop", u"Top", u""},
                                       {u"txtLeft", u"Left", u""},
                                       {u"txtRight", u"Right", u""},
                                       {u"txtDivName", u"Name", u""},
                                       {u"txtID", u"ID", u""},
                                       {u"cboVisibility", u"Visibility", u"inherit"},
                                       {u"cboZIndex", u"Z-Index", u"auto"}};
    for (const auto& row : rows) {
        EXPECT_EQ(LabelOf(T(row[0])), T(row[1]));
        EXPECT_EQ(Field(T(row[0])), T(row[2]));
    }
    const auto& chkAddStyle = Control<QCheckBox>(T(u"chkAddStyle"));
    EXPECT_EQ(chkAddStyle.text().remove(u'&'), T(u"Add <STYLE> tag"));
    EXPECT_FALSE(chkAddStyle.isChecked());
    EXPECT_EQ(Button(u"txtOK").text(), T(u"Create &Class"));
    EXPECT_EQ(Button(u"Command1").text(), T(u"Add &Layer"));
    EXPECT_EQ(Button(u"txtCancel").text(), T(u"&Cancel"));
    EXPECT_EQ(Items(T(u"cboPosition")), T(u"static absolute relative").split(u' '));
    EXPECT_EQ(Items(T(u"cboVisibility")), T(u"inherit visible hidden").split(u' '));
}

TEST_F(frmDHTMLTest, FitsOnASmallScreen) {
    EXPECT_LE(form->minimumSizeHint().width(), 500);
    EXPECT_LE(form->minimumSizeHint().height(), 360);
}

TEST_F(frmDHTMLTest, TheZIndexIsAutoOrAnyOf501Numbers) {
    QStringList items = Items(T(u"cboZIndex"));
    ASSERT_EQ(items.size(), 502);
    EXPECT_EQ(items.takeFirst(), T(u"auto"));
    for (int index = 0; index <= 500; ++index)
        EXPECT_EQ(items[index], QString::number(index));
}

TEST_F(frmDHTMLTest, CreatesAClassAndCarriesItsNameOver) {
    SelectIn(T(u"abc"), 1, 1);
    FillBox();
    Press(T(u"txtOK"));
    EXPECT_EQ(Text(), u'a' + boxClass + u'c');
    EXPECT_EQ(Field(T(u"txtDivName")), T(u"box"));
    EXPECT_TRUE(Loaded(T(u"frmDHTML")));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmDHTMLTest, AStyleBlockTakesThePlaceOfTheHeadEnd) {
    for (const bool lower : {false, true}) {
        frame.Store().WriteFlag(Keys::LowerCaseTags, lower);
        frame.SetMarked("<HEAD>\r\n</HEAD>\r\n<BODY>|");
        FillBox();
        Fill(T(u"txtRight"), T(u"5"));
        Control<QCheckBox>(T(u"chkAddStyle")).setChecked(true);
        Press(T(u"txtOK"));
        const QString inside = T(u".box {POSITION: absolute;\r\nTOP: 10;\r\nLEFT: 20;\r\nRIGHT: 5;}\r\n");
        EXPECT_EQ(Text(), T(u"<HEAD>\r\n") +
                              (lower ? T(u"<style type=\"text/css\">\r\n") + inside + T(u"</style>\r\n")
                                     : T(u"<STYLE TYPE=\"text/css\">\r\n") + inside + T(u"</STYLE>\r\n")) +
                              T(u"\r\n<BODY>"));
    }
}

TEST_F(frmDHTMLTest, ALayerGoesAroundTheSelection) {
    SelectIn(T(u"abc"), 1, 1);
    FillBox();
    Fill(T(u"txtDivName"), T(u"box"));
    Press(T(u"Command1"));
    EXPECT_EQ(Text(),
              T(u"a<DIV CLASS=\"box\" STYLE=\"visibility: inherit; z-index: auto\">\r\nb\r\n</DIV>c"));
    EXPECT_TRUE(Loaded(T(u"frmDHTML")));
    LowerCaseTags();
    SelectIn(QString(), 0, 0);
    Fill(T(u"txtID"), T(u"One"));
    Fill(T(u"cboVisibility"), T(u"typed"));
    Fill(T(u"cboZIndex"), T(u"501"));
    Press(T(u"Command1"));
    EXPECT_EQ(Text(),
              T(u"<div class=\"box\" id=\"One\" style=\"visibility: typed; z-index: 501\">\r\n\r\n</div>"));
}

TEST_F(frmDHTMLTest, ALayerNeedsNothing) {
    Press(T(u"Command1"));
    EXPECT_EQ(Text(), T(u"<DIV STYLE=\"visibility: inherit; z-index: auto\">\r\n\r\n</DIV>"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmDHTMLTest, AFailedCheckChangesNothing) {
    const std::pair<const char16_t*, const char16_t*> rows[] = {
        {u"txtName", u"Please give the layer a name."},
        {u"txtTop", u"Please enter a value for 'TOP'."},
        {u"txtLeft", u"Please enter a value for 'LEFT'."}};
    frame.SetMarked("a[b]</HEAD>");
    Fill(T(u"txtDivName"), T(u"before"));
    Control<QCheckBox>(T(u"chkAddStyle")).setChecked(true);
    for (const auto& [field, message] : rows) {
        FillBox();
        Fill(T(field), QString());
        frame.prompts.asked.clear();
        Press(T(u"txtOK"));
        ASSERT_EQ(frame.prompts.asked.size(), 1);
        const Asked& asked = frame.prompts.asked.first();
        EXPECT_EQ(asked.text, T(message));
        EXPECT_EQ(asked.title, QString());
        EXPECT_EQ(asked.icon, MsgIcon::None);
        EXPECT_EQ(asked.buttons, MsgButtons::OK);
        EXPECT_EQ(asked.owner, form);
        EXPECT_EQ(frame.Marked(), T(u"a[b]</HEAD>"));
        EXPECT_EQ(Field(T(u"txtDivName")), T(u"before"));
    }
}

TEST_F(frmDHTMLTest, WithoutADocumentTheNameIsCarriedOverAllTheSame) {
    frame.CloseDocument();
    FillBox();
    Press(T(u"txtOK"));
    Press(T(u"Command1"));
    EXPECT_EQ(Field(T(u"txtDivName")), T(u"box"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_TRUE(Loaded(T(u"frmDHTML")));
}

TEST_F(frmDHTMLTest, OnlyCancelUnloadsItAndItKeepsNothing) {
    FillBox();
    Press(T(u"txtCancel"));
    EXPECT_FALSE(Loaded(T(u"frmDHTML")));
    EXPECT_EQ(Text(), QString());
    Open(T(u"tb_Layer"), T(u"frmDHTML"));
    EXPECT_EQ(Field(T(u"txtName")), QString());
    EXPECT_EQ(Field(T(u"cboPosition")), T(u"static"));
    for (const char16_t* name : {u"txtName", u"cboZIndex", u"Command1"}) {
        Open(T(u"tb_Layer"), T(u"frmDHTML"));
        QTest::keyClick(&Control<QWidget>(T(name)), Qt::Key_Escape);
        EXPECT_FALSE(Loaded(T(u"frmDHTML")));
    }
}

TEST_F(frmDHTMLTest, EnterPressesTheButtonOfTheFrameThatIsWorkedIn) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    FillBox();
    for (const char16_t* field : {u"txtName", u"cboPosition", u"txtRight", u"chkAddStyle"}) {
        frame.SetText(QString());
        Control<QWidget>(T(field)).setFocus();
        QTest::keyClick(&Control<QWidget>(T(field)), Qt::Key_Return);
        EXPECT_EQ(Text(), boxClass) << T(field).toStdString();
    }
    for (const char16_t* field : {u"txtDivName", u"txtID", u"cboVisibility", u"cboZIndex"}) {
        frame.SetText(QString());
        Control<QWidget>(T(field)).setFocus();
        QTest::keyClick(&Control<QWidget>(T(field)), Qt::Key_Return);
        EXPECT_TRUE(Text().startsWith(T(u"<DIV CLASS=\"box\""))) << T(field).toStdString();
    }
    for (const char16_t* field : {u"txtName", u"txtID"}) {
        QTest::keyClick(&Control<QWidget>(T(field)), Qt::Key_Escape);
        EXPECT_FALSE(Loaded(T(u"frmDHTML")));
        Open(T(u"tb_Layer"), T(u"frmDHTML"));
    }
}

TEST_F(frmDHTMLTest, MnemonicsLeadToEveryField) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    const std::pair<Qt::Key, const char16_t*> rows[] = {
        {Qt::Key_N, u"txtName"}, {Qt::Key_P, u"cboPosition"},   {Qt::Key_T, u"txtTop"},
        {Qt::Key_F, u"txtLeft"}, {Qt::Key_R, u"txtRight"},      {Qt::Key_M, u"txtDivName"},
        {Qt::Key_I, u"txtID"},   {Qt::Key_V, u"cboVisibility"}, {Qt::Key_Z, u"cboZIndex"}};
    for (const auto& [key, name] : rows) {
        QTest::keyClick(form, key, Qt::AltModifier);
        EXPECT_EQ(form->focusWidget()->objectName(), T(name));
    }
}

TEST_F(frmDHTMLTest, EveryControlHasAnAccessibleName) {
    for (QWidget* control : form->findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || control->window() != form)
            continue;
        const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
        ASSERT_TRUE(face != nullptr);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty()) << control->objectName().toStdString();
    }
}

TEST_F(frmDHTMLTest, ACharacterFromOutsideTheCodePageIsItsReference) {
    Fill(T(u"txtDivName"), T(u"\u2603"));
    Press(T(u"Command1"));
    EXPECT_TRUE(Text().contains(T(u"CLASS=\"&#9731;\"")));
}

} // namespace
