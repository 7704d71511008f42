// What a user does with the fields and buttons of dialogs.
#include "app/events/Stage.h"
#include "app/events/Targets.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>

namespace {

constexpr int longestTyped = 100;

bool IsField(QWidget& widget) {
    return qobject_cast<QLineEdit*>(&widget) || qobject_cast<QComboBox*>(&widget) ||
           qobject_cast<QAbstractSpinBox*>(&widget);
}

bool IsButton(QWidget& widget) {
    return qobject_cast<QAbstractButton*>(&widget) && !qobject_cast<QToolButton*>(&widget);
}

bool IsList(QWidget& widget) {
    return qobject_cast<QAbstractItemView*>(&widget);
}

/// A dialog rather than the frame, where there is one.
QWidget* InADialog(Stage& stage, bool (*wanted)(QWidget&)) {
    QList<QWidget*> windows = Targets::Windows();
    if (QWidget* front = Targets::InFront())
        windows = {front};
    else if (windows.size() > 1)
        windows.removeAll(&stage.frame);
    QList<QWidget*> found;
    for (QWidget* window : windows)
        found += Targets::Controls(*window, wanted);
    return found.isEmpty() ? nullptr : stage.dice.From(found);
}

bool FillField(Stage& stage) {
    QWidget* field = InADialog(stage, IsField);
    if (!field)
        return false;
    const bool picksFiles =
        field->window()->inherits("QFileDialog") || field->window()->inherits("QAbstractPrintDialog");
    const QString text = AnyText(stage.dice, !picksFiles).left(longestTyped);
    stage.log.Note(QStringLiteral("fill %1 with %2")
                       .arg(Targets::NameOf(*field), text.left(60).toHtmlEscaped().simplified()));
    field->window()->activateWindow();
    field->setFocus(Qt::MouseFocusReason);
    if (stage.dice.OneIn(2))
        stage.hand.Key(Qt::Key_A, Qt::ControlModifier, QStringLiteral("\x01"));
    stage.hand.Type(text);
    return true;
}

bool PressButton(Stage& stage) {
    QWidget* button = InADialog(stage, IsButton);
    if (!button)
        return false;
    stage.log.Note(QStringLiteral("press ") + Targets::NameOf(*button));
    stage.hand.Click(*button, Targets::PlaceIn(*button, stage.dice), Qt::LeftButton);
    return true;
}

bool ChooseRow(Stage& stage) {
    QWidget* list = InADialog(stage, IsList);
    if (!list)
        return false;
    QWidget& rows = *static_cast<QAbstractItemView*>(list)->viewport();
    stage.log.Note(QStringLiteral("choose in ") + Targets::NameOf(*list));
    const QPoint place = Targets::PlaceIn(rows, stage.dice);
    if (stage.dice.OneIn(4))
        stage.hand.DoubleClick(rows, place);
    else
        stage.hand.Click(rows, place, Qt::LeftButton);
    return true;
}

constexpr Act acts[] = {{FillField, 8, 14, 0}, {PressButton, 9, 18, 0}, {ChooseRow, 4, 5, 2}};

} // namespace

std::span<const Act> FieldActs() {
    return acts;
}
