// Picking a colour, and a colour's form on the web.
#include "dialogs/PickColor.h"

#include "editor/Frame.h"
#include "platform/ColorNumber.h"
#include "platform/Prompts.h"
#include "platform/Values.h"

QString PickColor(Frame& frame, QWidget* owner) {
    constexpr qsizetype CustomColorBytes = 64;
    QByteArray customColors(CustomColorBytes, '\0');
    const auto chosen = frame.Ask().ChooseColor(owner, customColors);
    return chosen ? u' ' + QString::number(*chosen) : QString();
}

QString ColorHex(const QString& picked) {
    const auto [red, green, blue] = PartsOf(Values::WholeVal(picked));
    const auto number = static_cast<uint>(red << 16 | green << 8 | blue);
    return QStringLiteral("%1").arg(number, 6, 16, QLatin1Char('0')).toUpper();
}
