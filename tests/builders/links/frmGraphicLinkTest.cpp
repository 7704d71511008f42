#include "builders/links/frmGraphicLink.h"

#include "builders/commands/AnyDialog.h"
#include "builders/DialogTest.h"
#include "dialogs/DialogState.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/TagRows.h"
#include "support/Site.h"
#include <QCheckBox>

namespace {

class frmGraphicLinkTest : public DialogTest {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        frame.active->caption = site.Path(T(u"pages/a.htm"));
        Open(T(u"mnuImage"), T(u"frmGraphicLink"));
    }
    /// Presses a browse button whose dialog answers with a file of the site, or cancels.
    FileRequest Browse(const char16_t* button, const char16_t* file) {
        frame.prompts.openAnswers = {*file ? ScriptedPrompts::Picked(site.Path(T(file)))
                                           : ScriptedPrompts::Cancelled()};
        Press(T(button));
        EXPECT_FALSE(Loaded(T(u"frmImage")));
        return frame.prompts.asked.last().request;
    }
    const Site site;
};

TEST_F(frmGraphicLinkTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Image"));
    const std::pair<QString, QString> fields[] = {
        {T(u"txtURL"), T(u"Source:")},
        {T(u"txtLowSRC"), T(u"Low Source:")},
        {T(u"txtALT"), T(u"Alternate Text:")},
        {T(u"txtWidth"), T(u"Width:")},
        {T(u"txtHeight"), T(u"Height:")},
        {T(u"txtHSpace"), T(u"HSpace:")},
        {T(u"txtVSpace"), T(u"VSpace:")},
        {T(u"txtBorder"), T(u"Border:")},
        {T(u"cboAlign"), T(u"Align:")},
        {T(u"txtUseMap"), T(u"Use Map: (Name of image map)")},
        {T(u"txtLinkMe"), T(u"URL To Link Image To:")},
    };
    for (const auto& [field, label] : fields) {
        EXPECT_EQ(LabelOf(field), label);
        EXPECT_EQ(Field(field), QString());
    }
    EXPECT_EQ(Items(T(u"cboAlign")),
              T(u"TOP MIDDLE BOTTOM RIGHT LEFT TEXTTOP BASELINE ABSMIDDLE ABSBOTTOM").split(u' '));
    EXPECT_EQ(Control<QCheckBox>(T(u"chkISMAP")).text(), T(u"ISMAP (Server Map)"));
    EXPECT_FALSE(Control<QCheckBox>(T(u"chkISMAP")).isChecked());
    ExpectPathBoxes();
    EXPECT_EQ(Tip(T(u"cmdPicOpen")), T(u"Find Source Image"));
    EXPECT_EQ(Tip(T(u"cmdOpen2")), T(u"Find Low Source Image"));
    EXPECT_EQ(Tip(T(u"cmdLinkMe")), T(u"Find URL"));
}

TEST_F(frmGraphicLinkTest, PickingTheSourceFillsSizeAndAlternateText) {
    frame.State<DialogState>().LastDir = T(u"/somewhere/");
    const FileRequest request = Browse(u"cmdPicOpen", u"img/banner.png");
    EXPECT_EQ(request.filter, FileFilter::Picture);
    EXPECT_EQ(request.folder, T(u"/somewhere/"));
    EXPECT_TRUE(request.panel != nullptr);
    EXPECT_EQ(Field(T(u"txtURL")), T(u"../img/banner.png"));
    EXPECT_EQ(Field(T(u"txtWidth")), T(u"468"));
    EXPECT_EQ(Field(T(u"txtHeight")), T(u"60"));
    EXPECT_EQ(Field(T(u"txtALT")), T(u"banner.png"));
    EXPECT_EQ(Field(T(u"txtLowSRC")), QString());
}

TEST_F(frmGraphicLinkTest, KeepsAnAlternateText) {
    Fill(T(u"txtALT"), T(u"mine"));
    Browse(u"cmdPicOpen", u"img/banner.png");
    EXPECT_EQ(Field(T(u"txtALT")), T(u"mine"));
}

TEST_F(frmGraphicLinkTest, ACancelledBrowseLeavesEveryField) {
    Fill(T(u"txtURL"), T(u"old"));
    Fill(T(u"txtLowSRC"), T(u"low"));
    Browse(u"cmdPicOpen", u"");
    Browse(u"cmdOpen2", u"");
    EXPECT_EQ(Field(T(u"txtURL")), T(u"old"));
    EXPECT_EQ(Field(T(u"txtLowSRC")), T(u"low"));
    EXPECT_EQ(Field(T(u"txtWidth")), QString());
    EXPECT_EQ(Field(T(u"txtALT")), QString());
}

