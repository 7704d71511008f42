#include "editor/EntityTyping.h"

#include "editor/CharacterTable.h"
#include "platform/RichTextBox.h"
#include "platform/Settings.h"

void EntityTyping::KeyPress(int& KeyAscii) {
    if (!store_.ReadFlag(Keys::ConvertChar))
        return;
    const QLatin1String entity = EntityOf(KeyAscii);
    if (entity.isEmpty())
        return;
    KeyAscii = 0;
    text_.SetSelText(entity);
}
