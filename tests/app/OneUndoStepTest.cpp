// One act of the user is one undo step: every command, dialog, user button and key that changes a page.
#include "app/Acts.h"

#include "app/documents/OpenDocument.h"
#include "app/options/frmExternal.h"
#include "app/surface/NewEntries.h"
#include "app/surface/UserButtons.h"
#include "editor/frame/Forms.h"
#include "editor/views/Modes.h"
#include "support/FakeWebControls.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>

namespace {

using namespace Qt::StringLiterals;

const QString withCaret = u"<HEAD>\r\n<BODY BGCOLOR=#FFFFFF>\r\n<B>one</B> | two {three} \\four\r\n</BODY>"_s;
const QString withSelection =
    u"<HEAD>\r\n<BODY BGCOLOR=#FFFFFF>\r\n[<B>one</B> two {three} \\\r\n]four</BODY>"_s;

class OneUndoStep : public ActsTest {
  protected:
    /// The commands that leave a page as it was, of all but those that take it or the frame away. Each of the
    /// others is held to one step.
    QStringList Idle(const QString& marked) {
        QStringList names = run.frame->Commands().Names();
        names.removeAll(u"mnuExit"_s);
        names.removeAll(u"mnuClose"_s);
        // There is no way back from the one; the other works on a page of its own.
        names.removeAll(u"mnuRemoveTags"_s);
        names.removeAll(u"mnuWizard"_s);
        names.sort();
        QStringList idle;
        for (const QString& name : names) {
            SCOPED_TRACE(name.toStdString());
            run.New();
            Put(marked);
            // Pasting has something to paste, whatever ran before.
            QGuiApplication::clipboard()->setText(u"pasted"_s);
            if (!ChangesInOneStep([&] { Run(name); }))
                idle << name;
            CloseAll();
        }
        return idle;
    }
    /// Brings a tag dialog up on a page, fills one field and presses the button that writes.
    void ExpectDialog(const char* command, const char* form, const char* field,
                      const char* button = "cmdOK") {
        for (const QString& marked : {withCaret, withSelection})
            for (const bool colored : {true, false}) {
                SCOPED_TRACE(colored);
                Settings().WriteFlag(Keys::ColoredTags, colored);
                Put(marked);
                Run(QString::fromLatin1(command));
                Form(form).findChild<QLineEdit*>(QString::fromLatin1(field))->setText(u"x"_s);
                ExpectOneStep(command, [&] { Press(Form(form), button); });
            }
    }
    void ExpectOptions(const char* field, const QString& value) {
        auto& options = run.frame->LoadedForms().Load<frmExternal>(*run.frame);
        options.findChild<QTabBar*>(u"TabStrip1"_s)->setCurrentIndex(1);
        ASSERT_TRUE(options.findChild<QComboBox*>(QString::fromLatin1(field)));
        options.findChild<QComboBox*>(QString::fromLatin1(field))->setEditText(value);
        ExpectOneStep("Options", [&] { Press(options, "Command2"); });
    }
};

const QStringList designedIdle = {
    u"mEdit_0"_s,
    u"mEdit_3"_s,
    u"mnuAbout"_s,
    u"mnuArrangeIcons"_s,
    u"mnuCascade"_s,
    u"mnuEditTag"_s,
    u"mnuEmbed"_s,
    u"mnuFileArray_0"_s,
    u"mnuFileArray_1"_s,
    u"mnuFileArray_2"_s,
    u"mnuFileArray_3"_s,
    u"mnuFileArray_4"_s,
    u"mnuFileArray_5"_s,
    u"mnuFileArray_6"_s,
    u"mnuFileArray_7"_s,
    u"mnuFind"_s,
    u"mnuFindAgain"_s,
    u"mnuHR"_s,
    u"mnuImage"_s,
    u"mnuLink"_s,
    u"mnuMainHelp"_s,
    u"mnuMultiFile"_s,
    u"mnuNew"_s,
    u"mnuOpen"_s,
    u"mnuPrint"_s,
    u"mnuReload"_s,
    u"mnuReplace"_s,
    u"mnuSave"_s,
    u"mnuSaveAs"_s,
    u"mnuSelectAll"_s,
    u"mnuSetUserTemplate"_s,
    u"mnuShowLinks"_s,
    u"mnuSpellCheck"_s,
    u"mnuTile"_s,
    u"mnuWebBrowser"_s,
    u"tb_CSS"_s,
    u"tb_Layer"_s,
    u"tb_abc"_s,
    u"tb_body"_s,
    u"tb_copy"_s,
    u"tb_embed"_s,
    u"tb_find"_s,
    u"tb_form"_s,
    u"tb_frame"_s,
    u"tb_ftp"_s,
    u"tb_hr"_s,
    u"tb_image"_s,
    u"tb_java"_s,
    u"tb_java2"_s,
    u"tb_link"_s,
    u"tb_new"_s,
    u"tb_object"_s,
    u"tb_preview"_s,
    u"tb_rectangle"_s,
    u"tb_split"_s,
    u"tb_table"_s,
    u"tb_undo"_s,
};

/// A form that came later only comes up, too.
QStringList AlwaysIdle() {
    QStringList idle = designedIdle;
    for (const FormRow& row : FormsWithNewEntry())
        idle << QString::fromLatin1(row.reach.entry.name);
    for (const FormRow& row : FormsWithNewButton())
        idle << u"tb_"_s + QString::fromLatin1(row.reach.button.key);
    idle.sort();
    return idle;
}

// Idle besides: what takes a selection away, and lists that come up as dialogs without one.
const QStringList idleWithoutSelection = {u"mnuAddBreaks"_s, u"mnuAddLi"_s, u"mEdit_2"_s,
                                          u"mEdit_5"_s,      u"mnuDef"_s,   u"tb_cut"_s,
                                          u"tb_delete"_s,    u"tb_dots"_s,  u"tb_onetwothree"_s};

TEST_F(OneUndoStep, EveryCommandAtTheCaret) {
    QStringList idle = AlwaysIdle() + idleWithoutSelection;
    idle.sort();
    EXPECT_EQ(Idle(withCaret), idle);
}

TEST_F(OneUndoStep, EveryCommandOverASelection) {
    EXPECT_EQ(Idle(withSelection), AlwaysIdle());
}

TEST_F(OneUndoStep, EveryCommandOverASelectionWithoutColors) {
    Settings().WriteFlag(Keys::ColoredTags, false);
    EXPECT_EQ(Idle(withSelection), AlwaysIdle());
}

TEST_F(OneUndoStep, ATemplateOfTheUsersOwn) {
    for (const QString& text : {u"<P>\r\nmine {a}"_s, QString()}) {
        Put(withCaret);
        run.Program().UserTemplate = text;
        ExpectOneStep("mnuUserTemplate", [&] { Run(u"mnuUserTemplate"_s); });
    }
}

// A page that is new with its skeleton: undo ends with the empty page it began as.
TEST_F(OneUndoStep, TheSkeletonOfANewPage) {
    Run(u"tb_new"_s);
    EXPECT_NE(Box().Text(), QString());
    Box().Send(RichTextBox::Message::Undo);
    EXPECT_EQ(Box().Text(), QString());
    EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 0);
}

