#include "editor/typing/TypingColor.h"

#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"

void TypingColor::KeyPress() {
    if (text_.SelLength() < 1)
        text_.SetSelColor(store_.ReadNumber(Keys::TextColor[0]));
}
