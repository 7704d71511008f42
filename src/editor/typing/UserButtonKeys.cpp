#include "editor/typing/UserButtonKeys.h"

#include "editor/color/InsertTag.h"
#include "editor/frame/Frame.h"
#include "editor/typing/UserButtonTexts.h"
#include "platform/text/KeyCodes.h"

void UserButtonKeys::KeyDown(int KeyCode, int Shift) {
    if (Shift != CtrlAlone || KeyCode < KeyCodeOf::Digit0 || KeyCode > KeyCodeOf::Digit9)
        return;
    const int digit = KeyCode - KeyCodeOf::Digit0;
    const auto button = static_cast<size_t>(digit == 0 ? 9 : digit - 1);
    const auto& texts = frame_.State<UserButtonTexts>();
    InsertTag(frame_, texts.FirstBut[button], texts.SecondBut[button], KeepCase::No);
}
