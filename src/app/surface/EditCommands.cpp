#include "app/surface/EditCommands.h"

#include "app/surface/MenuEntry.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace {

// The control that has, or gets back, the focus of the document's window: a menu or dialog on top takes
// nothing away.
bool TextIsActiveControl(Document& document) {
    const QWidget* active = document.Window().focusWidget();
    RichTextBox& text = document.txtInput();
    return active && !text.isHidden() && (active == &text || text.isAncestorOf(active));
}

void Enable(Frame& frame, int index, bool enabled) {
    if (QAction* entry = MenuEntry(frame, u"mEdit_%1"_s.arg(index)))
        entry->setEnabled(enabled);
}

bool ClipboardHoldsText() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasText();
}

void mnuSelectAll_Click(Frame& frame) {
    RichTextBox* active = ActiveText(frame);
    if (!active)
        return;
    RichTextBox& text = *active;
    text.SetSelStart(0);
    text.SetSelLength(text.TextLength());
}

} // namespace

void SendToActiveControl(Frame& frame, RichTextBox::Message message) {
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    if (TextIsActiveControl(*document))
        document->txtInput().Send(message);
    else
        frame.Ask().Beep();
}

void mEdit_Click(Frame& frame, int Index) {
    using Message = RichTextBox::Message;
    switch (Index) {
    case 0:
        return SendToActiveControl(frame, Message::Undo);
    case 2:
        return SendToActiveControl(frame, Message::Cut);
    case 3:
        return SendToActiveControl(frame, Message::Copy);
    case 4:
        return SendToActiveControl(frame, Message::Paste);
    case 5:
        if (RichTextBox* txtInput = ActiveText(frame))
            txtInput->SetSelText(QString());
        return;
    default:
        return;
    }
}

void UpdateEditMenu(Frame& frame) {
    Document* document = frame.ActiveForm();
    const bool active = document && TextIsActiveControl(*document);
    const bool selected = active && document->txtInput().SelLength() != 0;
    Enable(frame, 0, active && document->txtInput().Send(RichTextBox::Message::CanUndo) != 0);
    for (const int index : {2, 3, 5})
        Enable(frame, index, selected);
    Enable(frame, 4, active && ClipboardHoldsText());
}

void FillEditCommands(Frame& frame) {
    CommandSet& commands = frame.Commands();
    for (const int index : {0, 2, 3, 4, 5})
        commands.Set(u"mEdit_%1"_s.arg(index), [&frame, index] { mEdit_Click(frame, index); });
    commands.Set(u"mnuSelectAll"_s, [&frame] { mnuSelectAll_Click(frame); });
}
