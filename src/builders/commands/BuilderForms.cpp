#include "builders/commands/BuilderForms.h"

#include "builders/applets/EmbedTag.h"
#include "builders/applets/frmEmbed.h"
#include "builders/applets/frmJava.h"
#include "builders/applets/frmParam.h"
#include "builders/forms/frmForm.h"
#include "builders/frames/frmFrame.h"
#include "builders/frames/VisFrame.h"
#include "builders/links/frmGraphicLink.h"
#include "builders/links/frmLinks.h"
#include "builders/links/ImageTag.h"
#include "builders/lists/frmBulletList.h"
#include "builders/page/frmBody.h"
#include "builders/page/frmFont.h"
#include "builders/page/frmHRInput.h"
#include "builders/page/frmMulti.h"
#include "builders/page/frmSpacer.h"
#include "builders/tables/frmGridInput.h"
#include "builders/tables/frmTable.h"
#include "dialogs/frmImage.h"
#include "editor/frame/ActiveText.h"
#include "platform/text/RichTextBox.h"

namespace {

void CutSelection(Frame& frame) {
    if (RichTextBox* txtInput = ActiveText(frame))
        txtInput->SetSelText(QString());
}

void EditImage(Frame& frame, const QString& tag) {
    frame.LoadedForms().Show<frmGraphicLink>(frame).Take(ImageFieldsOf(tag));
    CutSelection(frame);
}

void EditEmbed(Frame& frame, const QString& tag) {
    frame.LoadedForms().Show<frmEmbed>(frame).Take(EmbedFieldsOf(tag));
    CutSelection(frame);
}

/// It reads the document by itself, and its OK finds the tag by itself.
void EditBody(Frame& frame, const QString& /*tag*/) {
    frame.LoadedForms().Show<frmBody>(frame);
}

} // namespace

std::span<const FormRow> BuilderForms() {
    static const FormRow forms[] = {
        FormOf<frmBody>({.button = {"body"}, .edits = {"body", 2, EditBody}, .unload = 1}),
        FormOf<frmEmbed>(
            {.entry = {"mnuEmbed"}, .button = {"embed"}, .edits = {"embed", 3, EditEmbed}, .unload = 2}),
        FormOf<frmFont>({.button = {"abc"}, .unload = 3}),
        FormOf<frmForm>({.button = {"form"}, .unload = 4}),
        FormOf<frmFrame>({.unload = 5}),
        FormOf<frmGraphicLink>(
            {.entry = {"mnuImage"}, .button = {"image"}, .edits = {"img ", 1, EditImage}, .unload = 6}),
        FormOf<frmHRInput>({.entry = {"mnuHR"}, .button = {"hr"}, .unload = 7}),
        FormOf<frmJava>({.button = {"java"}, .unload = 9}),
        FormOf<frmLinks>({.entry = {"mnuLink"}, .button = {"link"}, .unload = 10}),
        FormOf<frmParam>({.button = {"java2"}, .unload = 11}),
        FormOf<frmTable>({.button = {"table"}, .unload = 12}),
        FormOf<frmSpacer>({.button = {"rectangle"}, .unload = 16}),
        FormOf<frmBulletList>({.unload = 18}),
        FormOf<frmGridInput>({.unload = 19}),
        FormOf<frmImage>({.unload = 20}),
        FormOf<frmMulti>({.button = {"split"}, .unload = 21}),
        FormOf<VisFrame>({.button = {"frame"}, .unload = 23}),
    };
    return forms;
}
