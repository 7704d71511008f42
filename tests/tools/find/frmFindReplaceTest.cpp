// The Find / Replace / Multi-file dialog, used as a person does.
#include "tools/find/frmFindReplace.h"

#include "support/Files.h"
#include "support/FreshUser.h"
#include "tools/find/FindState.h"
#include "tools/ToolFormTest.h"

#include <gmock/gmock.h>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>

namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class frmFindReplaceTest : public ToolFormTest {
  protected:
    QWidget& OpenAt(const char* command) { return Open(QString::fromLatin1(command), u"frmFindReplace"_s); }
    QTabWidget& Tabs() { return Control<QTabWidget>(u"TabStrip1"_s); }
    QString Tab() { return Tabs().tabText(Tabs().currentIndex()); }
    QString Caption(const char* button) { return Control<QPushButton>(QString::fromLatin1(button)).text(); }
    bool Shown(const char* name) { return Control<QWidget>(QString::fromLatin1(name)).isVisible(); }

    QString FindNext(const QString& text) {
        Fill(u"txtFindOnly"_s, text);
        Press(u"cmdOK"_s);
        return frame.Marked();
    }
    QString Replace(const char* marked, const QString& what, const QString& with) {
        return ReplaceBy(u"cmdOK"_s, marked, what, with);
    }
    QString ReplaceAll(const char* marked, const QString& what, const QString& with) {
        return ReplaceBy(u"cmdSelected"_s, marked, what, with);
    }
    void ExpectNoMore(const QString& text) {
        const Asked box = Box();
        EXPECT_EQ(box.text, u"No more instances of \"%1\" found."_s.arg(text));
        EXPECT_EQ(box.title, u"The Tarnwick"_s);
        EXPECT_EQ(box.icon, MsgIcon::Exclamation);
        EXPECT_EQ(box.buttons, MsgButtons::OK);
    }

  private:
    QString ReplaceBy(const QString& button, const char* marked, const QString& what, const QString& with) {
        frame.SetMarked(marked);
        Fill(u"txtWhat"_s, what);
        Fill(u"txtWith"_s, with);
        Press(button);
        return frame.Marked();
    }
};

// --- the dialog
// ----------------------------------------------------------------------------------------------

TEST_F(frmFindReplaceTest, EachCommandShowsItsTab) {
    struct {
        const char* command;
        QString tab;
        const char* shown;
        const char* hidden1;
        const char* hidden2;
        QString ok;
    } const rows[] = {
        {"mnuFind", u"Find"_s, "Frame_0", "Frame_1", "Frame_2", u"&OK"_s},
        {"mnuReplace", u"Replace"_s, "Frame_2", "Frame_0", "Frame_1", u"&Replace"_s},
        {"mnuMultiFile", u"Multifile"_s, "Frame_1", "Frame_0", "Frame_2", u"&OK"_s},
    };
    for (const auto& row : rows) {
        const QWidget& dialog = OpenAt(row.command);
        EXPECT_EQ(dialog.windowTitle(), u"Find / Replace / Multi-file Search & Replace"_s);
        EXPECT_EQ(dialog.parentWidget(), frame.Window());
        EXPECT_EQ(Tab(), row.tab);
        EXPECT_TRUE(Shown(row.shown)) << row.command;
        EXPECT_FALSE(Shown(row.hidden1)) << row.command;
        EXPECT_FALSE(Shown(row.hidden2)) << row.command;
        EXPECT_EQ(Caption("cmdOK"), row.ok);
        EXPECT_EQ(Shown("cmdSelected"), row.tab == u"Replace"_s);
        Press(u"cmdCancel"_s);
        EXPECT_FALSE(Loaded(u"frmFindReplace"_s));
    }
}

TEST_F(frmFindReplaceTest, TheToolbarShowsAWindowOfItsOwnAtTheLastTab) {
    EXPECT_EQ(OpenAt("tb_find").parentWidget(), nullptr);
    EXPECT_EQ(Tab(), u"Find"_s);
    Press(u"cmdCancel"_s);
    OpenAt("mnuMultiFile");
    Press(u"cmdCancel"_s);
    OpenAt("tb_find");
    EXPECT_EQ(Tab(), u"Multifile"_s);
    Press(u"cmdCancel"_s);
}

