#include "app/surface/ToolbarCommands.h"

#include "app/run/ProgramState.h"
#include "app/surface/EditCommands.h"
#include "builders/commands/MenuTagCommands.h"
#include "builders/lists/frmBulletList.h"
#include "editor/color/ColoredTags.h"
#include "editor/color/InsertTag.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/desktop/StartProgram.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "platform/text/UndoAction.h"
#include "tools/upload/frmFTP.h"

#include <QFileInfo>
#include <QProcess>

namespace {

struct PairRow {
    const char* name;
    const char* open;
    const char* close;
};

const PairRow pairs[] = {
    {"tb_bold", "<B>", "</B>"},
    {"tb_italic", "<I>", "</I>"},
    {"tb_underline", "<U>", "</U>"},
    {"tb_break", "<BR>", ""},
    {"tb_para", "<P>", "</P>"},
    {"tb_pre", "<PRE>", "</PRE>"},
    {"tb_center", "<CENTER>", "</CENTER>"},
    {"tb_h1", "<H1>", "</H1>"},
    {"tb_h2", "<H2>", "</H2>"},
    {"tb_h3", "<H3>", "</H3>"},
    {"tb_h4", "<H4>", "</H4>"},
    {"tb_h5", "<H5>", "</H5>"},
    {"tb_h6", "<H6>", "</H6>"},
};

struct ForwardRow {
    const char* name;
    const char* to;
};

const ForwardRow forwards[] = {
    {"tb_open", "mnuOpen"},
    {"tb_save", "mnuSave"},
    {"tb_print", "mnuPrint"},
    {"tb_spell", "mnuSpellCheck"},
};

struct MessageRow {
    const char* name;
    RichTextBox::Message message;
};

const MessageRow messages[] = {
    {"tb_cut", RichTextBox::Message::Cut},
    {"tb_copy", RichTextBox::Message::Copy},
    {"tb_paste", RichTextBox::Message::Paste},
    {"tb_undo", RichTextBox::Message::Undo},
};

QString MetaTag(const QString& name, const QString& content) {
    return QStringLiteral("<meta name=\"") + name + QStringLiteral("\" content=\"") + content +
           QStringLiteral("\">");
}

void tb_delete_Click(Frame& frame) {
    if (RichTextBox* txtInput = ActiveText(frame))
        txtInput->SetSelText(QString());
}

} // namespace

void FillToolbarCommands(Frame& frame) {
    CommandSet& commands = frame.Commands();
    for (const PairRow& row : pairs)
        commands.Set(QString::fromLatin1(row.name), [&frame, &row] {
            InsertTag(frame, QString::fromLatin1(row.open), QString::fromLatin1(row.close), KeepCase::No);
        });
    for (const ForwardRow& row : forwards)
        commands.Forward(QString::fromLatin1(row.name), QString::fromLatin1(row.to));
    for (const MessageRow& row : messages)
        commands.Set(QString::fromLatin1(row.name),
                     [&frame, &row] { SendToActiveControl(frame, row.message); });
    commands.Set(QStringLiteral("tb_delete"), [&frame] { tb_delete_Click(frame); });
    commands.Set(QStringLiteral("tb_preview"), [&frame] { frame.PreviewInBrowser(); });
    commands.Set(QStringLiteral("tb_new"), [&frame] { tb_new_Click(frame); });
    commands.Set(QStringLiteral("tb_balloon"), [&frame] { tb_balloon_Click(frame); });
    commands.Set(QStringLiteral("tb_anchor"), [&frame] { tb_anchor_Click(frame); });
    commands.Set(QStringLiteral("tb_meta"), [&frame] { tb_meta_Click(frame); });
    commands.Set(QStringLiteral("tb_ftp"), [&frame] { tb_ftp_Click(frame); });
    commands.Set(QStringLiteral("tb_dots"), [&frame] {
        tb_list_Click(frame, QStringLiteral("<UL>"), QStringLiteral("</UL>"), ListKind::Bullets);
    });
    commands.Set(QStringLiteral("tb_onetwothree"), [&frame] {
        tb_list_Click(frame, QStringLiteral("<OL>"), QStringLiteral("</OL>"), ListKind::Numbers);
    });
}

