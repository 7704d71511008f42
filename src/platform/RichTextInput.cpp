// The text control: keys, input methods and what is typed by them.
#include "platform/RichTextBox.h"

#include "platform/Cp1252.h"
#include "platform/RichTextKeys.h"
#include "platform/UndoAction.h"

#include <algorithm>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>

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

/// True for a character that a key types. A soft hyphen does not print where it stands, and is typed all the
/// same; a character may come as a pair.
bool IsTyped(const QKeyEvent& event) {
    return !event.text().isEmpty() &&
           (event.text()[0].isPrint() || event.text()[0].isHighSurrogate() || event.text()[0] == QChar(0xad));
}

/// True for the keys that belong to a text whatever a menu makes of them: characters and plain editing keys.
bool IsTextKey(const QKeyEvent& event) {
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier)
        return false;
    return IsTyped(event) || EditingKeyOf(event.key(), event.modifiers()).has_value() ||
           event.key() == Qt::Key_Backspace;
}

} // namespace

bool RichTextBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && enabled_ && IsTextKey(*static_cast<QKeyEvent*>(event))) {
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
    SetPreedit(QString());
    QsciScintillaBase::focusOutEvent(event);
    Outside([this] { Q_EMIT LostFocus(); });
}

void RichTextBox::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (enabled_)
        PressKey(event);
}

void RichTextBox::PressKey(QKeyEvent* event) {
    const int pressed = VirtualKey(*event);
    int code = pressed;
    if (pressed != 0)
        Outside([&] { Q_EMIT KeyDown(code, ShiftState(event->modifiers())); });
    if (code != pressed && code == 0)
        return;
    const int key = code == pressed ? event->key() : KeyOfVirtual(code);
    if (RunEditingKey(key, event->modifiers()))
        return;
    if (const std::optional<int> character = ControlCharacter(key, event->modifiers())) {
        const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
        TypeCode(*character, !isLetter);
        if (*character == 27)
            event->ignore();
    } else if (YieldsText(event->modifiers()) && IsTyped(*event)) {
        TypeText(event->text());
    } else {
        event->ignore();
    }
}

bool RichTextBox::RunEditingKey(int key, Qt::KeyboardModifiers modifiers) {
    const std::optional<EditingKey> command = EditingKeyOf(key, modifiers);
    if (!command)
        return false;
    switch (command->action) {
    case EditingKey::Action::Message:
        Sci(command->message);
        break;
    case EditingKey::Action::Undo:
        Sci(SCI_UNDO);
        break;
    case EditingKey::Action::Redo:
        Sci(SCI_REDO);
        break;
    case EditingKey::Action::Cut:
        Cut();
        break;
    case EditingKey::Action::Copy:
        Sci(SCI_COPY);
        break;
    case EditingKey::Action::Paste:
        Paste();
        break;
    case EditingKey::Action::SelectAll:
        Sci(SCI_SELECTALL);
        break;
    case EditingKey::Action::DeleteWordBack:
        Sci(Selection().Empty() ? SCI_DELWORDLEFT : SCI_CLEAR);
        break;
    case EditingKey::Action::DeleteWord:
        Sci(Selection().Empty() ? SCI_DELWORDRIGHT : SCI_CLEAR);
        break;
    case EditingKey::Action::Delete:
        Sci(SCI_CLEAR);
        break;
    }
    return true;
}

void RichTextBox::TypeText(const QString& text) {
    // Accents that come as characters of their own join their letters first: most pairs have a character.
    const QString composed = text.normalized(QString::NormalizationForm_C);
    // What comes at once goes at once; single characters in a row are one step by themselves.
    std::optional<UndoAction> step;
    if (composed.size() > 1)
        step.emplace(*this);
    for (qsizetype i = 0; i < composed.size(); ++i) {
        const int code = Cp1252::ToCode(composed[i]);
        if (code >= 0) {
            TypeCode(code, true);
            continue;
        }
        const bool pair = composed[i].isHighSurrogate() && i + 1 < composed.size();
        Type(Cp1252::Accept(QStringView(composed).mid(i, pair ? 2 : 1)).toUtf8());
        i += pair ? 1 : 0;
    }
}