TEST_F(frmFindReplaceTest, AFormThatIsUpKeepsItsTabAndItsTexts) {
    const QWidget* first = &OpenAt("mnuFind");
    Fill(u"txtFindOnly"_s, u"abc"_s);
    EXPECT_EQ(&OpenAt("mnuReplace"), first);
    EXPECT_EQ(Tab(), u"Find"_s);
    Press(u"cmdCancel"_s);
    // The tab asked for last counts for the next one, whose fields are empty.
    OpenAt("tb_find");
    EXPECT_EQ(Tab(), u"Replace"_s);
    EXPECT_EQ(Control<QLineEdit>(u"txtFindOnly"_s).text(), QString());
    Press(u"cmdCancel"_s);
}

TEST_F(frmFindReplaceTest, LabelsAndCaptions) {
    OpenAt("mnuReplace");
    EXPECT_EQ(LabelOf(u"txtFindOnly"_s), u"Find:"_s);
    EXPECT_EQ(LabelOf(u"txtWhat"_s), u"Find:"_s);
    EXPECT_EQ(LabelOf(u"txtWith"_s), u"Replace:"_s);
    EXPECT_EQ(LabelOf(u"txtFindGlobal"_s), u"Find:"_s);
    EXPECT_EQ(LabelOf(u"txtReplaceGlobal"_s), u"Replace:"_s);
    EXPECT_EQ(LabelOf(u"List1"_s), u"Selected Files:"_s);
    EXPECT_EQ(LabelOf(u"Combo1"_s), u"Projects:"_s);
    const auto caption = [&](const char* name) {
        return Control<QAbstractButton>(QString::fromLatin1(name)).text().remove(u'&');
    };
    for (const char* box : {"chkFindCase", "chkRepCS", "chkGlobalCS"})
        EXPECT_EQ(caption(box), u"Case Sensitive"_s) << box;
    EXPECT_EQ(caption("chkFindWW"), u"Whole Word"_s);
    EXPECT_EQ(caption("cmdGetFle"), u"Add Files"_s);
    EXPECT_EQ(Caption("cmdSelected"), u"Replace &All"_s);
    EXPECT_EQ(Caption("cmdCancel"), u"&Cancel"_s);
    for (const char* box : {"chkFindCase", "chkFindWW", "chkRepCS", "chkGlobalCS"})
        EXPECT_FALSE(Control<QCheckBox>(QString::fromLatin1(box)).isChecked()) << box;
}

