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

int WindowButtonStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                 QStyleHintReturn* returned) const {
    return hint == SH_LineEdit_PasswordCharacter ? '*'
                                                 : QProxyStyle::styleHint(hint, option, widget, returned);
}
