#include "builders/frmMulti.h"

#include "builders/ColumnTags.h"
#include "builders/DialogTest.h"
#include "builders/TagRows.h"

namespace {

Row Columns(const char16_t* cols, const char16_t* gutter, const char16_t* width, const char16_t* asWritten,
            const char16_t* lowered) {
    return {[=](Frame& frame) { return Shown(MultiColumnTag(frame, T(cols), T(gutter), T(width))); },
            asWritten, lowered};
}

TEST(MultiColumnTag, WritesItsAttributesInOrder) {
    Check({
        Columns(u"", u"", u"", u"<MULTICOL>|</MULTICOL>", u"<multicol>|</multicol>"),
        Columns(u"2", u"8", u"90%", u"<MULTICOL COLS=2 GUTTER=8 WIDTH=90%>|</MULTICOL>",
                u"<multicol cols=2 gutter=8 width=90%>|</multicol>"),
    });
}

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
    frame.SetText(T(u"abc"));
    frame.Box().SetSelStart(1);
    frame.Box().SetSelLength(1);
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

} // namespace