TEST_F(frmFindReplaceTest, TheButtonsStandInTheOrderOfTheTab) {
    OpenAt("mnuReplace");
    EXPECT_EQ(form->height(), std::max(253, form->minimumSizeHint().height()));
    const auto left = [&](const char* button) {
        return Control<QPushButton>(QString::fromLatin1(button)).x();
    };
    QCoreApplication::processEvents();
    EXPECT_LT(left("cmdOK"), left("cmdSelected"));
    EXPECT_LT(left("cmdSelected"), left("cmdCancel"));
    const int second = left("cmdSelected");
    Tabs().setCurrentIndex(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(left("cmdCancel"), second) << "Cancel takes the place of Replace All";
}

TEST_F(frmFindReplaceTest, TheKeysReachTheFirstFieldEnterAndEsc) {
    const struct {
        const char* command;
        const char* field;
    } rows[] = {{"mnuFind", "txtFindOnly"}, {"mnuReplace", "txtWhat"}, {"mnuMultiFile", "txtFindGlobal"}};
    for (const auto& [command, field] : rows) {
        OpenAt(command);
        EXPECT_EQ(form->focusWidget()->objectName(), QString::fromLatin1(field));
        EXPECT_TRUE(Control<QPushButton>(u"cmdOK"_s).isDefault());
        QTest::keyClick(form->focusWidget(), Qt::Key_Return);
        Box();
        QTest::keyClick(form, Qt::Key_Escape);
        EXPECT_FALSE(Loaded(u"frmFindReplace"_s));
    }
}

// --- Find
// ----------------------------------------------------------------------------------------------------

TEST_F(frmFindReplaceTest, FindsOneMatchAfterTheOther) {
    frame.SetMarked("|ab Ab ab");
    OpenAt("mnuFind");
    EXPECT_EQ(FindNext(u"ab"_s), u"[ab] Ab ab"_s);
    EXPECT_EQ(FindNext(u"ab"_s), u"ab [Ab] ab"_s);
    EXPECT_EQ(FindNext(u"ab"_s), u"ab Ab [ab]"_s);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    EXPECT_EQ(FindNext(u"ab"_s), u"ab Ab ab|"_s) << "the caret stays behind the last match";
    const Asked box = Box();
    EXPECT_EQ(box.text, u"Cannot Find \"ab\"."_s);
    EXPECT_EQ(box.title, QString());
    EXPECT_EQ(box.icon, MsgIcon::None);
    EXPECT_EQ(box.buttons, MsgButtons::OK);
    EXPECT_EQ(box.owner, form);
}

TEST_F(frmFindReplaceTest, FindsWithItsOptions) {
    struct {
        const char* marked;
        QString text;
        bool matchCase;
        bool wholeWord;
        const char* result;
    } const rows[] = {
        {"|abc Ab", u"Ab"_s, false, false, "[ab]c Ab"},
        {"|abc Ab", u"Ab"_s, true, false, "abc [Ab]"},
        {"|abc Ab ab", u"ab"_s, false, true, "abc [Ab] ab"},
        {"|abc Ab ab", u"ab"_s, true, true, "abc Ab [ab]"},
        {"[a]b ab", u"ab"_s, false, false, "ab [ab]"},
        {"ab|", u"ab"_s, false, false, "ab|"},
        {"|ab", u""_s, false, false, "|ab"},
    };
    OpenAt("mnuFind");
    for (const auto& row : rows) {
        frame.SetMarked(row.marked);
        Check(u"chkFindCase"_s, row.matchCase);
        Check(u"chkFindWW"_s, row.wholeWord);
        EXPECT_EQ(FindNext(row.text), QString::fromLatin1(row.result)) << row.marked;
    }
}

TEST_F(frmFindReplaceTest, WithoutADocumentFindTellsWhatTheLastSearchTold) {
    OpenAt("mnuFind");
    frame.CloseDocument();
    Press(u"cmdOK"_s);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    frame.NewDocument();
    FindNext(u"x"_s);
    EXPECT_EQ(Box().text, u"Cannot Find \"x\"."_s);
    frame.CloseDocument();
    Press(u"cmdOK"_s);
    EXPECT_EQ(Box().text, u"Cannot Find \"x\"."_s);
    // A form that is loaded anew starts from 0.
    Press(u"cmdCancel"_s);
    OpenAt("mnuFind");
    Press(u"cmdOK"_s);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmFindReplaceTest, APastedTextIsFoundInTheLineEndsOfTheDocument) {
    frame.SetMarked("|a\r\nb&#9731;");
    OpenAt("mnuFind");
    EXPECT_EQ(FindNext(u"a\nb☃"_s), u"[a\r\nb&#9731;]"_s);
}

TEST_F(frmFindReplaceTest, AMegabyteIsSearchedForWhole) {
    const QString same(1'000'000, u'a');
    frame.SetText(same + same + u"b"_s);
    frame.Box().SetSelStart(0);
    OpenAt("mnuFind");
    FindNext(same + u"b"_s);
    EXPECT_EQ(frame.Box().SelStart(), same.size());
    EXPECT_EQ(frame.Box().SelLength(), same.size() + 1);
}

// --- Replace
// -------------------------------------------------------------------------------------------------

TEST_F(frmFindReplaceTest, ReplaceTakesTheNextMatch) {
    OpenAt("mnuReplace");
    EXPECT_EQ(Replace("x|aba", u"A"_s, u"12"_s), u"x12|ba"_s);
    Press(u"cmdOK"_s);
    EXPECT_EQ(frame.Marked(), u"x12b12|"_s);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    Press(u"cmdOK"_s);
    EXPECT_EQ(frame.Marked(), u"x12b12|"_s);
    ExpectNoMore(u"A"_s);
    EXPECT_EQ(Replace("x|a", u"A"_s, u"1"_s), u"x1|"_s);
    Check(u"chkRepCS"_s, true);
    EXPECT_EQ(Replace("x|aA", u"A"_s, u"1"_s), u"xa1|"_s);
    EXPECT_EQ(Replace("x[a]a", u"a"_s, u"1"_s), u"xa1|"_s) << "from behind what is selected";
    EXPECT_EQ(Replace("x|a", u"a"_s, u""_s), u"x|"_s);
}

TEST_F(frmFindReplaceTest, ReplaceGivesTheTextTheKeys) {
    OpenAt("mnuReplace");
    Replace("x|a", u"a"_s, u"b"_s);
    EXPECT_EQ(frame.Window()->focusWidget(), &frame.Box());
    EXPECT_TRUE(QTest::qWaitForWindowActive(frame.Window()));
    EXPECT_TRUE(form->isVisible());
}

TEST_F(frmFindReplaceTest, AMatchAtTheStartCountsAsNone) {
    OpenAt("mnuReplace");
    EXPECT_EQ(Replace("|ab ab", u"ab"_s, u"x"_s), u"[ab] ab"_s);
    ExpectNoMore(u"ab"_s);
    Press(u"cmdOK"_s);
    EXPECT_EQ(frame.Marked(), u"ab x|"_s);
    EXPECT_EQ(Replace("|ab", u""_s, u"x"_s), u"|ab"_s);
    ExpectNoMore(QString());
}

TEST_F(frmFindReplaceTest, WithoutADocumentReplaceGoesByTheLastPosition) {
    OpenAt("mnuReplace");
    frame.CloseDocument();
    Press(u"cmdOK"_s);
    ExpectNoMore(QString());
    frame.NewDocument();
    Replace("x|a", u"a"_s, u"b"_s);
    frame.CloseDocument();
    Press(u"cmdOK"_s);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    Press(u"cmdSelected"_s);
    ExpectNoMore(u"a"_s);
}

// --- Replace All
// ---------------------------------------------------------------------------------------------

TEST_F(frmFindReplaceTest, ReplaceAllGoesFromTheTop) {
    struct {
        const char* marked;
        QString what;
        QString with;
        const char* result;
    } const rows[] = {
        {"xaxa|", u"a"_s, u"b"_s, "xbxb|"},
        {"xa|xa.", u"A"_s, u"bb"_s, "xbbxbb|."},
        {"|aaaa", u"aa"_s, u"b"_s, "[aa]aa"},
        {" aaaa|", u"aa"_s, u"b"_s, " b|aa"},
        {" aaaaa|", u"aa"_s, u"b"_s, " bab|"},
        {" aa|", u"a"_s, u""_s, " |a"},
        {"|aXa", u"a"_s, u"b"_s, "[a]Xa"},
        {" a[b]a", u"a"_s, u"b"_s, " bbb|"},
        {" a[b]a", u"z"_s, u"b"_s, " a[b]a"},
        {" [ab]a", u""_s, u"b"_s, " [ab]a"},
        {"|", u"a"_s, u"b"_s, "|"},
        {" a|", u"a"_s, u"aa"_s, " aa|"},
        {" \xE9\xC9 \xE9|", u"é"_s, u"e"_s, " e\xC9 e|"},
    };
    OpenAt("mnuReplace");
    for (const auto& row : rows) {
        EXPECT_EQ(ReplaceAll(row.marked, row.what, row.with), QString::fromLatin1(row.result)) << row.marked;
        ExpectNoMore(row.what);
    }
    Check(u"chkRepCS"_s, true);
    EXPECT_EQ(ReplaceAll(" aA a|", u"a"_s, u"b"_s), u" bA b|"_s);
}

TEST_F(frmFindReplaceTest, ReplaceAllInASelectionFindsAllOfIt) {
    OpenAt("mnuReplace");
    EXPECT_EQ(ReplaceAll("aa[aaaa]aa", u"aa"_s, u"b"_s), u"aabb|aa"_s);
    const Asked box = Box();
    EXPECT_EQ(box.text, u"Finished!"_s);
    EXPECT_EQ(box.icon, MsgIcon::Information);
    EXPECT_EQ(ReplaceAll("x[aAa]", u"a"_s, u"b"_s), u"xbbb|"_s);
    Check(u"chkRepCS"_s, true);
    EXPECT_EQ(ReplaceAll("x[aAa]", u"a"_s, u"b"_s), u"xbAb|"_s);
}

TEST_F(frmFindReplaceTest, ReplaceAllIsOneUndoStepAndPaintsOnce) {
    OpenAt("mnuReplace");
    const QString text = u" <b>a</b>\r\n"_s.repeated(5000);
    frame.SetText(text);
    frame.Box().EmptyUndoBuffer();
    QCoreApplication::processEvents();

    class Paints final : public QObject {
      public:
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override {
            count += event->type() == QEvent::Paint;
            return false;
        }
    } paints;
    frame.Box().viewport()->installEventFilter(&paints);
    int changes = 0;
    QObject::connect(&frame.Box(), &RichTextBox::Change, &frame.Box(), [&] { ++changes; });
    Fill(u"txtWhat"_s, u"b>"_s);
    Fill(u"txtWith"_s, u"strong>"_s);
    Press(u"cmdSelected"_s);
    EXPECT_EQ(paints.count, 0);
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
    EXPECT_LE(paints.count, 2);
    EXPECT_EQ(frame.Box().Text(), QString(text).replace(u"b>"_s, u"strong>"_s));
    frame.Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(frame.Box().Text(), text);
    EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0);
    frame.Box().viewport()->removeEventFilter(&paints);
}

