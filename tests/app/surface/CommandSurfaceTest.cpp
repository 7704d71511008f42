// Menus, toolbar and keys in the program's own frame: what is there, what waits, and what happens with no
// document open.
#include "app/run/frmSplash.h"
#include "app/run/ProgramState.h"
#include "app/run/Startup.h"
#include "app/surface/frmTools.h"
#include "app/surface/MenuEntry.h"
#include "app/surface/MenuTree.h"
#include "app/surface/NewEntries.h"
#include "app/surface/Toolbar.h"
#include "app/surface/UserButtons.h"
#include "app/window/frmTarnwick.h"
#include "app/window/StatusPanels.h"
#include "builders/page/frmFont.h"
#include "editor/frame/Document.h"
#include "editor/typing/UserButtonTexts.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "support/FreshUser.h"
#include "support/ScriptedPrompts.h"
#include "support/Text.h"

#include <gtest/gtest.h>
#include <QAction>
#include <QApplication>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTimer>
#include <QtTest/QTest>

namespace {

QString Text(const char* text) {
    return QString::fromLatin1(text);
}

class CommandSurfaceTest : public testing::Test {
  protected:
    CommandSurfaceTest() {
        FreshUser();
        frame = std::make_unique<frmTarnwick>(store, prompts);
        frame->show();
        frame->activateWindow();
        QCoreApplication::processEvents();
    }

    void Run(const QString& name) {
        frame->Commands().Run(name);
        QCoreApplication::processEvents();
    }
    /// Runs a command with no document open, tells what came of it, and takes that away again.
    QString RunAlone(const QString& name) {
        QStringList happened;
        // A modal dialog ends the command only when it goes.
        QTimer::singleShot(0, frame.get(), [&happened] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                happened << Text("waits for ") + modal->objectName();
                modal->close();
            }
        });
        Run(name);
        for (const Asked& asked : prompts.asked) {
            if (asked.kind == Asked::Message)
                happened << Text("says ") + asked.text;
            else
                happened << Text("asks ") + (asked.kind == Asked::Open ? Text("for a file") : asked.text);
        }
        if (prompts.beeps > 0)
            happened << Text("beeps");
        for (int i = 1; i < frame->LoadedForms().Count(); ++i)
            happened << Text("loads ") + frame->LoadedForms().At(i)->objectName();
        if (!Panel3().isEmpty())
            happened << Text("shows ") + Panel3();
        if (!frame->isVisible())
            happened << Text("ends");
        prompts.asked.clear();
        frame = std::make_unique<frmTarnwick>(store, prompts);
        frame->show();
        return happened.join(Text(", "));
    }
    RichTextBox& NewDocument() {
        frame->NewDocument();
        RichTextBox& text = frame->ActiveForm()->txtInput();
        text.SetFocus();
        QCoreApplication::processEvents();
        return text;
    }
    QAction* Button(const char* key) { return frame->findChild<QAction*>(Text("tb_") + Text(key)); }
    QString Panel3() { return frame->findChild<StatusBar*>()->Panel3(); }
    /// Every name of both tables.
    static QStringList AllNames() {
        QStringList names;
        for (const MenuRow& row : MenuTree())
            if (row.kind == MenuRow::Entry)
                names << Text(row.name);
        for (const ToolbarRow& row : ToolbarTable())
            names << Text("tb_") + Text(row.key);
        return names;
    }

    Settings store;
    ScriptedPrompts prompts;
    std::unique_ptr<frmTarnwick> frame;
};

// Every entry and every button does something.
TEST_F(CommandSurfaceTest, NoneWaitsForItsCommand) {
    QStringList disabled;
    QStringList without;
    for (const QString& name : AllNames()) {
        const auto* action = frame->findChild<QAction*>(name);
        ASSERT_TRUE(action) << name.toStdString();
        // A hidden entry counts as disabled for as long as it is hidden.
        if (action->isVisible() && !action->isEnabled())
            disabled << name;
        if (!frame->Commands().Has(name))
            without << name;
    }
    EXPECT_EQ(without, QStringList());
    EXPECT_EQ(disabled, QStringList());
}

TEST_F(CommandSurfaceTest, NoCommandIsWithoutAnEntry) {
    const QStringList entries = AllNames();
    for (const QString& name : frame->Commands().Names())
        EXPECT_TRUE(entries.contains(name)) << name.toStdString();
}

