#include "platform/text/ColorNumber.h"

#include <QColor>
#include <QString>

QString RtfColor(ColorNumber color) {
    const auto [red, green, blue] = PartsOf(color);
    return QStringLiteral("\\red%1\\green%2\\blue%3").arg(red).arg(green).arg(blue);
}

QString ColorHex(ColorNumber color) {
    const auto [red, green, blue] = PartsOf(color);
    const auto number = static_cast<uint>(red << 16 | green << 8 | blue);
    return QStringLiteral("%1").arg(number, 6, 16, QLatin1Char('0')).toUpper();
}

QColor ToQColor(ColorNumber color) {
    const auto [red, green, blue] = PartsOf(color);
    return {red, green, blue};
}

ColorNumber FromQColor(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}