// --- Multifile
// -----------------------------------------------------------------------------------------------

TEST_F(frmFindReplaceTest, FilesAreAddedAtTheEndOfTheList) {
    OpenAt("mnuMultiFile");
    frame.prompts.openAnswers = {FileAnswer{u"/site/"_s, {u"b.htm"_s, u"a.htm"_s}}};
    Press(u"cmdGetFle"_s);
    EXPECT_TRUE(frame.prompts.asked[0].request.multiSelect);
    EXPECT_EQ(frame.prompts.asked[0].request.filter, u"All Files (*.*)|*.*|"_s);
    frame.prompts.openAnswers = {ScriptedPrompts::Cancelled(), ScriptedPrompts::Picked(u"/site/b.htm"_s)};
    Press(u"cmdGetFle"_s);
    Press(u"cmdGetFle"_s);
    EXPECT_THAT(Texts(u"List1"_s), ElementsAre(u"/site/b.htm"_s, u"/site/a.htm"_s, u"/site/b.htm"_s));
    EXPECT_THAT(frame.prompts.Messages(), IsEmpty());
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(u"/"_s + QString(25000, u'x'))};
    Press(u"cmdGetFle"_s);
    EXPECT_THAT(frame.prompts.Messages(), ElementsAre(u"Error 12291 occurred"_s));
    EXPECT_EQ(frame.prompts.asked.last().title, u"The Tarnwick"_s);
    EXPECT_EQ(frame.prompts.asked.last().icon, MsgIcon::None);
    EXPECT_EQ(Texts(u"List1"_s).size(), 3);
}

