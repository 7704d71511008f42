#include "editor/aids/ZoomKeys.h"

#include "editor/aids/TextZoom.h"
#include "editor/autofill/AutoFillList.h"
#include "editor/autofill/frmDropDown.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/text/KeyCodes.h"
#include "platform/text/RichTextBox.h"

#include <algorithm>
#include <QWheelEvent>
#include <span>

namespace {

constexpr int largerKeys[] = {KeyCodeOf::Plus, KeyCodeOf::KeypadPlus};
constexpr int smallerKeys[] = {KeyCodeOf::Minus, KeyCodeOf::KeypadMinus};

bool IsOneOf(std::span<const int> keys, int KeyCode) {
    return std::ranges::find(keys, KeyCode) != keys.end();
}

} // namespace

ZoomKeys::ZoomKeys(Frame& frame, Document& document, QObject* parent)
    : QObject(parent), frame_(frame), document_(document) {
    RichTextBox& text = document.txtInput();
    connect(&text, &RichTextBox::KeyDown, this, &ZoomKeys::txtInput_KeyDown);
    connect(&frame.State<TextZoom>(), &TextZoom::Changed, this, &ZoomKeys::Draw);
    text.viewport()->installEventFilter(this);
    text.SetZoom(TextZoom::Stored(frame.Store()));
}

void ZoomKeys::txtInput_KeyDown(int& KeyCode, int Shift) {
    // On many keyboards it takes Shift to type a plus.
    constexpr int ctrlAndShift = CtrlAlone + 1;
    if (IsOneOf(largerKeys, KeyCode) && (Shift == CtrlAlone || Shift == ctrlAndShift))
        ZoomBy(1);
    else if (IsOneOf(smallerKeys, KeyCode) && Shift == CtrlAlone)
        ZoomBy(-1);
    else if (KeyCode == KeyCodeOf::Keypad0 && Shift == CtrlAlone)
        frame_.State<TextZoom>().Set(frame_, TextZoom::Normal);
    else
        return;
    KeyCode = 0;
}

bool ZoomKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel) {
        const auto& wheel = *static_cast<QWheelEvent*>(event);
        if (wheel.modifiers() == Qt::ControlModifier) {
            Turn(wheel);
            return true;
        }
        turned_ = 0;
    }
    return QObject::eventFilter(watched, event);
}

void ZoomKeys::Turn(const QWheelEvent& wheel) {
    // Fine wheels and touch pads tell of parts of a step.
    turned_ += wheel.angleDelta().y();
    const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        ZoomBy(steps);
}

void ZoomKeys::ZoomBy(int steps) {
    frame_.State<TextZoom>().Set(frame_, TextZoom::Beyond(TextZoom::Stored(frame_.Store()), steps));
}

void ZoomKeys::Draw(int percent) {
    document_.txtInput().SetZoom(percent);
    if (frame_.ActiveForm() != &document_ || !frame_.State<AutoFillList>().DropDownFollowsCaret())
        return;
    if (auto* list = frame_.LoadedForms().Find<frmDropDown>())
        list->MoveToCaret();
}
