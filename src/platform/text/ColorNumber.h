// A colour as documents and settings hold it, and its other forms.
#pragma once

class QColor;
class QString;

/// Red in the low byte, then green, then blue.
using ColorNumber = int;

struct ColorParts {
    int red;
    int green;
    int blue;
    bool operator==(const ColorParts&) const = default;
};

/// Each part from 0 to 255; what lies above the 24 bits of the colour is left out.
constexpr ColorParts PartsOf(ColorNumber color) {
    return {color & 0xff, (color >> 8) & 0xff, (color >> 16) & 0xff};
}

/// "\red0\green128\blue0": the entry of an RTF colour table, without blanks and without its semicolon.
QString RtfColor(ColorNumber color);

/// Its six upper-case hexadecimal digits on the web, red first; without a "#".
QString ColorHex(ColorNumber color);

/// For the screen.
QColor ToQColor(ColorNumber color);
ColorNumber FromQColor(const QColor& color);
