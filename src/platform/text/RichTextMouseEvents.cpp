// The text control: mouse, drag and drop, and the form in which text leaves and comes in.
#include "platform/text/RichTextBox.h"

#include "platform/text/Clusters.h"
#include "platform/text/RichTextKeys.h"
#include "platform/values/Utf8.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDragMoveEvent>
#include <QMimeData>
#include <QMouseEvent>

namespace {

int ButtonCode(Qt::MouseButton button) {
    return button == Qt::LeftButton ? 1 : button == Qt::RightButton ? 2 : button == Qt::MiddleButton ? 4 : 0;
}

/// A selection grows by the whole cluster, whichever way it goes.
void LeaveClusterByMouse(const TextBuffer& buffer, TextEditing& editing) {
    const ByteRange selection = editing.Selection();
    const bool toTheLeft = !selection.Empty() && editing.Caret() == selection.start;
    LeaveCluster(buffer, editing, toTheLeft ? ClusterEdge::Start : ClusterEdge::End);
}

bool HoldsFiles(const QMimeData* data) {
    return data->hasUrls();
}

} // namespace

QMouseEvent RichTextBox::ForBase(const QMouseEvent& event) {
    lastMouse_ = event.position();
    // Ctrl and Alt would make the base class select rectangles.
    return QMouseEvent(event.type(), event.position(), event.globalPosition(), event.button(),
                       event.buttons(), event.modifiers() & Qt::ShiftModifier, event.pointingDevice());
}

void RichTextBox::mousePressEvent(QMouseEvent* event) {
    event->accept();
    if (!enabled_) {
        setFocus(Qt::MouseFocusReason);
        return;
    }
    if (event->button() == Qt::MiddleButton) {
        PastePrimarySelection(event->position().toPoint());
    } else {
        QMouseEvent plain = ForBase(*event);
        QsciScintillaBase::mousePressEvent(&plain);
        LeaveClusterByMouse(buffer_, editing_);
    }
    Outside([&] {
        Q_EMIT MouseDown(ButtonCode(event->button()), ShiftState(event->modifiers()),
                         event->position().toPoint());
    });
}

void RichTextBox::PastePrimarySelection(QPoint at) {
    setFocus(Qt::MouseFocusReason);
    const QClipboard* clipboard = QApplication::clipboard();
    if (!clipboard->supportsSelection())
        return;
    // Moving the caret takes the selection away, and with it what it offers for pasting: fetch that first.
    const QMimeData* source = clipboard->mimeData(QClipboard::Selection);
    if (!source || !source->hasText())
        return;
    const QByteArray text = editing_.Incorporate(source->text());
    Sci(SCI_SETEMPTYSELECTION, Sci(SCI_POSITIONFROMPOINT, at.x(), at.y()));
    editing_.ReplaceSelection(text);
}

void RichTextBox::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (!enabled_)
        return;
    QMouseEvent plain = ForBase(*event);
    QsciScintillaBase::mouseMoveEvent(&plain);
    LeaveClusterByMouse(buffer_, editing_);
}

void RichTextBox::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (!enabled_)
        return;
    QMouseEvent plain = ForBase(*event);
    QsciScintillaBase::mouseReleaseEvent(&plain);
    LeaveClusterByMouse(buffer_, editing_);
    Outside([&] {
        Q_EMIT MouseUp(ButtonCode(event->button()), ShiftState(event->modifiers()),
                       event->position().toPoint());
    });
}

void RichTextBox::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (!enabled_)
        return;
    if (event->button() != Qt::LeftButton) {
        mousePressEvent(event);
        return;
    }
    QMouseEvent plain = ForBase(*event);
    QsciScintillaBase::mouseDoubleClickEvent(&plain);
    Outside([this] { Q_EMIT DblClick(); });
}

void RichTextBox::ReleaseLeftButton() {
    // Where the mouse is: anywhere else the release would select up to there.
    QMouseEvent release(QEvent::MouseButtonRelease, lastMouse_, viewport()->mapToGlobal(lastMouse_),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QsciScintillaBase::mouseReleaseEvent(&release);
}

void RichTextBox::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    // The mouse tells of itself by MouseUp; the menu key asks for the same menu, at the caret.
    if (enabled_ && event->reason() == QContextMenuEvent::Keyboard)
        Outside([this] { Q_EMIT MouseUp(2, 0, CaretPixel()); });
}

void RichTextBox::dragEnterEvent(QDragEnterEvent* event) {
    dragMoveEvent(event);
}

void RichTextBox::dragMoveEvent(QDragMoveEvent* event) {
    // Files are the frame's affair, and so is what comes while the control is off.
    if (enabled_ && canInsertFromMimeData(event->mimeData()))
        QsciScintillaBase::dragMoveEvent(event);
    else
        event->ignore();
}

void RichTextBox::dropEvent(QDropEvent* event) {
    if (enabled_ && canInsertFromMimeData(event->mimeData()))
        QsciScintillaBase::dropEvent(event);
    else
        event->ignore();
}

bool RichTextBox::canInsertFromMimeData(const QMimeData* source) const {
    return source->hasText() && !HoldsFiles(source);
}

QByteArray RichTextBox::fromMimeData(const QMimeData* source, bool& rectangular) const {
    rectangular = false;
    const QString end = LineEnd();
    // The base class makes all line ends of what is dropped its own.
    Sci(SCI_SETEOLMODE, end == QStringLiteral("\r\n") ? SC_EOL_CRLF
                        : end == QStringLiteral("\r") ? SC_EOL_CR
                                                      : SC_EOL_LF);
    return editing_.Incorporate(source->text());
}

QMimeData* RichTextBox::toMimeData(const QByteArray& text, bool) const {
    QString plain = Utf8::ToText(text);
    plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    plain.replace(QLatin1Char('\r'), QLatin1Char('\n'));
#ifdef Q_OS_WIN
    plain.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
#endif
    auto* data = new QMimeData;
    data->setText(plain);
    return data;
}
