#include "editor/typing/EntityTyping.h"

#include "editor/typing/CharacterTable.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"

void EntityTyping::KeyPress(int& KeyAscii) {
    if (!store_.ReadFlag(Keys::ConvertChar))
        return;
    const QLatin1String entity = EntityOf(KeyAscii);
    if (entity.isEmpty())
        return;
    KeyAscii = 0;
    text_.SetSelText(entity);
}
