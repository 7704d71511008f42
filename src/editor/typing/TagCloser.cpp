#include "editor/typing/TagCloser.h"

#include "editor/color/ColorStream.h"
#include "editor/color/TagEnds.h"
#include "editor/color/WriteColoredText.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/text/KeyCodes.h"
#include "platform/text/RichTextBox.h"

void TagCloser::KeyPress(int& KeyAscii) {
    if (KeyAscii == KeyAsciiOf::ClosingBracket && CloseTag())
        KeyAscii = 0;
}

bool TagCloser::CloseTag() {
    RichTextBox& text = document_.txtInput();
    const int caret = text.SelStart();
    const int selected = text.SelLength();
    // The character directly before the caret doesn't count: "<>" is no tag. Only a ">" from there on lets
    // the tag be coloured: one before it closes the tag already, and without any, as behind the last tag of a
    // document, the tag stays plain until the document is coloured anew.
    const auto around = FindTagAround(caret - 1, ReaderOf(text));
    if (!around || around->length == 0)
        return false;
    const int open = around->start;
    // Not escaped: a backslash or a brace in a typed tag goes into the stream as it stands.
    const QString tag = text.TextRange(open, caret - open) + u'>';
    const QStringView color = TagColorCode(tag);
    const RichTextBox::PaintHold hold(text);
    text.SetSelStart(open);
    // A selection is replaced, as any typed character replaces it.
    text.SetSelLength(caret - open + selected);
    frame_.State<ColorStream>().LetThrough();
    WriteColoredText(frame_, &document_, tag, color);
    return true;
}
