// What a user does with the mouse.
#include "app/events/Stage.h"
#include "app/events/Targets.h"

namespace {

bool Anything(QWidget&) {
    return true;
}

Qt::KeyboardModifiers AnyModifiers(Dice& dice) {
    if (!dice.OneIn(6))
        return {};
    return dice.Of<Qt::KeyboardModifiers>({Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier});
}

/// The popup itself, which has no controls below, or one of them.
QWidget* AnyTarget(Dice& dice) {
    QWidget* window = Targets::AnyWindow(dice);
    if (!window)
        return nullptr;
    const QList<QWidget*> controls = Targets::Controls(*window, Anything);
    return controls.isEmpty() || dice.OneIn(20) ? window : dice.From(controls);
}

void Note(Stage& stage, const char* what, const QWidget& target, QPoint place) {
    stage.log.Note(QStringLiteral("%1 %2 at %3,%4")
                       .arg(QString::fromLatin1(what), Targets::NameOf(target))
                       .arg(place.x())
                       .arg(place.y()));
}

template <typename Do> bool At(Stage& stage, const char* what, Do&& act) {
    QWidget* target = AnyTarget(stage.dice);
    if (!target)
        return false;
    const QPoint place = Targets::PlaceIn(*target, stage.dice);
    Note(stage, what, *target, place);
    act(*target, place);
    return true;
}

bool Click(Stage& stage) {
    return At(stage, "click", [&](QWidget& target, QPoint place) {
        stage.hand.Click(target, place, Qt::LeftButton, AnyModifiers(stage.dice));
    });
}

bool OtherButton(Stage& stage) {
    const auto button = stage.dice.Of({Qt::RightButton, Qt::RightButton, Qt::MiddleButton, Qt::BackButton});
    return At(stage, "other button",
              [&](QWidget& target, QPoint place) { stage.hand.Click(target, place, button); });
}

bool DoubleClick(Stage& stage) {
    return At(stage, "double click",
              [&](QWidget& target, QPoint place) { stage.hand.DoubleClick(target, place); });
}

/// The moves and the release come with the next events.
bool BeginDrag(Stage& stage) {
    return At(stage, "press", [&](QWidget& target, QPoint place) {
        stage.hand.Press(target, place, Qt::LeftButton, AnyModifiers(stage.dice));
    });
}

bool Hover(Stage& stage) {
    return At(stage, "move to", [&](QWidget& target, QPoint place) { stage.hand.MoveTo(target, place); });
}

bool Wheel(Stage& stage) {
    const int delta = stage.dice.Of({120, -120, 360, -360, 15, -3600});
    return At(stage, "wheel", [&](QWidget& target, QPoint place) {
        stage.hand.Wheel(target, place, delta, AnyModifiers(stage.dice));
    });
}

constexpr Act acts[] = {
    {Click, 14, 10, 35},  {OtherButton, 3, 2, 2}, {DoubleClick, 4, 3, 1},
    {BeginDrag, 3, 2, 1}, {Hover, 2, 1, 5},       {Wheel, 3, 2, 1},
};

} // namespace

std::span<const Act> MouseActs() {
    return acts;
}
