#include "editor/TypingColor.h"

#include "platform/RichTextBox.h"
#include "platform/Settings.h"

void TypingColor::KeyPress() {
    if (text_.SelLength() < 1)
        text_.SetSelColor(store_.ReadNumber(Keys::TextColor[0]));
}