TEST_F(OneUndoStep, TheOKOfEveryDialog) {
    ExpectDialog("mnuLink", "frmLinks", "txtURL");
    ExpectDialog("mnuImage", "frmGraphicLink", "txtURL");
    ExpectDialog("mnuEmbed", "frmEmbed", "txtURL");
    ExpectDialog("mnuHR", "frmHRInput", "txtWidthInput");
    ExpectDialog("tb_abc", "frmFont", "txtFontFace");
    ExpectDialog("tb_body", "frmBody", "txtBG");
    ExpectDialog("tb_java", "frmJava", "txtCode");
    ExpectDialog("tb_java2", "frmParam", "txtName");
    ExpectDialog("tb_split", "frmMulti", "txtCols", "Command1");
    ExpectDialog("tb_rectangle", "frmSpacer", "txtWidth");
    ExpectDialog("tb_table", "frmTable", "txtCaption", "cmdOk");
    ExpectDialog("tb_Layer", "frmDHTML", "txtDivName", "Command1");
    ExpectDialog("tb_form", "frmForm", "txtAction", "cmdApply");
    ExpectDialog("tb_frame", "VisFrame", "txtSizes_0");
    Settings().WriteFlag(Keys::ColoredTags, true);
    Put(withCaret);
    for (const char* list : {"mnuDef", "tb_dots", "tb_onetwothree"}) {
        Run(QString::fromLatin1(list));
        Form("frmBulletList").findChild<QLineEdit*>(u"txtAddItem"_s)->setText(u"x"_s);
        Press(Form("frmBulletList"), "cmdAddItem");
        ExpectOneStep(list, [&] { Press(Form("frmBulletList"), "cmdDone"); });
    }
}

