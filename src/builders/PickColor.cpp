// Picking a colour, and a colour's form on the web.
#include "builders/PickColor.h"

#include "editor/Frame.h"
#include "platform/Prompts.h"
#include "platform/Values.h"

QString PickColor(Frame& frame, QWidget* owner) {
    constexpr qsizetype CustomColorBytes = 64;
    QByteArray customColors(CustomColorBytes, '\0');
    const auto chosen = frame.Ask().ChooseColor(owner, customColors);
    return chosen ? u' ' + QString::number(*chosen) : QString();
}

QString ColorHex(const QString& picked) {
    const auto number = static_cast<uint>(Values::WholeVal(picked));
    const QString digits = (QStringLiteral("000000") + QString::number(number, 16).toUpper()).right(6);
    return digits.mid(4, 2) + digits.mid(2, 2) + digits.mid(0, 2);
}
