#include "editor/color/PickColor.h"

#include "platform/desktop/Prompts.h"

std::optional<ColorNumber> PickColor(Prompts& ask, QWidget* owner) {
    constexpr qsizetype customColorBytes = 64;
    QByteArray customColors(customColorBytes, '\0');
    return ask.ChooseColor(owner, customColors);
}

ColorNumber PickColorOrBlack(Prompts& ask, QWidget* owner) {
    constexpr ColorNumber black = 0;
    return PickColor(ask, owner).value_or(black);
}
