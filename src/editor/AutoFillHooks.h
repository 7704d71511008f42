// What auto-fill asks of the folders above this one.
#pragma once

#include <functional>
#include <QString>

class QWidget;

struct AutoFillHooks {
    /// Shows the colour dialog: the chosen colour as six upper-case hexadecimal digits, red first, or empty
    /// when it was cancelled. Without it every "custom" is cancelled.
    std::function<QString(QWidget* owner)> PickColorHex;
};
