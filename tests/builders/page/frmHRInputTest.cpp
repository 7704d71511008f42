#include "builders/page/frmHRInput.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/TagRows.h"
#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>

namespace {

using frmHRInputTest = DialogTest;

TEST_F(frmHRInputTest, LooksAsItShould) {
    Open(T(u"mnuHR"), T(u"frmHRInput"));
    EXPECT_EQ(form->windowTitle(), T(u"Horizontal Rule"));
    const auto frameOf = [&](const QString& control) {
        return qobject_cast<QGroupBox*>(Control<QWidget>(control).parentWidget())->title().remove(u'&');
    };
    EXPECT_EQ(frameOf(T(u"txtWidthInput")), T(u"Width"));
    EXPECT_EQ(frameOf(T(u"optPercent")), T(u"Width"));
    EXPECT_EQ(frameOf(T(u"cboThickInput")), T(u"Thickness"));
    EXPECT_EQ(frameOf(T(u"cboAlign")), T(u"Align"));
    EXPECT_EQ(Control<QRadioButton>(T(u"optPercent")).text(), T(u"Percent"));
    EXPECT_EQ(Control<QRadioButton>(T(u"OptPixel")).text(), T(u"Pixels"));
    EXPECT_EQ(Control<QCheckBox>(T(u"chkNoShade")).text(), T(u"No Shade"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdOK")).text(), T(u"OK"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdCancel")).text(), T(u"Cancel"));

    EXPECT_EQ(Field(T(u"txtWidthInput")), QString());
    EXPECT_EQ(Field(T(u"cboThickInput")), QString());
    EXPECT_EQ(Field(T(u"cboAlign")), QString());
    EXPECT_FALSE(Control<QRadioButton>(T(u"optPercent")).isChecked());
    EXPECT_FALSE(Control<QRadioButton>(T(u"OptPixel")).isChecked());
    EXPECT_FALSE(Control<QCheckBox>(T(u"chkNoShade")).isChecked());

    QStringList thickness = {QString()};
    for (int i = 1; i <= 99; ++i)
        thickness << QString::number(i);
    EXPECT_EQ(Items(T(u"cboThickInput")), thickness);
    EXPECT_EQ(Items(T(u"cboAlign")), (QStringList{T(u"LEFT"), T(u"RIGHT"), T(u"CENTER"), QString()}));
}

TEST_F(frmHRInputTest, WritesTheRuleBeforeTheSelectedText) {
    SelectIn(T(u"ab"), 0, 1);
    Open(T(u"tb_hr"), T(u"frmHRInput"));
    Fill(T(u"txtWidthInput"), T(u"50"));
    Press(T(u"optPercent"));
    Fill(T(u"cboThickInput"), T(u"2"));
    Fill(T(u"cboAlign"), T(u"CENTER"));
    Press(T(u"chkNoShade"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<HR WIDTH=50% SIZE=2 ALIGN=CENTER NOSHADE>ab"));
    EXPECT_EQ(Text().mid(frame.Box().SelStart()), T(u"b"));
    EXPECT_FALSE(Loaded(T(u"frmHRInput")));
}

TEST_F(frmHRInputTest, WritesNoAlignmentForTheEmptyItem) {
    Open(T(u"mnuHR"), T(u"frmHRInput"));
    Control<QComboBox>(T(u"cboAlign")).setCurrentIndex(3);
    Control<QComboBox>(T(u"cboThickInput")).setCurrentIndex(0);
    Press(T(u"OptPixel"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<HR>"));
}

TEST_F(frmHRInputTest, TheUnitIsChosenByKeys) {
    Open(T(u"mnuHR"), T(u"frmHRInput"));
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    auto& optPercent = Control<QRadioButton>(T(u"optPercent"));
    optPercent.setFocus();
    QTest::keyClick(&optPercent, Qt::Key_Space);
    EXPECT_TRUE(optPercent.isChecked());
    QTest::keyClick(&optPercent, Qt::Key_Right);
    EXPECT_TRUE(Control<QRadioButton>(T(u"OptPixel")).isChecked());
}

TEST_F(frmHRInputTest, IsGoneBeforeItsTagComes) {
    bool loadedAtInsertion = true;
    Open(T(u"mnuHR"), T(u"frmHRInput"));
    QObject::connect(&frame.Box(), &RichTextBox::Change, form,
                     [&] { loadedAtInsertion = Loaded(T(u"frmHRInput")); });
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<HR>"));
    EXPECT_FALSE(loadedAtInsertion);
}

const AnyDialog inAnyDialogTest({.form = u"frmHRInput",
                                 .entries = {u"mnuHR", u"tb_hr"},
                                 .field = u"txtWidthInput",
                                 .open = u"<hr width=MiXed>"});

} // namespace
