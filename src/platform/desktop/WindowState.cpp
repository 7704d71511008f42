#include "platform/desktop/WindowState.h"

#include <QWidget>

QString WindowStateDigit(const QWidget& window) {
    if (window.isMinimized())
        return QStringLiteral("1");
    return window.isMaximized() ? QStringLiteral("2") : QStringLiteral("0");
}