TEST_F(frmGraphicLinkTest, TheLowSourceHasNoFilterOfItsOwn) {
    EXPECT_EQ(Browse(u"cmdOpen2", u"img/low.png").filter, QString());
    EXPECT_EQ(Field(T(u"txtLowSRC")), T(u"../img/low.png"));
    EXPECT_EQ(Field(T(u"txtURL")), QString());
    EXPECT_EQ(Field(T(u"txtWidth")), QString());
    EXPECT_EQ(Field(T(u"txtHeight")), QString());
    EXPECT_EQ(Field(T(u"txtALT")), QString());
    Browse(u"cmdPicOpen", u"img/banner.png");
    const FileRequest after = Browse(u"cmdOpen2", u"img/low.png");
    EXPECT_EQ(after.filter, FileFilter::Picture);
    EXPECT_TRUE(after.panel != nullptr);
    EXPECT_EQ(Field(T(u"txtWidth")), T(u"468")) << "the size is the source's";
    EXPECT_EQ(Field(T(u"txtALT")), T(u"banner.png"));
}

TEST_F(frmGraphicLinkTest, TheLowSourceHasNoFilterOfOtherForms) {
    Open(T(u"mnuEmbed"), T(u"frmEmbed"));
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled()};
    Press(T(u"cmdGetFle"));
    EXPECT_EQ(frame.prompts.asked.last().request.filter, FileFilter::AnyFile);
    Open(T(u"mnuImage"), T(u"frmGraphicLink"));
    const FileRequest request = Browse(u"cmdOpen2", u"img/low.png");
    EXPECT_EQ(request.filter, QString());
    EXPECT_EQ(request.filterIndex, 1);
}

TEST_F(frmGraphicLinkTest, WithoutADocumentAPickStillTellsTheSize) {
    frame.CloseDocument();
    Fill(T(u"txtURL"), T(u"old"));
    Browse(u"cmdPicOpen", u"img/banner.png");
    EXPECT_EQ(Field(T(u"txtURL")), T(u"old"));
    EXPECT_EQ(Field(T(u"txtWidth")), T(u"468"));
    EXPECT_EQ(Field(T(u"txtHeight")), T(u"60"));
    EXPECT_EQ(Field(T(u"txtALT")), T(u"banner.png"));
}

TEST_F(frmGraphicLinkTest, TheLinkIsRelativeWhateverIsAsked) {
    Press(T(u"chkAbsolute"));
    const FileRequest request = Browse(u"cmdLinkMe", u"pages/b.htm");
    EXPECT_EQ(request.filter, FileFilter::LinkTarget);
    EXPECT_EQ(request.filterIndex, 2);
    EXPECT_TRUE(request.panel == nullptr);
    EXPECT_EQ(Field(T(u"txtLinkMe")), T(u"b.htm"));
    // Even a cancel leaves it empty.
    Browse(u"cmdLinkMe", u"");
    EXPECT_EQ(Field(T(u"txtLinkMe")), QString());
}

TEST_F(frmGraphicLinkTest, KeepsFullPathsWhereAsked) {
    Press(T(u"chkAbsolute"));
    Browse(u"cmdPicOpen", u"img/banner.png");
    Browse(u"cmdOpen2", u"img/low.png");
    EXPECT_EQ(Field(T(u"txtURL")), site.Path(T(u"img/banner.png")));
    EXPECT_EQ(Field(T(u"txtLowSRC")), site.Path(T(u"img/low.png")));
}

TEST_F(frmGraphicLinkTest, AnUnsavedDocumentGetsTheBoxAndWhatWasComputed) {
    frame.active->caption.clear();
    Browse(u"cmdPicOpen", u"img/banner.png");
    EXPECT_EQ(frame.prompts.Messages().size(), 1);
    EXPECT_TRUE(Field(T(u"txtURL")).endsWith(T(u"site/img/banner.png")));
    EXPECT_EQ(Field(T(u"txtWidth")), T(u"468"));
}

