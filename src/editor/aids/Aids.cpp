#include "editor/aids/Aids.h"

#include "editor/aids/PartnerMark.h"
#include "editor/aids/ZoomKeys.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"

void AttachAids(Frame& frame, Document& document, QObject* parent) {
    const Settings& store = frame.Store();
    RichTextBox& text = document.txtInput();
    if (store.ReadFlag(Keys::UseZoom))
        new ZoomKeys(frame, document, parent);
    if (store.ReadFlag(Keys::ShowPartnerTag))
        new PartnerMark(text, parent);
    if (store.ReadFlag(Keys::ShowCurrentLine))
        text.Aids().ShowCurrentLine(true);
    if (store.ReadFlag(Keys::ShowLineNumbers))
        text.Aids().ShowLineNumbers(true);
}