TEST_F(frmFindReplaceTest, ProjectsAreNamedAndDoNothing) {
    frame.Store().Write(Keys::ProjFile(1), u"one"_s);
    frame.Store().Write(Keys::ProjFile(99), u"two"_s);
    OpenAt("mnuMultiFile");
    auto& combo = Control<QComboBox>(u"Combo1"_s);
    ASSERT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.itemText(0), u"one"_s);
    EXPECT_EQ(combo.itemText(1), u"two"_s);
    EXPECT_EQ(combo.currentIndex(), -1);
    combo.setCurrentIndex(1);
    EXPECT_THAT(Texts(u"List1"_s), IsEmpty());
}

TEST_F(frmFindReplaceTest, EveryFileIsWrittenAndToldOf) {
    OpenAt("mnuMultiFile");
    const QString one = TestFolder() + u"/1.htm"_s;
    const QString two = TestFolder() + u"/2.htm"_s;
    WriteFile(one, "aAa");
    WriteFile(two, "x");
    frame.prompts.openAnswers = {ScriptedPrompts::Picked(one), ScriptedPrompts::Picked(two)};
    Press(u"cmdGetFle"_s);
    Press(u"cmdGetFle"_s);
    frame.prompts.asked.clear();
    Fill(u"txtFindGlobal"_s, u"a"_s);
    Fill(u"txtReplaceGlobal"_s, u"b"_s);
    Press(u"cmdOK"_s);
    const Asked box = Box();
    EXPECT_EQ(box.text, u"Finished!"_s);
    EXPECT_EQ(box.title, QString());
    EXPECT_EQ(box.icon, MsgIcon::Information);
    EXPECT_EQ(ReadFile(one), "bbb\r\n");
    EXPECT_EQ(ReadFile(two), "x\r\n");
    EXPECT_EQ(frame.statuses, (QStringList{u"File 1 of 2"_s, u"File 2 of 2"_s, QString()}));
    EXPECT_EQ(Control<QProgressBar>(u"ProgressBar1"_s).value(), 0);
    EXPECT_EQ(Texts(u"List1"_s).size(), 2);
    EXPECT_TRUE(form->isVisible());

    WriteFile(one, "aAa");
    Check(u"chkGlobalCS"_s, true);
    Press(u"cmdOK"_s);
    EXPECT_EQ(ReadFile(one), "bAb\r\n");
    EXPECT_EQ(ReadFile(two), "x\r\n\r\n");
    EXPECT_EQ(frame.Box().Text(), QString()) << "no document takes part";
}

