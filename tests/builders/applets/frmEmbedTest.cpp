#include "builders/applets/frmEmbed.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/TagRows.h"
#include "support/Site.h"

namespace {

class frmEmbedTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        frame.active->caption = site.Path(T(u"pages/a.htm"));
        Open(T(u"mnuEmbed"), T(u"frmEmbed"));
    }
    bool CanOk() { return Control<QAbstractButton>(T(u"cmdOK")).isEnabled(); }
    const Site site;
};

TEST_F(frmEmbedTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Embed"));
    EXPECT_EQ(LabelOf(T(u"txtWidth")), T(u"Width:"));
    EXPECT_EQ(LabelOf(T(u"txtHeight")), T(u"Height:"));
    EXPECT_EQ(LabelOf(T(u"cboPalette")), T(u"Palette:"));
    EXPECT_EQ(Items(T(u"cboPalette")), (QStringList{T(u"BACKGROUND"), T(u"FOREGROUND"), QString()}));
    EXPECT_EQ(Tip(T(u"cmdGetFle")), T(u"Find File"));
    for (const QString& field : {T(u"txtWidth"), T(u"txtHeight"), T(u"cboPalette"), T(u"txtURL")})
        EXPECT_EQ(Field(field), QString());
    ExpectPathBoxes();
}

TEST_F(frmEmbedTest, OkNeedsASource) {
    EXPECT_FALSE(CanOk());
    Fill(T(u"txtWidth"), T(u"1"));
    EXPECT_FALSE(CanOk());
    QTest::keyClick(&Control<QLineEdit>(T(u"txtWidth")), Qt::Key_Return);
    EXPECT_TRUE(Loaded(T(u"frmEmbed")));
    Fill(T(u"txtURL"), T(u" "));
    EXPECT_TRUE(CanOk());
    Fill(T(u"txtURL"), QString());
    EXPECT_FALSE(CanOk());
}

TEST_F(frmEmbedTest, Browses) {
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(T(u"x.mid"))),
                                 ScriptedPrompts::Cancelled()};
    Press(T(u"cmdGetFle"));
    EXPECT_EQ(frame.prompts.asked.last().request.filter, FileFilter::AnyFile);
    EXPECT_EQ(frame.prompts.asked.last().request.filterIndex, 2);
    EXPECT_TRUE(frame.prompts.asked.last().request.panel == nullptr);
    EXPECT_EQ(Field(T(u"txtURL")), T(u"../x.mid"));
    EXPECT_TRUE(CanOk());
    Press(T(u"cmdGetFle"));
    EXPECT_EQ(Field(T(u"txtURL")), T(u"../x.mid"));
    Press(T(u"chkAbsolute"));
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(T(u"x.mid")))};
    Press(T(u"cmdGetFle"));
    EXPECT_EQ(Field(T(u"txtURL")), site.Path(T(u"x.mid")));
}

TEST_F(frmEmbedTest, TurnsSlashes) {
    Fill(T(u"txtURL"), T(u"a/b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtURL")), T(u"a\\b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtURL")), T(u"a/b"));
}

TEST_F(frmEmbedTest, WritesItsFields) {
    Fill(T(u"txtWidth"), T(u"1"));
    Fill(T(u"txtHeight"), T(u"2"));
    Fill(T(u"cboPalette"), T(u"BACKGROUND"));
    Fill(T(u"txtURL"), T(u"x.mid"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<EMBED WIDTH=1 HEIGHT=2 PALETTE=BACKGROUND SRC=\"x.mid\">"));
    EXPECT_FALSE(Loaded(T(u"frmEmbed")));
}

const AnyDialog inAnyDialogTest({.form = u"frmEmbed",
                                 .entries = {u"mnuEmbed", u"tb_embed"},
                                 .field = u"txtURL",
                                 .open = u"<embed src=\"MiXed\">"});

} // namespace
