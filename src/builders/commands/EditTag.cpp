#include "builders/commands/EditTag.h"

#include "builders/applets/EmbedTag.h"
#include "builders/applets/frmEmbed.h"
#include "builders/links/frmGraphicLink.h"
#include "builders/links/ImageTag.h"
#include "builders/page/frmBody.h"
#include "editor/color/TagEnds.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/text/RichTextBox.h"

namespace {

void CutSelection(Frame& frame) {
    if (RichTextBox* txtInput = ActiveText(frame))
        txtInput->SetSelText(QString());
}

void FillImage(Frame& frame, const QString& tag) {
    frame.LoadedForms().Show<frmGraphicLink>(frame).Take(ImageFieldsOf(tag));
    CutSelection(frame);
}

void FillEmbed(Frame& frame, const QString& tag) {
    frame.LoadedForms().Show<frmEmbed>(frame).Take(EmbedFieldsOf(tag));
    CutSelection(frame);
}

bool Holds(const QString& tag, QStringView text) {
    return tag.contains(text, Qt::CaseInsensitive);
}

} // namespace

TagKind KindOfTag(const QString& tag) {
    if (Holds(tag, u"img "))
        return TagKind::Image;
    if (Holds(tag, u"body"))
        return TagKind::Body;
    return Holds(tag, u"embed") ? TagKind::Embed : TagKind::None;
}

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
    switch (KindOfTag(tag)) {
    case TagKind::Image:
        FillImage(frame, tag);
        break;
    case TagKind::Body:
        // It reads the document by itself, and its OK finds the tag by itself.
        frame.LoadedForms().Show<frmBody>(frame);
        break;
    case TagKind::Embed:
        FillEmbed(frame, tag);
        break;
    case TagKind::None:
        break;
    }
}

void FillEditTagCommand(Frame& frame) {
    frame.Commands().Set(QStringLiteral("mnuEditTag"), [&frame] { EditTag(frame); });
}
