#include "editor/frame/ActiveText.h"

#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"

RichTextBox* ActiveText(Frame& frame) {
    Document* document = frame.ActiveForm();
    return document ? &document->txtInput() : nullptr;
}
