#include "platform/ColorNumber.h"

#include <QColor>
#include <QString>

QString RtfColor(ColorNumber color) {
    const auto [red, green, blue] = PartsOf(color);
    return QStringLiteral("\\red%1\\green%2\\blue%3").arg(red).arg(green).arg(blue);
}

QColor ToQColor(ColorNumber color) {
    const auto [red, green, blue] = PartsOf(color);
    return {red, green, blue};
}

ColorNumber FromQColor(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}