TEST_F(OneUndoStep, WhatStyleSheetsWrite) {
    for (const QString& marked : {withCaret, withSelection})
        for (const char* tool : {"tb_Header", "tb_Location", "tb_Import"}) {
            Put(marked);
            Run(u"tb_CSS"_s);
            Press(Form("frmCSS"), "cmdAddSheet");
            ExpectOneStep(tool, [&] { Press(Form("frmCSS"), tool); });
        }
    for (const bool block : {false, true}) {
        Put(u"<HEAD>\r\n</HEAD>[<BODY>]"_s);
        Run(u"tb_Layer"_s);
        for (const QString& field : {u"txtName"_s, u"txtTop"_s, u"txtLeft"_s})
            Form("frmDHTML").findChild<QLineEdit*>(field)->setText(u"x"_s);
        Form("frmDHTML").findChild<QCheckBox*>(u"chkAddStyle"_s)->setChecked(block);
        ExpectOneStep("txtOK", [&] { Press(Form("frmDHTML"), "txtOK"); });
    }
}

TEST_F(OneUndoStep, TheOptionsThatColorThePageAnew) {
    for (const QString& marked : {withCaret, withSelection, u"no tag|"_s, u"<B>unclosed <I|"_s}) {
        Put(marked);
        ExpectOptions("cboFontSize", u"12"_s);
    }
}

// The tag goes as its dialog comes, and comes with the dialog's OK: two acts.
TEST_F(OneUndoStep, EditTagAndTheOKOfItsDialog) {
    const struct {
        const char* tag;
        const char* form;
    } rows[] = {{"a<IMG SR|C=\"a.gif\" WIDTH=1>b", "frmGraphicLink"},
                {"a<EMBED SR|C=\"a.mid\" WIDTH=1>b", "frmEmbed"}};
    for (const auto& row : rows) {
        Put(QString::fromLatin1(row.tag));
        EXPECT_TRUE(ChangesInOneStep([&] { Run(u"mnuEditTag"_s); })) << row.form;
        ExpectOneStep(row.form, [&] { Press(Form(row.form), "cmdOK"); });
    }
    Put(u"a<BODY BG|COLOR=#FFFFFF>b"_s);
    EXPECT_FALSE(ChangesInOneStep([&] { Run(u"mnuEditTag"_s); }));
    ExpectOneStep("frmBody", [&] { Press(Form("frmBody"), "cmdOK"); });
}

TEST_F(OneUndoStep, UserButtonsByMouseAndKey) {
    for (const QString& marked : {withCaret, withSelection}) {
        run.Buttons().FirstBut[1] = u"<U>\r\n"_s;
        run.Buttons().SecondBut[1] = u"</U>"_s;
        Put(marked);
        ExpectOneStep("key", [&] { Key(Qt::Key_2, Qt::ControlModifier); });
        Put(marked);
        auto& strip = run.Find<UserButtons>("Picture2");
        ExpectOneStep("button", [&] { Press(strip, "Command1_1"); });
    }
}

// What a file brings is where undo ends: it would empty the page.
TEST_F(OneUndoStep, UndoEndsWhereAFileWasRead) {
    run.frame->OpenDocumentFile(file);
    EXPECT_EQ(Box().Text(), u"<I>piece</I>\r\n"_s);
    EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 0);
}

// What was designed is the file anew, and so is the page.
TEST_F(OneUndoStep, UndoEndsWhereAPageComesOutOfDesign) {
    FakeFactory factory;
    run.frame->State<WebControls>().Load = [&factory] { return &factory; };
    run.frame->OpenDocumentFile(file);
    run.Active().Modes()->LoadControls();
    ModeStrip_Click(*run.frame, u"Design"_s);
    Box().SetSelText(u"typed before"_s);
    run.prompts.messageAnswers = {MsgAnswer::Yes, MsgAnswer::No};
    ModeStrip_Click(*run.frame, u"Edit"_s);
    // Each save adds a line end.
    EXPECT_EQ(Box().Text(), u"<I>piece</I>\r\n\r\n"_s);
    EXPECT_EQ(Box().Send(RichTextBox::Message::CanUndo), 0);
    CloseAll();
}

} // namespace