// With no document open a command of the text is silent: no message, no question whose answer could not be
// used, no window, no document. What needs no document does its work.
TEST_F(CommandSurfaceTest, WithoutADocumentEveryCommandIsSilentOrNeedsNone) {
    const QString lost = Text("says The file you selected was not found.\r"
                              "Please check to see if it was deleted or moved.");
    const QString failed = Text("says An error occured, try again!, says Finished!");
    const QString noLinks = Text(
        "says An error occurred - #91\r\rThis feature requires a document to be open.\r\r"
        "The error could be caused by an incomplete HTML Tag within the document.\r\r"
        "If the link list shows entries, then the list should be complete and you may ignore this message."
        "  Otherwise, scan the document for HTML Tag errors and try again.");
    QHash<QString, QString> needNone = {
        {Text("mnuNew"), Text("loads frmTemplate, shows Line 1")},
        {Text("tb_new"), Text("loads frmTemplate, shows Line 9")},
        {Text("mnuOpen"), Text("asks for a file")},
        {Text("tb_open"), Text("asks for a file")},
        {Text("mnuExit"), Text("ends")},
        {Text("mnuWebBrowser"), Text("waits for frmExternal")},
        {Text("mnuMainHelp"), Text("shows The help file tarnwick.chm is not installed.")},
        {Text("mnuAbout"), Text("loads frmSplash")},
        {Text("tb_ftp"), Text("loads frmFTP")},
        // The report of the spell check comes all the same, with the counts of the last one.
        {Text("mnuSpellCheck"), Text("says Spellcheck complete!\n 0 Words Checked\n 0 Words Replaced")},
        {Text("tb_spell"), Text("says Spellcheck complete!\n 0 Words Checked\n 0 Words Replaced")},
        {Text("mnuPrint"), Text("asks Number of copies:, says There is nothing to print.")},
        {Text("tb_print"), Text("asks Number of copies:, says There is nothing to print.")},
        // Saving a template is the one command of a text that says what it lacks.
        {Text("mnuSetUserTemplate"), Text("says Load document first.")},
        {Text("mnuFind"), Text("loads frmFindReplace")},
        {Text("mnuFindAgain"), Text("loads frmFindReplace")},
        {Text("mnuReplace"), Text("loads frmFindReplace")},
        {Text("mnuMultiFile"), Text("loads frmFindReplace")},
        {Text("tb_find"), Text("loads frmFindReplace")},
        {Text("tb_object"), Text("loads frmProject")},
        {Text("mnuLink"), Text("loads frmLinks")},
        {Text("tb_link"), Text("loads frmLinks")},
        {Text("mnuImage"), Text("loads frmGraphicLink")},
        {Text("tb_image"), Text("loads frmGraphicLink")},
        {Text("mnuEmbed"), Text("loads frmEmbed")},
        {Text("tb_embed"), Text("loads frmEmbed")},
        {Text("mnuHR"), Text("loads frmHRInput")},
        {Text("tb_hr"), Text("loads frmHRInput")},
        {Text("tb_abc"), Text("loads frmFont")},
        {Text("tb_body"), Text("loads frmBody")},
        {Text("tb_java"), Text("loads frmJava")},
        {Text("tb_java2"), Text("loads frmParam")},
        {Text("tb_split"), Text("loads frmMulti")},
        {Text("tb_table"), Text("loads frmTable")},
        {Text("tb_rectangle"), Text("loads frmSpacer")},
        {Text("tb_CSS"), Text("loads frmCSS")},
        {Text("tb_Layer"), Text("loads frmDHTML")},
        // These say by their boxes that there is nothing to work on.
        {Text("mnuConvertFromMac"), failed},
        {Text("mnuConvertToMac"), failed},
        {Text("mnuConvertFromUNIX"), failed},
        {Text("mnuConvertToUNIX"), failed},
        {Text("mnuShowLinks"), noLinks},
        // Makes a document of its own, once its first box was answered by OK.
        {Text("mnuWizard"),
         Text("says Welcome to Webpage Wizard!This tool will take you through a few steps  "
              "and create a basic webpage based on your input.")},
        {Text("tb_form"), Text("loads frmForm")},
        {Text("tb_frame"), Text("loads VisFrame")},
        // Entries of the recent files that no path has filled.
        {Text("mnuFileArray_0"), lost},
        {Text("mnuFileArray_1"), lost},
        {Text("mnuFileArray_2"), lost},
        {Text("mnuFileArray_3"), lost},
        {Text("mnuFileArray_4"), lost},
        {Text("mnuFileArray_5"), lost},
        {Text("mnuFileArray_6"), lost},
        {Text("mnuFileArray_7"), lost},
    };
    const auto newEntries = FormsWithNewEntry();
    const auto newButtons = FormsWithNewButton();
    for (const FormRow& row : newEntries)
        needNone.insert(Text(row.reach.entry.name), Text("loads ") + Text(row.name));
    for (const FormRow& row : newButtons)
        needNone.insert(Text("tb_") + Text(row.reach.button.key), Text("loads ") + Text(row.name));
    const auto added = static_cast<qsizetype>(newEntries.size() + newButtons.size());
    prompts.openAnswers = {ScriptedPrompts::Cancelled(), ScriptedPrompts::Cancelled()};
    prompts.inputAnswers = {Text("1"), Text("1")};
    prompts.messageAnswers = {MsgAnswer::Cancel};
    int silent = 0;
    for (const QString& name : AllNames()) {
        const QString happened = RunAlone(name);
        EXPECT_EQ(happened, needNone.value(name)) << name.toStdString();
        silent += happened.isEmpty() ? 1 : 0;
    }
    EXPECT_EQ(silent, 124 + 47 + added - needNone.size());
}

