// The text that commands work on.
#include "editor/ActiveText.h"

#include "editor/Document.h"
#include "editor/Frame.h"

RichTextBox* ActiveText(Frame& frame) {
    Document* document = frame.ActiveForm();
    return document ? &document->txtInput() : nullptr;
}
