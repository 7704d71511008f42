// The Edit menu: what is enabled when it drops, and what its entries do.
#include "app/surface/EditCommands.h"

#include "app/RealFrame.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

namespace {

class EditCommands : public FrameTest {
  protected:
    EditCommands() {
        EXPECT_TRUE(run.Start());
        QGuiApplication::clipboard()->clear();
    }
    /// The indices of the enabled entries after the menu dropped.
    QString Enabled() {
        auto& mMain = run.Find<QMenu>("mMain");
        mMain.popup(QPoint(0, 0));
        mMain.hide();
        QString enabled;
        for (const char* index : {"0", "2", "3", "4", "5"})
            if (run.Entry((QByteArray("mEdit_") + index).constData()).isEnabled())
                enabled += QString::fromLatin1(index);
        return enabled;
    }
    /// A document of that text, without a step to undo, caret at 0.
    RichTextBox& Text(const QString& text) {
        RichTextBox& box = run.New().txtInput();
        box.SetText(text);
        box.EmptyUndoBuffer();
        return box;
    }
    static QString Clip() { return QGuiApplication::clipboard()->text(); }
    /// Takes the focus of the active document away from its text, to a control beside it.
    void FocusElsewhere() {
        auto* other = new QLineEdit(run.Active().widget());
        other->show();
        other->setFocus();
    }
    ProgramRun run;
};

TEST_F(EditCommands, NothingIsEnabledWithoutADocument) {
    QGuiApplication::clipboard()->setText(QStringLiteral("x"));
    EXPECT_EQ(Enabled(), QString());
    EXPECT_TRUE(run.Entry("mnuSelectAll").isEnabled());
}

TEST_F(EditCommands, EntriesFollowWhatCanBeDone) {
    RichTextBox& box = Text(QStringLiteral("words"));
    EXPECT_EQ(Enabled(), QString());
    box.SetSelLength(2);
    EXPECT_EQ(Enabled(), QStringLiteral("235"));
    QGuiApplication::clipboard()->setText(QStringLiteral("x"));
    EXPECT_EQ(Enabled(), QStringLiteral("2345"));
    box.SetSelText(QStringLiteral("y"));
    EXPECT_EQ(Enabled(), QStringLiteral("04"));
}

TEST_F(EditCommands, PasteNeedsTextOnTheClipboard) {
    Text(QString());
    auto* data = new QMimeData;
    data->setData(QStringLiteral("image/x-any"), "x");
    QGuiApplication::clipboard()->setMimeData(data);
    EXPECT_EQ(Enabled(), QString());
}

TEST_F(EditCommands, NothingIsEnabledWithTheFocusOnAnotherControl) {
    RichTextBox& box = Text(QStringLiteral("words"));
    box.SetSelLength(2);
    QGuiApplication::clipboard()->setText(QStringLiteral("x"));
    FocusElsewhere();
    EXPECT_EQ(Enabled(), QString());
    EXPECT_TRUE(run.Entry("mnuSelectAll").isEnabled());
}

TEST_F(EditCommands, CutCopyPasteUndoWorkOnTheText) {
    RichTextBox& box = Text(QStringLiteral("one two"));
    box.SetSelLength(4);
    run.Entry("mEdit_3").trigger();
    EXPECT_EQ(Clip(), QStringLiteral("one "));
    EXPECT_EQ(box.Text(), QStringLiteral("one two"));
    run.Entry("mEdit_2").trigger();
    EXPECT_EQ(box.Text(), QStringLiteral("two"));
    run.Entry("mEdit_0").trigger();
    EXPECT_EQ(box.Text(), QStringLiteral("one two"));
    box.SetSelStart(7);
    run.Entry("mEdit_4").trigger();
    EXPECT_EQ(box.Text(), QStringLiteral("one twoone "));
}

TEST_F(EditCommands, DeleteEmptiesTheSelection) {
    RichTextBox& box = Text(QStringLiteral("one two"));
    run.Entry("mEdit_5").trigger();
    EXPECT_EQ(box.Text(), QStringLiteral("one two"));
    box.SetSelLength(4);
    run.Entry("mEdit_5").setEnabled(true);
    run.Entry("mEdit_5").trigger();
    EXPECT_EQ(box.Text(), QStringLiteral("two"));
    EXPECT_EQ(Clip(), QString()) << "what is deleted is not cut";
}

TEST_F(EditCommands, DeleteAndSelectAllAskNotWhichControlIsActive) {
    RichTextBox& box = Text(QStringLiteral("one two"));
    box.SetSelLength(4);
    FocusElsewhere();
    mEdit_Click(*run.frame, 5);
    EXPECT_EQ(box.Text(), QStringLiteral("two"));
    run.Entry("mnuSelectAll").trigger();
    EXPECT_EQ(box.SelText(), QStringLiteral("two"));
    EXPECT_EQ(run.prompts.beeps, 0);
}

TEST_F(EditCommands, SelectAllSelectsTheText) {
    RichTextBox& box = Text(QStringLiteral("one\r\ntwo"));
    box.SetSelStart(2);
    box.SetSelLength(3);
    run.Entry("mnuSelectAll").trigger();
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 8);
}

TEST_F(EditCommands, MessageToAnotherControlBeeps) {
    RichTextBox& box = Text(QStringLiteral("words"));
    box.SetSelLength(2);
    FocusElsewhere();
    SendToActiveControl(*run.frame, RichTextBox::Message::Cut);
    EXPECT_EQ(run.prompts.beeps, 1);
    EXPECT_EQ(box.Text(), QStringLiteral("words"));
}

TEST_F(EditCommands, MessageWithoutADocumentIsSilent) {
    for (const int index : {0, 2, 3, 4, 5})
        mEdit_Click(*run.frame, index);
    run.frame->Commands().Run(QStringLiteral("mnuSelectAll"));
    EXPECT_EQ(run.prompts.beeps, 0);
    EXPECT_TRUE(run.prompts.asked.isEmpty());
}

TEST_F(EditCommands, MenuTakesNoFocusFromTheText) {
    RichTextBox& box = Text(QStringLiteral("words"));
    run.frame->PopUpEditMenu(QPoint(0, 0));
    auto& mMain = run.Find<QMenu>("mMain");
    EXPECT_TRUE(mMain.isVisible());
    EXPECT_EQ(run.Active().focusWidget(), &box);
    mMain.hide();
}

} // namespace
