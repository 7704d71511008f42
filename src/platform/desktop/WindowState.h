// The state of a window, as the settings have it.
#pragma once

#include <QString>

class QWidget;

/// "0" normal, "1" minimised, "2" maximised.
QString WindowStateDigit(const QWidget& window);