TEST_F(CommandSurfaceTest, WithoutADocumentADialogComesUpAllTheSame) {
    const char* const rows[][2] = {
        {"mnuLink", "frmLinks"},     {"mnuImage", "frmGraphicLink"}, {"mnuEmbed", "frmEmbed"},
        {"mnuHR", "frmHRInput"},     {"tb_hr", "frmHRInput"},        {"tb_abc", "frmFont"},
        {"tb_body", "frmBody"},      {"tb_java", "frmJava"},         {"tb_java2", "frmParam"},
        {"tb_link", "frmLinks"},     {"tb_image", "frmGraphicLink"}, {"tb_embed", "frmEmbed"},
        {"tb_split", "frmMulti"},    {"tb_rectangle", "frmSpacer"},  {"mnuFind", "frmFindReplace"},
        {"tb_object", "frmProject"}, {"tb_CSS", "frmCSS"},           {"tb_Layer", "frmDHTML"},
        {"tb_form", "frmForm"},      {"tb_frame", "VisFrame"},
    };
    for (const auto& row : rows) {
        Run(Text(row[0]));
        QWidget* form = frame->LoadedForms().Find(Text(row[1]));
        ASSERT_TRUE(form) << row[0];
        EXPECT_TRUE(form->isVisible()) << row[0];
        EXPECT_FALSE(form->isModal()) << row[0];
        EXPECT_EQ(form->parentWidget(), frame.get()) << row[0];
        frame->LoadedForms().Unload(*form);
    }
    EXPECT_TRUE(prompts.asked.isEmpty());
}