void RichTextBox::TypeCode(int code, bool controlTypes) {
    int answer = code;
    Outside([&] { Q_EMIT KeyPress(answer); });
    if (answer <= 0 || answer > 255 || (answer == code && !controlTypes))
        return;
    switch (answer) {
    case 8:
        Sci(SCI_DELETEBACK);
        break;
    case 9:
        Type(QByteArrayLiteral("\t"));
        break;
    case 13:
        Type(LineEnd().toUtf8());
        // A line is as much as one undo step takes back.
        Sci(SCI_BEGINUNDOACTION);
        Sci(SCI_ENDUNDOACTION);
        break;
    default:
        if (answer >= 32)
            Type(QString(Cp1252::FromCode(answer)).toUtf8());
    }
    Sci(SCI_SCROLLCARET);
}

void RichTextBox::Type(const QByteArray& text) {
    if (!Selection().Empty()) {
        ReplaceSelection(text);
        return;
    }
    nextStyles_ = StyleRuns(static_cast<int>(text.size()), StyleAtCaret());
    // Unlike an assignment, what is typed in a row is one undo step.
    SendScintilla(SCI_ADDTEXT, static_cast<unsigned long>(text.size()), text.constData());
    TakeIncoming();
    Sci(SCI_CHOOSECARETX);
}

void RichTextBox::Cut() {
    Sci(SCI_CUT);
}

void RichTextBox::Paste() {
    PasteFrom(QApplication::clipboard()->mimeData());
}

void RichTextBox::PasteFrom(const QMimeData* source) {
    if (!source || !source->hasText())
        return;
    ReplaceSelection(Incorporate(source->text()));
    Sci(SCI_SCROLLCARET);
}

void RichTextBox::InsertForeign(const QString& text) {
    const Settling settling(*this);
    ReplaceSelection(Incorporate(text));
}

QByteArray RichTextBox::Incorporate(const QString& text) const {
    QString accepted = Cp1252::Accept(text.normalized(QString::NormalizationForm_C));
    accepted.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    accepted.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const QString end = LineEnd();
    if (end != QStringLiteral("\n"))
        accepted.replace(QLatin1Char('\n'), end);
    return accepted.toUtf8();
}

void RichTextBox::inputMethodEvent(QInputMethodEvent* event) {
    event->accept();
    if (!enabled_)
        return;
    std::optional<UndoAction> step;
    if (event->replacementLength() > 0) {
        step.emplace(*this);
        const int caret = SelStart() + event->replacementStart();
        const int start = std::clamp(caret, 0, TextLength());
        const int end = std::clamp(start + event->replacementLength(), start, TextLength());
        Replace({ByteFromChar(start), ByteFromChar(end)}, QByteArray(), StyleRuns());
    }
    SetPreedit(QString());
    TypeText(event->commitString());
    SetPreedit(event->preeditString());
}

void RichTextBox::SetPreedit(const QString& text) {
    if (text == preedit_)
        return;
    preedit_ = text;
    viewport()->update();
}

QVariant RichTextBox::inputMethodQuery(Qt::InputMethodQuery query) const {
    // Input methods look at some text around the caret; a page may be one line of a megabyte.
    constexpr int context = 256;
    const int caret = CharFromByte(static_cast<int>(Sci(SCI_GETCURRENTPOS)));
    const int start = std::max(0, caret - context);
    switch (query) {
    case Qt::ImEnabled:
        return enabled_;
    case Qt::ImHints:
        return static_cast<int>(Qt::ImhMultiLine | Qt::ImhNoPredictiveText);
    case Qt::ImCursorRectangle:
        return QRect(CaretPixel(), QSize(1, LineHeight()));
    case Qt::ImFont:
        return font_;
    case Qt::ImCursorPosition:
        return caret - start;
    case Qt::ImAnchorPosition:
        return CharFromByte(static_cast<int>(Sci(SCI_GETANCHOR))) - start;
    case Qt::ImSurroundingText:
        return TextRange(start, 2 * context);
    case Qt::ImTextBeforeCursor:
        return TextRange(start, caret - start);
    case Qt::ImTextAfterCursor:
        return TextRange(caret, context);
    case Qt::ImCurrentSelection:
        return TextRange(SelStart(), std::min(SelLength(), context));
    default:
        return QsciScintillaBase::inputMethodQuery(query);
    }
}

void RichTextBox::paintEvent(QPaintEvent* event) {
    QsciScintillaBase::paintEvent(event);
    if (preedit_.isEmpty())
        return;
    // What an input method is still composing is no text of the document yet: it is shown over it.
    QPainter painter(viewport());
    QFont underlined = font_;
    underlined.setUnderline(true);
    painter.setFont(underlined);
    const QRect line(CaretPixel(), QSize(painter.fontMetrics().horizontalAdvance(preedit_), LineHeight()));
    painter.fillRect(line, palette().color(QPalette::Highlight));
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, preedit_);
}