TEST_F(frmGraphicLinkTest, TurnsTheSlashesOfTheSourcesAndNotOfTheLink) {
    for (const QString& field : {T(u"txtURL"), T(u"txtLowSRC"), T(u"txtLinkMe")})
        Fill(field, T(u"a/b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtURL")), T(u"a\\b"));
    EXPECT_EQ(Field(T(u"txtLowSRC")), T(u"a\\b"));
    EXPECT_EQ(Field(T(u"txtLinkMe")), T(u"a/b"));
    Fill(T(u"txtLinkMe"), T(u"a\\b"));
    Press(T(u"chkForwardSlash"));
    EXPECT_EQ(Field(T(u"txtURL")), T(u"a/b"));
    EXPECT_EQ(Field(T(u"txtLowSRC")), T(u"a/b"));
    EXPECT_EQ(Field(T(u"txtLinkMe")), T(u"a\\b"));
}

TEST_F(frmGraphicLinkTest, WritesEveryFieldButTheAlignment) {
    const QString names[] = {T(u"txtURL"),    T(u"txtLowSRC"), T(u"txtALT"),    T(u"txtWidth"),
                             T(u"txtHeight"), T(u"txtHSpace"), T(u"txtVSpace"), T(u"txtBorder"),
                             T(u"cboAlign"),  T(u"txtUseMap")};
    for (const QString& name : names)
        Fill(name, name.mid(3));
    Press(T(u"chkISMAP"));
    Press(T(u"cmdOK"));
    const QString tag =
        T(u"<IMG ALT=\"ALT\" WIDTH=Width HEIGHT=Height HSPACE=HSpace VSPACE=VSpace BORDER=Border "
          u"LOWSRC=\"LowSRC\" SRC=\"URL\" USEMAP=\"#UseMap\" ISMAP>");
    EXPECT_EQ(Text(), tag);
    EXPECT_EQ(frame.State<DialogState>().LastBuiltTag, tag);
    EXPECT_TRUE(frame.State<DialogState>().TagBuilt);
    EXPECT_FALSE(Loaded(T(u"frmGraphicLink")));
}

TEST_F(frmGraphicLinkTest, EmptyFieldsGiveTheMapAlone) {
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<IMG USEMAP=\"#\">"));
}

TEST_F(frmGraphicLinkTest, WrapsTheTagInALink) {
    LowerCaseTags();
    Fill(T(u"txtURL"), T(u"A.gif"));
    Fill(T(u"txtLinkMe"), T(u"Big.htm"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u" <a href==\"Big.htm\"><img src=\"A.gif\" usemap=\"#\"></a>"));
    EXPECT_EQ(frame.State<DialogState>().LastBuiltTag, Text());
}

TEST_F(frmGraphicLinkTest, ABackslashGoesIntoTheColouredTextAsItStands) {
    Fill(T(u"txtURL"), T(u"img\\a.gif"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<IMG SRC=\"img.gif\" USEMAP=\"#\">"))
        << "the text control reads a word of its own there";
    EXPECT_EQ(frame.State<DialogState>().LastBuiltTag, T(u"<IMG SRC=\"img\\a.gif\" USEMAP=\"#\">"));
    frame.SetText(QString());
    frame.Store().WriteFlag(Keys::ColoredTags, false);
    Open(T(u"mnuImage"), T(u"frmGraphicLink"));
    Fill(T(u"txtURL"), T(u"img\\a.gif"));
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<IMG SRC=\"img\\a.gif\" USEMAP=\"#\">"));
}

TEST_F(frmGraphicLinkTest, ColoursTheTag) {
    Fill(T(u"txtURL"), T(u"a.gif"));
    Press(T(u"cmdOK"));
    const auto colors = frame.Colors();
    ASSERT_EQ(colors.size(), 1U);
    EXPECT_NE(colors.front().second, frame.Store().ReadNumber(Keys::TextColor[0]));
}

TEST_F(frmGraphicLinkTest, StandsBeforeTheSelectedText) {
    SelectIn(T(u"ab"), 0, 1);
    Press(T(u"cmdOK"));
    EXPECT_EQ(Text(), T(u"<IMG USEMAP=\"#\">ab"));
}

const AnyDialog inAnyDialogTest({.form = u"frmGraphicLink",
                                 .entries = {u"mnuImage", u"tb_image"},
                                 .field = u"txtURL",
                                 .open = u"<img src=\"MiXed\" usemap=\"#\">",
                                 .tellsTag = true});

} // namespace
