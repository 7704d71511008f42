#include "dialogs/ColorSample.h"

#include "platform/text/ColorNumber.h"

#include <QKeyEvent>
#include <QLayout>
#include <QPainter>

ColorSample::ColorSample(QWidget* parent) : ClickLabel(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setTextFormat(Qt::PlainText);
}

ColorNumber ColorSample::ForeNumber() const {
    return FromQColor(ForeColor());
}

void ColorSample::SetForeNumber(ColorNumber color) {
    SetForeColor(ToQColor(color));
}

ColorNumber ColorSample::BackNumber() const {
    return FromQColor(palette().color(QPalette::Window));
}

void ColorSample::SetBackNumber(ColorNumber color) {
    QPalette colored = palette();
    colored.setColor(QPalette::Window, ToQColor(color));
    setPalette(colored);
    setAutoFillBackground(true);
}

// A label knows nothing of what was laid out inside it.
QSize ColorSample::sizeHint() const {
    return layout() ? layout()->totalSizeHint() : ClickLabel::sizeHint();
}

QSize ColorSample::minimumSizeHint() const {
    return layout() ? layout()->totalMinimumSize() : ClickLabel::minimumSizeHint();
}

void ColorSample::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        emit Click();
        emit DblClick();
        break;
    default:
        ClickLabel::keyPressEvent(event);
    }
}

void ColorSample::paintEvent(QPaintEvent* event) {
    ClickLabel::paintEvent(event);
    if (!hasFocus())
        return;
    // The ground is the user's own colour: the mark is drawn in the one of black and white that stands out.
    const bool dark = palette().color(QPalette::Window).lightnessF() < 0.5F;
    QPainter painter(this);
    painter.setPen(QPen(dark ? Qt::white : Qt::black, 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}
