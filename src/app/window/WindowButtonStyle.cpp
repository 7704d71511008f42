#include "app/window/WindowButtonStyle.h"

#include "dialogs/Icons.h"

#include <QPainter>
#include <QStyleOptionComplex>

namespace {

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightnessF() < 0.5F;
}

/// Qt's own style draws the title bar of a window that is not in front with black buttons, whatever the
/// palette. Those of the window in front are white, on the colour of a selection: here on that of a window.
QStyleOptionTitleBar WithWhiteButtons(const QStyleOptionTitleBar& bar) {
    QStyleOptionTitleBar white = bar;
    white.titleBarState |= QStyle::State_Active;
    white.palette.setColor(QPalette::Highlight, bar.palette.color(QPalette::Window));
    return white;
}

} // namespace

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

void WindowButtonStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                           QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    const bool black = bar && !(bar->titleBarState & QStyle::State_Active) && IsDark(bar->palette) &&
                       baseStyle()->name() == QLatin1String("fusion");
    if (control != CC_TitleBar || !black)
        return;
    QRegion buttons;
    for (const SubControl button : {SC_TitleBarMinButton, SC_TitleBarNormalButton, SC_TitleBarMaxButton,
                                    SC_TitleBarShadeButton, SC_TitleBarUnshadeButton, SC_TitleBarCloseButton})
        if (bar->subControls & button)
            buttons += subControlRect(CC_TitleBar, bar, button, widget);
    painter->save();
    painter->setClipRegion(buttons, Qt::IntersectClip);
    const QStyleOptionTitleBar white = WithWhiteButtons(*bar);
    QProxyStyle::drawComplexControl(control, &white, painter, widget);
    painter->restore();
}

int WindowButtonStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                 QStyleHintReturn* returned) const {
    return hint == SH_LineEdit_PasswordCharacter ? '*'
                                                 : QProxyStyle::styleHint(hint, option, widget, returned);
}
