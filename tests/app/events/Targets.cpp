#include "app/events/Targets.h"

#include <algorithm>
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QTabBar>

namespace {

bool IsHere(const QWidget& widget) {
    return widget.isVisible() && !widget.size().isEmpty() && widget.window()->windowHandle();
}

QRect AnyAction(const QList<QAction*>& actions, Dice& dice, const std::function<QRect(QAction*)>& place) {
    return actions.isEmpty() ? QRect() : place(dice.From(actions));
}

/// The part of a control that a user aims at; the whole of it where there is none.
QRect Aim(QWidget& control, Dice& dice) {
    if (auto* menu = qobject_cast<QMenu*>(&control))
        return AnyAction(menu->actions(), dice, [&](QAction* one) { return menu->actionGeometry(one); });
    if (auto* bar = qobject_cast<QMenuBar*>(&control))
        return AnyAction(bar->actions(), dice, [&](QAction* one) { return bar->actionGeometry(one); });
    if (auto* tabs = qobject_cast<QTabBar*>(&control))
        return tabs->tabRect(dice.Below(tabs->count()));
    if (qobject_cast<QCheckBox*>(&control) || qobject_cast<QRadioButton*>(&control))
        return {0, 0, std::min(20, control.width()), control.height()};
    auto* view = qobject_cast<QAbstractItemView*>(control.parentWidget());
    if (view && view->viewport() == &control && view->model()) {
        const QModelIndex row = view->model()->index(dice.Below(view->model()->rowCount(view->rootIndex())),
                                                     0, view->rootIndex());
        return view->visualRect(row);
    }
    return control.rect();
}

} // namespace

namespace Targets {

QList<QWidget*> Windows() {
    QList<QWidget*> windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (IsHere(*window))
            windows << window;
    const auto key = [](const QWidget* window) {
        return QString::fromLatin1(window->metaObject()->className()) + window->objectName() +
               window->windowTitle();
    };
    std::ranges::sort(windows, {}, key);
    return windows;
}

QWidget* InFront() {
    if (QWidget* popup = QApplication::activePopupWidget())
        return popup;
    return QApplication::activeModalWidget();
}

QWidget* AnyWindow(Dice& dice) {
    QWidget* front = InFront();
    if (front && IsHere(*front) && !dice.OneIn(15))
        return front;
    if (QWidget* active = QApplication::activeWindow(); active && IsHere(*active) && dice.OneIn(2))
        return active;
    const QList<QWidget*> windows = Windows();
    return windows.isEmpty() ? nullptr : dice.From(windows);
}

QList<QWidget*> Controls(QWidget& window, const std::function<bool(QWidget&)>& wanted) {
    QList<QWidget*> controls;
    for (QWidget* control : window.findChildren<QWidget*>())
        if (control->window() == &window && control->isEnabled() && IsHere(*control) &&
            !control->visibleRegion().isEmpty() && wanted(*control))
            controls << control;
    return controls;
}

QWidget* AnyControl(Dice& dice, const std::function<bool(QWidget&)>& wanted) {
    if (QWidget* window = AnyWindow(dice))
        if (const QList<QWidget*> controls = Controls(*window, wanted); !controls.isEmpty())
            return dice.From(controls);
    return nullptr;
}

QPoint PlaceIn(QWidget& control, Dice& dice) {
    const QRect aim = Aim(control, dice) & control.visibleRegion().boundingRect();
    const QRect place = aim.isEmpty() ? control.rect() : aim;
    return place.topLeft() + QPoint(dice.Below(place.width()), dice.Below(place.height()));
}

QString NameOf(const QWidget& control) {
    return QStringLiteral("%1 %2 in %3")
        .arg(QString::fromLatin1(control.metaObject()->className()), control.objectName(),
             control.window()->objectName().isEmpty()
                 ? QString::fromLatin1(control.window()->metaObject()->className())
                 : control.window()->objectName());
}

} // namespace Targets
