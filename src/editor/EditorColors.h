// A colour number's other forms: an entry of the RTF colour table, and Qt's.
#pragma once

#include "platform/RichTextBox.h"

#include <QColor>
#include <QString>

namespace EditorColors {

/// "\red0\green128\blue0": the entry of an RTF colour table, without blanks and without its semicolon.
QString RtfText(ColorNumber color);

/// For the screen; what lies above the 24 bits of the colour is left out.
QColor ToQColor(ColorNumber color);
ColorNumber FromQColor(const QColor& color);

} // namespace EditorColors
