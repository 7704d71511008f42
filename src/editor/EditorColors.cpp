// A colour number's other forms: an entry of the RTF colour table, and Qt's.
#include "editor/EditorColors.h"

namespace EditorColors {

namespace {

// Red is the low byte.
int Red(ColorNumber color) {
    return color & 0xFF;
}

int Green(ColorNumber color) {
    return (color & 0xFF00) / 0x100;
}

int Blue(ColorNumber color) {
    return (color & 0xFF0000) / 0x10000;
}

} // namespace

QString RtfText(ColorNumber color) {
    return QStringLiteral("\\red%1\\green%2\\blue%3").arg(Red(color)).arg(Green(color)).arg(Blue(color));
}

QColor ToQColor(ColorNumber color) {
    return {Red(color), Green(color), Blue(color)};
}

ColorNumber FromQColor(const QColor& color) {
    return color.red() + color.green() * 0x100 + color.blue() * 0x10000;
}

} // namespace EditorColors