TEST_F(frmFindReplaceTest, FilesThatCannotBeWrittenAreToldOfBehindTheBox) {
    OpenAt("mnuMultiFile");
    const QString written = TestFolder() + u"/1.htm"_s;
    WriteFile(written, "a");
    for (const QString& path : {written, TestFolder() + u"/gone/2.htm"_s, TestFolder() + u"/gone/3.htm"_s}) {
        frame.prompts.openAnswers = {ScriptedPrompts::Picked(path)};
        Press(u"cmdGetFle"_s);
    }
    for (const bool told : {true, false}) {
        frame.Store().WriteFlag(Keys::TellFailedSaves, told);
        frame.statuses.clear();
        frame.prompts.asked.clear();
        QStringList before;
        frame.prompts.whileAsked = [&] { before = frame.statuses; };
        Press(u"cmdOK"_s);
        EXPECT_THAT(frame.prompts.Messages(), ElementsAre(u"Finished!"_s));
        EXPECT_EQ(before, (QStringList{u"File 1 of 3"_s, u"File 2 of 3"_s, u"File 3 of 3"_s, QString()}));
        EXPECT_EQ(frame.statuses.sliced(before.size()),
                  told ? QStringList{u"Could not save 2 files, the first 2.htm: No such file or directory"_s}
                       : QStringList());
    }
    EXPECT_EQ(ReadFile(written), "a\r\n\r\n");
}

TEST_F(frmFindReplaceTest, AnEmptyListIsFinishedAtOnce) {
    OpenAt("mnuMultiFile");
    frame.CloseDocument();
    Press(u"cmdOK"_s);
    EXPECT_EQ(Box().text, u"Finished!"_s);
}

} // namespace
