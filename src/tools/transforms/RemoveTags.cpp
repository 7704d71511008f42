#include "tools/transforms/RemoveTags.h"

#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "tools/transforms/TagRemoval.h"

void mnuRemoveTags_Click(Frame& frame) {
    RichTextBox* txtInput = ActiveText(frame);
    if (!txtInput)
        return;
    if (frame.Ask().MsgBox(frame.Window(), QStringLiteral("This Option Cannot Be Undone, Continue?"),
                           MsgButtons::YesNo, MsgIcon::Exclamation,
                           QStringLiteral("Notice!")) != MsgAnswer::Yes)
        return;
    const TagRemoval removal = TagsToRemove(txtInput->Text(), txtInput->SelStart(), txtInput->SelLength());
    const RichTextBox::PaintHold hold(*txtInput);
    txtInput->Remove(removal.gone);
    txtInput->SetSelStart(removal.selStart);
    txtInput->SetSelLength(removal.selLength);
    if (!removal.gone.empty())
        txtInput->EmptyUndoBuffer();
    txtInput->SetFocus();
}
