#include "builders/commands/EditTag.h"

#include "builders/commands/BuilderForms.h"
#include "editor/color/TagEnds.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Frame.h"
#include "platform/text/RichTextBox.h"

void EditTag(Frame& frame) {
    RichTextBox* active = ActiveText(frame);
    if (!active)
        return;
    RichTextBox& txtInput = *active;
    const auto place = FindTagAround(txtInput.SelStart(), ReaderOf(txtInput));
    if (!place)
        return;
    const QString tag = txtInput.TextRange(place->start, place->length);
    txtInput.SetSelStart(place->start);
    txtInput.SetSelLength(place->length);
    FillTagDialog(frame, tag);
}

void FillTagDialog(Frame& frame, const QString& tag) {
    if (const FormRow* form = FormThatEdits(BuilderForms(), tag))
        form->reach.edits.show(frame, tag);
}

void FillEditTagCommand(Frame& frame) {
    frame.Commands().Set(QStringLiteral("mnuEditTag"), [&frame] { EditTag(frame); });
}
