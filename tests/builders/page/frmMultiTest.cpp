#include "builders/page/frmMulti.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/TagRows.h"

namespace {

class frmMultiTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        Open(T(u"tb_split"), T(u"frmMulti"));
    }
};

TEST_F(frmMultiTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"MultiColumn"));
    EXPECT_EQ(LabelOf(T(u"txtCols")), T(u"Columns"));
    EXPECT_EQ(LabelOf(T(u"txtGutter")), T(u"Gutter"));
    EXPECT_EQ(LabelOf(T(u"txtWidth")), T(u"Width"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"Command1")).text(), T(u"OK"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"Command2")).text(), T(u"Cancel"));
}

TEST_F(frmMultiTest, WrapsTheSelection) {
    SelectIn(T(u"abc"), 1, 1);
    Fill(T(u"txtCols"), T(u"2"));
    Fill(T(u"txtGutter"), T(u"8"));
    Fill(T(u"txtWidth"), T(u"90%"));
    Press(T(u"Command1"));
    EXPECT_EQ(Text(), T(u"a<MULTICOL COLS=2 GUTTER=8 WIDTH=90%>b</MULTICOL>c"));
    EXPECT_FALSE(Loaded(T(u"frmMulti")));
}

TEST_F(frmMultiTest, CancelChangesNothing) {
    Fill(T(u"txtCols"), T(u"2"));
    Press(T(u"Command2"));
    EXPECT_EQ(Text(), QString());
    EXPECT_FALSE(Loaded(T(u"frmMulti")));
}

const AnyDialog inAnyDialogTest({.form = u"frmMulti",
                                 .entries = {u"tb_split"},
                                 .field = u"txtCols",
                                 .open = u"<multicol cols=MiXed>",
                                 .close = u"</multicol>",
                                 .ok = {u"Command1", u"OK"},
                                 .cancel = {u"Command2", u"Cancel"}});

} // namespace
