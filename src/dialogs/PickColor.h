// Picking a colour, and a colour's form on the web.
#pragma once

#include <QString>

class Frame;
class QWidget;

/// Shows the colour dialog. The colour as decimal text with a leading blank (red in the low byte, then green,
/// then blue), or empty on Cancel. Custom colours do not outlive a call.
QString PickColor(Frame& frame, QWidget* owner);

/// Six upper-case hexadecimal digits, red, green, blue, of a colour number in text; an empty text is black.
/// No "#".
QString ColorHex(const QString& picked);