TEST_F(CommandSurfaceTest, EveryShortcutRunsItsEntryFromWithinTheText) {
    const char* const rows[][2] = {
        {"Ctrl+N", "mnuNew"},       {"Ctrl+O", "mnuOpen"},         {"Ctrl+S", "mnuSave"},
        {"Ctrl+W", "mnuClose"},     {"Ctrl+P", "mnuPrint"},        {"Ctrl+D", "mnuEditTag"},
        {"Ctrl+A", "mnuSelectAll"}, {"Ctrl+F12", "mnuSpellCheck"}, {"Ctrl+F", "mnuFind"},
        {"F3", "mnuFindAgain"},     {"Ctrl+R", "mnuReplace"},      {"Ctrl+B", "mnuBold"},
        {"Ctrl+I", "mnuItalic"},    {"Ctrl+U", "mnuUnderline"},    {"Ctrl+T", "mnuReload"},
        {"Ctrl+L", "mnuLink"},      {"Ctrl+Q", "mnuImage"},        {"Ctrl+E", "mnuEmbed"},
        {"Ctrl+J", "mnuCenter"},    {"Ctrl+G", "mnuBreak"},        {"Ctrl+H", "mnuHR"},
        {"Shift+F5", "mnuCascade"}, {"Shift+F4", "mnuTile"},
    };
    RichTextBox& text = NewDocument();
    ASSERT_TRUE(QTest::qWaitFor([&] { return text.hasFocus(); }));
    text.SetText(Text("text"));
    QStringList ran;
    QStringList expected;
    for (const auto& row : rows) {
        const QString name = Text(row[1]);
        frame->Commands().Set(name, [&ran, name] { ran << name; });
        MenuEntry(*frame, name)->setEnabled(true);
    }
    for (const auto& row : rows) {
        const int key = QKeySequence(Text(row[0]))[0].toCombined();
        QTest::keyClick(&text, Qt::Key(key & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
        expected << Text(row[1]);
        EXPECT_EQ(ran, expected) << row[0];
    }
    EXPECT_EQ(text.Text(), Text("text"));
}

TEST_F(CommandSurfaceTest, TheKeysThatEditCaptionsShowAreTheTextsOwn) {
    RichTextBox& text = NewDocument();
    ASSERT_TRUE(QTest::qWaitFor([&] { return text.hasFocus(); }));
    // The entries are switched off, as they are before their menu drops for the first time.
    for (const char* entry : {"mEdit_0", "mEdit_2", "mEdit_3", "mEdit_4", "mEdit_5"})
        MenuEntry(*frame, Text(entry))->setEnabled(false);
    text.SetText(Text("abc"));
    QTest::keyClick(&text, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(text.SelText(), Text("abc"));
    QTest::keyClick(&text, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&text, Qt::Key_Delete);
    EXPECT_EQ(text.Text(), QString());
    QTest::keyClick(&text, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&text, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text.Text(), Text("abcabc"));
    QTest::keyClick(&text, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text.Text(), Text("abc"));
    QTest::keyClick(&text, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&text, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(text.Text(), QString());
}

TEST_F(CommandSurfaceTest, AKeyWhoseEntryWaitsTypesNothing) {
    RichTextBox& text = NewDocument();
    ASSERT_TRUE(QTest::qWaitFor([&] { return text.hasFocus(); }));
    QTest::keyClick(&text, Qt::Key_R, Qt::ControlModifier);
    QTest::keyClick(&text, Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(text.Text(), QString());
}

TEST_F(CommandSurfaceTest, MenuToolbarAndUserButtonWriteIntoTheActiveDocument) {
    RichTextBox& text = NewDocument();
    MenuEntry(*frame, Text("mnuBold"))->trigger();
    Button("h1")->trigger();
    frame->State<UserButtonTexts>().FirstBut[0] = Text("<DIV>");
    frame->State<UserButtonTexts>().SecondBut[0] = Text("</DIV>");
    frame->findChild<QPushButton*>(Text("Command1_0"))->click();
    EXPECT_EQ(text.Text(), Text("<B><H1><DIV></DIV></H1></B>"));
}

TEST_F(CommandSurfaceTest, ReloadShowsThePageInTheBrowserAndReadsNoFile) {
    RichTextBox& text = NewDocument();
    text.SetText(Text("changed"));
    prompts.saveAnswers = {ScriptedPrompts::Cancelled(), ScriptedPrompts::Cancelled()};
    MenuEntry(*frame, Text("mnuReload"))->trigger();
    Button("preview")->trigger();
    EXPECT_EQ(text.Text(), Text("changed"));
    // Both begin with the save, which asks for a name here.
    ASSERT_EQ(prompts.asked.size(), 2);
    EXPECT_EQ(prompts.asked[0].kind, Asked::Save);
    EXPECT_EQ(prompts.asked[1].kind, Asked::Save);
}

TEST_F(CommandSurfaceTest, TheNewButtonGivesASkeletonAndTheMenuABlankPage) {
    Button("new")->trigger();
    ASSERT_TRUE(frame->ActiveForm());
    EXPECT_TRUE(frame->ActiveForm()->txtInput().Text().contains(Text("<HTML>")));
    EXPECT_FALSE(frame->ActiveForm()->Modified());
    // Nothing that settles later makes it a changed one.
    QCoreApplication::processEvents();
    EXPECT_FALSE(frame->ActiveForm()->Modified());
    MenuEntry(*frame, Text("mnuNew"))->trigger();
    EXPECT_EQ(frame->ActiveForm()->txtInput().Text(), QString());
    EXPECT_TRUE(prompts.asked.isEmpty());
}

TEST_F(CommandSurfaceTest, TheNewButtonGivesTheUsersTemplateWhereThereIsOne) {
    frame->State<ProgramState>().UserTemplate = Text("<MINE>");
    Button("new")->trigger();
    ASSERT_TRUE(frame->ActiveForm());
    EXPECT_EQ(frame->ActiveForm()->txtInput().Text(), Text("<MINE>"));
    QCoreApplication::processEvents();
    EXPECT_FALSE(frame->ActiveForm()->Modified());
    EXPECT_TRUE(prompts.asked.isEmpty());
}

TEST_F(CommandSurfaceTest, TheHelpKeyWorksFromADialogToo) {
    frame->Commands().Run(Text("tb_abc"));
    QWidget* dialog = frame->LoadedForms().Find<frmFont>();
    ASSERT_TRUE(dialog);
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return dialog->isActiveWindow(); }));
    QTest::keyClick(dialog, Qt::Key_F1);
    EXPECT_EQ(Panel3(), Text("The help file tarnwick.chm is not installed."));
}

TEST_F(CommandSurfaceTest, AnEditedUserButtonIsStoredUnderItsIndexWhenTheProgramStops) {
    auto* tabs = frame->findChild<QTabBar*>(Text("TabStrip1"));
    frame->findChild<UserButtons*>()->show();
    tabs->setCurrentIndex(1);
    QTest::mousePress(frame->findChild<QPushButton*>(Text("Command1_17")), Qt::RightButton);
    QWidget* editor = frame->LoadedForms().Find<frmTools>();
    ASSERT_TRUE(editor);
    const char* const fields[][2] = {
        {"txtName", "Box"}, {"txtFirst", "<DIV>\"; x=1, 2"}, {"txtSecond", " </DIV> "}};
    for (const auto& field : fields)
        editor->findChild<QLineEdit*>(Text(field[0]))->setText(Text(field[1]));
    QTest::mouseClick(editor->findChild<QPushButton*>(Text("cmdOK")), Qt::LeftButton);
    EXPECT_EQ(store.Read(Keys::ButCap(17)), QString());
    frame->close();
    store.Sync();
    const Settings read;
    EXPECT_EQ(read.Read(Keys::ButCap(17)), Text("Box"));
    EXPECT_EQ(read.Read(Keys::FirstBut(17)), Text("<DIV>\"; x=1, 2"));
    EXPECT_EQ(read.Read(Keys::SecondBut(17)), Text(" </DIV> "));
    EXPECT_EQ(read.Read(Keys::FirstBut(16)), QString());
    EXPECT_EQ(read.Read(Keys::FirstBut(18)), QString());
}

TEST_F(CommandSurfaceTest, TheHelpKeyAndTheHelpEntrySayWhatIsMissing) {
    MenuEntry(*frame, Text("mnuMainHelp"))->trigger();
    EXPECT_EQ(Panel3(), Text("The help file tarnwick.chm is not installed."));
    frame->SetStatusPanel(QString());
    RichTextBox& text = NewDocument();
    ASSERT_TRUE(QTest::qWaitFor([&] { return text.hasFocus(); }));
    QTest::keyClick(&text, Qt::Key_F1);
    EXPECT_EQ(Panel3(), Text("The help file tarnwick.chm is not installed."));
}

TEST_F(CommandSurfaceTest, AboutIsTheStartScreenWithAMessage) {
    const auto about = [&] { return frame->LoadedForms().Find<frmSplash>(); };
    MenuEntry(*frame, Text("mnuAbout"))->trigger();
    QWidget* box = about();
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->isVisible());
    EXPECT_FALSE(box->isModal());
    EXPECT_FALSE(box->parentWidget());
    EXPECT_EQ(box->findChild<QLabel*>(Text("lblVersion"))->text(), Text("Version 3.0.6"));
    EXPECT_EQ(box->findChild<QLabel*>(Text("lblMessage"))->text(),
              Text("See help file for Copyright,\nLicense and Warranty information."));
    QTest::mouseClick(box->findChild<QLabel*>(Text("lblMessage")), Qt::LeftButton);
    EXPECT_FALSE(about());
    // Any resize of the frame closes it as well.
    MenuEntry(*frame, Text("mnuAbout"))->trigger();
    ASSERT_TRUE(about());
    frame->resize(frame->width() + 20, frame->height());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !about(); }));
}

TEST_F(CommandSurfaceTest, TheUserStripShowsOnlyWhenItsSettingIsOne) {
    for (const char* value : {"1", "0", "2", "True", ""}) {
        FreshUser();
        {
            Settings written;
            written.Write(Keys::ShowUserButtons, Text(value));
            written.Write(Keys::FirstTimeAgain, Text("1"));
            written.Write(Keys::ButCap(17), Text("Box"));
            written.Write(Keys::FirstBut(17), Text("<DIV>"));
        }
        Settings settings;
        frmTarnwick started(settings, prompts);
        Startup(started, QString(), [] { return false; }).Run();
        const auto* strip = started.findChild<UserButtons*>(Text("Picture2"));
        EXPECT_EQ(strip->isVisibleTo(&started), Text(value) == Text("1")) << value;
        EXPECT_EQ(strip->Caption(17), Text("Box"));
        EXPECT_EQ(started.State<UserButtonTexts>().FirstBut[17], Text("<DIV>"));
    }
}

} // namespace
