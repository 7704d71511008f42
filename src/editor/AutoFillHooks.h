// What auto-fill asks of the folders above this one.
#pragma once

#include <functional>
#include <QString>

class QWidget;

struct AutoFillHooks {
    /// The colour dialog: the chosen colour's number as decimal text with a leading blank, empty when it was
    /// cancelled. Without it "custom" is as if cancelled.
    std::function<QString(QWidget* owner)> PickColor;
};
