#include "builders/links/frmLinks.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/TagRows.h"
#include "support/Site.h"

namespace {

class frmLinksTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        frame.active->caption = site.Path(T(u"pages/a.htm"));
        Open(T(u"mnuLink"), T(u"frmLinks"));
    }
    const Site site;
};

TEST_F(frmLinksTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Link"));
    EXPECT_EQ(LabelOf(T(u"cboChoice")), T(u"Protocol:"));
    EXPECT_EQ(LabelOf(T(u"txtURL")), T(u"URL OR FILE:"));
    EXPECT_EQ(LabelOf(T(u"txtAnchor")), T(u"Anchor:"));
    EXPECT_EQ(LabelOf(T(u"txtTarget")), T(u"Target:"));
    EXPECT_EQ(Tip(T(u"cmdOpen")), T(u"Find Background Image"));
    EXPECT_EQ(Items(T(u"cboChoice")),
              T(u"http:// ftp:// mailto: news: newsrc: telnet:// wais:// gopher://").split(u' '));
    for (const QString& field : {T(u"cboChoice"), T(u"txtURL"), T(u"txtAnchor"), T(u"txtTarget")})
        EXPECT_EQ(Field(field), QString());
    EXPECT_EQ(Control<QComboBox>(T(u"cboChoice")).currentIndex(), -1);
    ExpectPathBoxes();
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdOK")).text(), T(u"&OK"));
    EXPECT_EQ(Control<QAbstractButton>(T(u"cmdCancel")).text(), T(u"&Cancel"));
}

TEST_F(frmLinksTest, WrapsTheSelection) {
    SelectIn(T(u"abc"), 1, 1);
    Fill(T(u"txtURL"), T(u"x.htm"));
    Fill(T(u"txtAnchor"), T(u"top"));
    Fill(T(u"txtTarget"), T(u"main"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"a<A HREF=\"x.htm#top\" TARGET=\"main\">b</A>c"));
    EXPECT_EQ(Text().mid(frame.Box().SelStart()), T(u"</A>c"));
    EXPECT_FALSE(Loaded(T(u"frmLinks")));
}

TEST_F(frmLinksTest, AProtocolStandsBeforeAPickedFile) {
    Fill(T(u"cboChoice"), T(u"http://"));
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(T(u"img/low.png")))};
    Press(T(u"cmdOpen"));
    EXPECT_EQ(Field(T(u"txtURL")), T(u"../img/low.png"));
    EXPECT_EQ(Field(T(u"cboChoice")), T(u"http://"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<A HREF=\"http://../img/low.png\"></A>"));
}

TEST_F(frmLinksTest, BrowsesDocumentsFirst) {
    Press(T(u"chkAbsolute"));
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(T(u"pages/b.htm")))};
    Press(T(u"cmdOpen"));
    EXPECT_EQ(frame.prompts.asked.last().request.filter, FileFilter::Document);
    EXPECT_EQ(frame.prompts.asked.last().request.filterIndex, 2);
    EXPECT_EQ(Field(T(u"txtURL")), site.Path(T(u"pages/b.htm")));
}

TEST_F(frmLinksTest, ACancelRunsOnWithAnEmptyName) {
    Fill(T(u"txtURL"), T(u"old"));
    Press(T(u"chkAbsolute"));
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled(), ScriptedPrompts::Cancelled()};
    Press(T(u"cmdOpen"));
    EXPECT_EQ(Field(T(u"txtURL")), QString());
    EXPECT_TRUE(frame.prompts.Messages().isEmpty());
    // Relative: the way out of all of the document's folders, and no name at its end. That there is no root
    // to take off an empty name is told, as it is for a document without a path.
    Press(T(u"chkAbsolute"));
    Fill(T(u"txtURL"), T(u"old"));
    Press(T(u"cmdOpen"));
    EXPECT_NE(Field(T(u"txtURL")), T(u"old"));
    QString left = Field(T(u"txtURL"));
    EXPECT_EQ(left.remove(T(u"../")), QString());
    ASSERT_EQ(frame.prompts.Messages().size(), 1);
    EXPECT_TRUE(frame.prompts.Messages().first().startsWith(T(u"I am unable to complete")));
}

TEST_F(frmLinksTest, TheFieldIsEmptyWhileTheDialogIsUp) {
    Fill(T(u"txtURL"), T(u"old"));
    QString meanwhile = T(u"?");
    frame.prompts.whileOpen = [&](const FileRequest&) { meanwhile = Field(T(u"txtURL")); };
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(site.Path(T(u"pages/b.htm")))};
    Press(T(u"cmdOpen"));
    EXPECT_EQ(meanwhile, QString());
    EXPECT_EQ(Field(T(u"txtURL")), T(u"b.htm"));
}

TEST_F(frmLinksTest, TurnsTheSlashesOfTheUrlAlone) {
    Fill(T(u"txtURL"), T(u"http://a/b"));
    Fill(T(u"txtAnchor"), T(u"a/b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtURL")), T(u"http:\\\\a\\b"));
    EXPECT_EQ(Field(T(u"txtAnchor")), T(u"a/b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtURL")), T(u"http://a/b"));
}

TEST_F(frmLinksTest, TheProtocolHoldsJustWhatIsTyped) {
    QTest::keyClicks(&Control<QComboBox>(T(u"cboChoice")), T(u"HTTP:"));
    QTest::keyClick(&Control<QComboBox>(T(u"cboChoice")), Qt::Key_Tab);
    EXPECT_EQ(Field(T(u"cboChoice")), T(u"HTTP:"));
    QTest::keyClick(&Control<QComboBox>(T(u"cboChoice")), Qt::Key_Return);
    EXPECT_EQ(Text(), T(u"<A HREF=\"HTTP:\"></A>"));
}

const AnyDialog inAnyDialogTest({.form = u"frmLinks",
                                 .entries = {u"mnuLink", u"tb_link"},
                                 .field = u"txtURL",
                                 .open = u"<a href=\"MiXed\">",
                                 .close = u"</a>",
                                 .ok = {u"cmdOK", u"&OK"},
                                 .cancel = {u"cmdCancel", u"&Cancel"}});

} // namespace
