// The buttons of all tag dialogs that pick a file into a field: the same rules in each.
#include "builders/DialogTest.h"
#include "builders/frames/frmFrame.h"
#include "dialogs/DialogState.h"
#include "dialogs/FileDialogs.h"
#include "dialogs/TagRows.h"
#include <QCheckBox>

namespace {

struct BrowseRow {
    const char16_t* entry; ///< empty for a form that no command shows
    const char16_t* form;
    const char16_t* button;
    const char16_t* field;
    QString filter;
    int filterIndex = 1;
    bool pictures = false;     ///< the preview panel stands in the dialog
    bool empties = false;      ///< the field is emptied before the dialog comes up
    bool takesAbsolute = true; ///< chkAbsolute counts
    const char16_t* cancelled = u"old";
    bool cancelAsks = false; ///< a cancel runs on with an empty name, which gets the box
};

const BrowseRow rows[] = {
    {u"tb_body", u"frmBody", u"Command1", u"txtBackground", FileFilter::Picture, 1, true},
    {u"mnuImage", u"frmGraphicLink", u"cmdPicOpen", u"txtURL", FileFilter::Picture, 1, true},
    {u"mnuImage", u"frmGraphicLink", u"cmdOpen2", u"txtLowSRC", QString(), 1, true},
    {u"mnuImage", u"frmGraphicLink", u"cmdLinkMe", u"txtLinkMe", FileFilter::LinkTarget, 2, false, true,
     false, u""},
    // A cancel is not told apart here: the way to an empty name.
    {u"mnuLink", u"frmLinks", u"cmdOpen", u"txtURL", FileFilter::Document, 2, false, true, true, u"../../",
     true},
    {u"mnuEmbed", u"frmEmbed", u"cmdGetFle", u"txtURL", FileFilter::AnyFile, 2},
    {u"", u"frmFrame", u"cmdOpen", u"txtSrc", FileFilter::Document, 2},
};

class BrowseButtonsTest : public DialogTest, public testing::WithParamInterface<BrowseRow> {
  protected:
    void SetUp() override {
        DialogTest::SetUp();
        frame.active->caption = T(u"C:\\site\\pages\\a.htm");
        if (*GetParam().entry)
            Open(T(GetParam().entry), T(GetParam().form));
        else
            form = &frame.LoadedForms().Show<frmFrame>(frame);
        Fill(Target(), T(u"old"));
    }
    QString Target() const { return T(GetParam().field); }
    void Check(const char16_t* box, bool on) { Control<QCheckBox>(T(box)).setChecked(on); }
    /// Presses the button; the dialog answers with that path.
    QString Pick(const char16_t* path) {
        frame.prompts.openAnswers = {ScriptedPrompts::Picked(T(path))};
        Press(T(GetParam().button));
        return Field(Target());
    }
    QString Cancel() {
        frame.prompts.openAnswers = {ScriptedPrompts::Cancelled()};
        Press(T(GetParam().button));
        return Field(Target());
    }
};

TEST_P(BrowseButtonsTest, AskWithTheirFilterInTheLastFolder) {
    frame.State<DialogState>().LastDir = T(u"/last");
    Pick(u"C:\\site\\img\\b.gif");
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    const Asked& asked = frame.prompts.asked.first();
    EXPECT_EQ(asked.kind, Asked::Open);
    EXPECT_EQ(asked.request.filter, GetParam().filter);
    EXPECT_EQ(asked.request.filterIndex, GetParam().filterIndex);
    EXPECT_EQ(asked.request.folder, T(u"/last"));
    EXPECT_EQ(asked.request.panel != nullptr, GetParam().pictures);
    EXPECT_FALSE(asked.request.multiSelect);
    EXPECT_EQ(asked.owner, form);
    EXPECT_EQ(frame.State<DialogState>().LastDir, T(u"/last"));
}

TEST_P(BrowseButtonsTest, GoByTheTwoBoxes) {
    for (const bool absolute : {false, true}) {
        for (const bool forward : {false, true}) {
            Check(u"chkAbsolute", absolute);
            Check(u"chkForwardSlash", forward);
            QString path =
                absolute && GetParam().takesAbsolute ? T(u"C:\\site\\img\\b.gif") : T(u"..\\img\\b.gif");
            if (forward)
                path.replace(u'\\', u'/');
            EXPECT_EQ(Pick(u"C:\\site\\img\\b.gif"), path);
        }
    }
    EXPECT_TRUE(frame.prompts.Messages().isEmpty());
}

TEST_P(BrowseButtonsTest, LeaveTheFieldWithTheFocusSoThatEnterIsOK) {
    Control<QWidget>(T(GetParam().button)).setFocus();
    Pick(u"C:\\site\\img\\b.gif");
    EXPECT_EQ(form->focusWidget(), &Control<QWidget>(Target()));
}

TEST_P(BrowseButtonsTest, StartFromTheDocumentActiveAtThePick) {
    frame.NewDocument();
    frame.active->caption = T(u"C:\\site\\img\\c.htm");
    EXPECT_EQ(Pick(u"C:\\site\\img\\b.gif"), T(u"b.gif"));
}

TEST_P(BrowseButtonsTest, ACancelComesToAnEnd) {
    EXPECT_EQ(Cancel(), T(GetParam().cancelled));
    // What was picked before does not come back.
    Pick(u"C:\\site\\img\\b.gif");
    const QString after = Cancel();
    EXPECT_EQ(after, GetParam().empties ? T(GetParam().cancelled) : T(u"../img/b.gif"));
    EXPECT_EQ(frame.prompts.Messages().size(), GetParam().cancelAsks ? 2 : 0);
    // A full path is not reckoned, and nothing can go wrong with it.
    Check(u"chkAbsolute", true);
    Cancel();
    EXPECT_EQ(frame.prompts.Messages().size(), GetParam().cancelAsks ? 2 : 0);
    EXPECT_FALSE(Loaded(T(u"frmImage")));
}

TEST_P(BrowseButtonsTest, EmptyTheFieldBeforeOrNot) {
    QString meanwhile;
    frame.prompts.whileOpen = [&](const FileRequest&) { meanwhile = Field(Target()); };
    Cancel();
    EXPECT_EQ(meanwhile, GetParam().empties ? QString() : T(u"old"));
}

TEST_P(BrowseButtonsTest, ANeverSavedDocumentGetsTheBoxAndWhatWasComputed) {
    frame.active->caption.clear();
    EXPECT_EQ(Pick(u"C:\\site\\img\\b.gif"), T(u"site/img/b.gif"));
    ASSERT_EQ(frame.prompts.Messages().size(), 1);
    EXPECT_TRUE(frame.prompts.Messages().first().startsWith(T(u"I am unable to complete")));
    if (!GetParam().takesAbsolute)
        return;
    Check(u"chkAbsolute", true);
    EXPECT_EQ(Pick(u"C:\\site\\img\\b.gif"), T(u"C:/site/img/b.gif"));
    EXPECT_EQ(frame.prompts.Messages().size(), 1) << "a full path needs no document";
}

TEST_P(BrowseButtonsTest, WithoutADocumentLeaveTheFieldAsItIs) {
    frame.CloseDocument();
    EXPECT_EQ(Pick(u"C:\\site\\img\\b.gif"), GetParam().empties ? QString() : T(u"old"));
    Check(u"chkAbsolute", true);
    EXPECT_EQ(Pick(u"C:\\site\\img\\b.gif"), GetParam().takesAbsolute ? T(u"C:/site/img/b.gif") : QString());
    EXPECT_TRUE(frame.prompts.Messages().isEmpty());
    EXPECT_TRUE(Loaded(T(GetParam().form)));
}

TEST_P(BrowseButtonsTest, ForgetTheirFilterWithTheForm) {
    Pick(u"C:\\site\\img\\b.gif");
    QTest::keyClick(form, Qt::Key_Escape);
    Open(T(u"mnuImage"), T(u"frmGraphicLink"));
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled()};
    Press(T(u"cmdOpen2"));
    EXPECT_EQ(frame.prompts.asked.last().request.filter, QString());
    EXPECT_EQ(frame.prompts.asked.last().request.filterIndex, 1);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, BrowseButtonsTest, testing::ValuesIn(rows), [](const auto& info) {
    return (T(info.param.form) + u'_' + T(info.param.button)).toStdString();
});

} // namespace
