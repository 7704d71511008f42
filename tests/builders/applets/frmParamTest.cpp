#include "builders/applets/frmParam.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/TagRows.h"

namespace {

class frmParamTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(T(u"tb_java2"), T(u"frmParam"));
    }
};

TEST_F(frmParamTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"JAVA Parameters"));
    EXPECT_EQ(LabelOf(T(u"txtName")), T(u"Name:"));
    EXPECT_EQ(LabelOf(T(u"txtValue")), T(u"Value:"));
}

TEST_F(frmParamTest, WritesOneParameterAfterTheOtherAndStaysOpen) {
    Fill(T(u"txtName"), T(u"a"));
    Fill(T(u"txtValue"), T(u"very fast"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Field(T(u"txtName")), QString());
    EXPECT_EQ(Field(T(u"txtValue")), QString());
    EXPECT_TRUE(Loaded(T(u"frmParam")));
    Fill(T(u"txtName"), T(u"b"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<PARAM NAME=a VALUE=very fast><PARAM NAME=b>"));
    Press(T(u"cmdCancel"));
    EXPECT_FALSE(Loaded(T(u"frmParam")));
    EXPECT_EQ(Text(), T(u"<PARAM NAME=a VALUE=very fast><PARAM NAME=b>"));
}

TEST_F(frmParamTest, IsFilledByKeysAlone) {
    QTest::keyClicks(&Control<QLineEdit>(T(u"txtName")), T(u"a"));
    QTest::keyClicks(&Control<QLineEdit>(T(u"txtValue")), T(u"1"));
    QTest::keyClick(&Control<QLineEdit>(T(u"txtValue")), Qt::Key_Return);
    EXPECT_EQ(form->focusWidget(), &Control<QLineEdit>(T(u"txtName")));
    QTest::keyClicks(form->focusWidget(), T(u"b"));
    QTest::keyClick(form->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Text(), T(u"<PARAM NAME=a VALUE=1><PARAM NAME=b>"));
}

const AnyDialog inAnyDialogTest({.form = u"frmParam",
                                 .entries = {u"tb_java2"},
                                 .field = u"txtName",
                                 .open = u"<param name=MiXed>",
                                 .stays = true});

} // namespace
