// The text control: events of the focus, of keys and of input methods.
#include "platform/text/RichTextBox.h"
#include "platform/text/UndoAction.h"

#include <algorithm>
#include <QInputMethodEvent>
#include <QKeyEvent>

namespace {

bool IsUserEvent(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::ContextMenu:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

} // namespace

bool RichTextBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && enabled_ &&
        KeyInput::IsTextKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    const Settling settling(*this, IsUserEvent(event->type()));
    return QsciScintillaBase::event(event);
}

bool RichTextBox::viewportEvent(QEvent* event) {
    const Settling settling(*this, IsUserEvent(event->type()));
    return QsciScintillaBase::viewportEvent(event);
}

void RichTextBox::changeEvent(QEvent* event) {
    QsciScintillaBase::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ApplyPalette();
}

void RichTextBox::focusInEvent(QFocusEvent* event) {
    QsciScintillaBase::focusInEvent(event);
    Outside([this] { Q_EMIT GotFocus(); });
}

void RichTextBox::focusOutEvent(QFocusEvent* event) {
    inputMethod_.SetPreedit(QString());
    QsciScintillaBase::focusOutEvent(event);
    Outside([this] { Q_EMIT LostFocus(); });
}

void RichTextBox::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (enabled_)
        keys_.Press(*event);
}

void RichTextBox::inputMethodEvent(QInputMethodEvent* event) {
    event->accept();
    if (!enabled_)
        return;
    std::optional<UndoAction> step;
    if (event->replacementLength() > 0) {
        step.emplace(*this);
        const qint64 start = std::max<qint64>(qint64{SelStart()} + event->replacementStart(), 0);
        const ByteRange replaced = buffer_.FromChars(start, start + event->replacementLength());
        editing_.Replace(replaced, QByteArray(), StyleRuns());
    }
    inputMethod_.SetPreedit(QString());
    keys_.TypeText(event->commitString());
    inputMethod_.SetPreedit(event->preeditString());
}

QVariant RichTextBox::inputMethodQuery(Qt::InputMethodQuery query) const {
    if (query == Qt::ImCursorRectangle)
        return QRect(CaretPixel(), QSize(1, LineHeight()));
    if (query == Qt::ImFont)
        return ZoomedFont();
    const QVariant answer = InputMethod::Answer(*this, query);
    return answer.isValid() ? answer : QsciScintillaBase::inputMethodQuery(query);
}

void RichTextBox::paintEvent(QPaintEvent* event) {
    QsciScintillaBase::paintEvent(event);
    if (inputMethod_.Composing())
        inputMethod_.Paint(QRect(CaretPixel(), QSize(1, LineHeight())), ZoomedFont());
}