void tb_new_Click(Frame& frame) {
    const CommandSet& commands = frame.Commands();
    commands.Run(QStringLiteral("mnuNew"));
    const bool ownTemplate = !frame.State<ProgramState>().UserTemplate.isEmpty();
    commands.Run(ownTemplate ? QStringLiteral("mnuUserTemplate") : QStringLiteral("mnuDefault"));
    if (Document* document = frame.ActiveForm())
        document->SetModified(false);
}

void tb_balloon_Click(Frame& frame) {
    RichTextBox* active = ActiveText(frame);
    if (!active)
        return;
    RichTextBox& text = *active;
    QString comment = text.SelText();
    if (comment.isEmpty()) {
        comment = frame.Ask().InputBox(frame.Window(), QStringLiteral("Add Comment:"), ProgramTitle);
        if (comment.isEmpty())
            return;
    }
    const UndoAction step(text);
    const bool colored = ColoredTagsChecked(frame.Store());
    const auto takeColor = [&] {
        if (!colored)
            return;
        // What is selected goes first: recoloured, it would come back by undo in this colour.
        text.SetSelText(QString());
        text.SetSelColor(frame.Store().ReadNumber(Keys::TextColor[5]));
    };
    takeColor();
    text.SetSelText(QStringLiteral("<!-- "));
    text.SetSelText(comment);
    takeColor();
    text.SetSelText(QStringLiteral(" -->"));
}

void tb_anchor_Click(Frame& frame) {
    if (!frame.ActiveForm())
        return;
    const QString name = frame.Ask().InputBox(frame.Window(), QStringLiteral("Enter An Anchor Name"),
                                              QStringLiteral("Anchor"));
    if (name.isEmpty()) {
        frame.Ask().MsgBox(frame.Window(), QStringLiteral("No Data or Cancel Button Pressed!"),
                           MsgButtons::OK, MsgIcon::Critical, ProgramTitle);
        return;
    }
    // The blank behind the equals sign is meant.
    InsertTag(frame, QStringLiteral("<A NAME= \"") + name + QStringLiteral("\">"), QStringLiteral("</A>"),
              KeepCase::No);
}

void tb_meta_Click(Frame& frame) {
    RichTextBox* active = ActiveText(frame);
    if (!active)
        return;
    const QString lineEnd = QStringLiteral("\r\n");
    QString tags;
    const QString description = frame.Ask().InputBox(
        frame.Window(), QStringLiteral("Enter META description:"), QStringLiteral("META Description"));
    if (!description.isEmpty())
        tags = MetaTag(QStringLiteral("description"), description);
    const QString keywords = frame.Ask().InputBox(frame.Window(), QStringLiteral("Enter META keywords:"),
                                                  QStringLiteral("META Keywords"));
    if (!keywords.isEmpty())
        tags += lineEnd + MetaTag(QStringLiteral("keywords"), keywords);

    RichTextBox& text = *active;
    tags = text.Held(tags);
    const int before = text.SelStart();
    const QString head = QStringLiteral("<HEAD>");
    // Where there is no such tag the search gives -1, and the text goes in at 5.
    text.SetSelStart(text.Find(head) + static_cast<int>(head.size()));
    InsertTag(frame, lineEnd + tags, QString(), KeepCase::Yes);
    text.SetSelStart(before + static_cast<int>(tags.size()) + 2);
}

void tb_ftp_Click(Frame& frame) {
    const ProgramState& state = frame.State<ProgramState>();
    if (state.LocalFTP) {
        frame.LoadedForms().Show<frmFTP>(frame);
        return;
    }
    if (!state.FtpPath.isEmpty()) {
        QStringList words = QProcess::splitCommand(state.FtpPath);
        if (QFileInfo::exists(state.FtpPath))
            words = QStringList{state.FtpPath};
        if (!words.isEmpty() && StartProgram(words.first(), words.mid(1)))
            return;
    }
    frame.Ask().MsgBox(frame.Window(), QStringLiteral("The FTP Program was not found."), MsgButtons::OKCancel,
                       MsgIcon::Critical, QStringLiteral("File not Found"));
    frame.Commands().Run(QStringLiteral("mnuWebBrowser"));
}

void tb_list_Click(Frame& frame, const QString& open, const QString& close, ListKind kind) {
    RichTextBox* txtInput = ActiveText(frame);
    if (!txtInput)
        return;
    if (txtInput->SelLength() == 0)
        ShowBulletList(frame, kind);
    else
        WrapSelectionAsList(frame, open, close, true);
}
