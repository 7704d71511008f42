#include "app/window/WindowButtonStyle.h"

#include "dialogs/Icons.h"

QIcon WindowButtonStyle::standardIcon(StandardPixmap face, const QStyleOption* option,
                                      const QWidget* widget) const {
    switch (face) {
    case SP_TitleBarMinButton:
        return ToolbarIcon(QStringLiteral("window-minimise"));
    case SP_TitleBarNormalButton:
        return ToolbarIcon(QStringLiteral("window-restore"));
    case SP_TitleBarCloseButton:
        return ToolbarIcon(QStringLiteral("window-close"));
    default:
        return QProxyStyle::standardIcon(face, option, widget);
    }
}
