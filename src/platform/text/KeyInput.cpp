#include "platform/text/KeyInput.h"

#include "platform/text/Clusters.h"
#include "platform/text/RichTextKeys.h"
#include "platform/text/TextColors.h"
#include "platform/text/TextEditing.h"
#include "platform/text/UndoAction.h"
#include "platform/values/Cp1252.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <Qsci/qsciscintillabase.h>

namespace {

using Control = QsciScintillaBase;

/// True for a character that a key types. A soft hyphen does not print where it stands, nor do those that
/// join letters or keep them apart, and all are typed the same; a character may come as a pair.
bool IsTyped(const QKeyEvent& event) {
    if (event.text().isEmpty())
        return false;
    const QChar first = event.text()[0];
    return first.isPrint() || first.isHighSurrogate() || first.category() == QChar::Other_Format;
}

} // namespace

long KeyInput::Sci(unsigned int message) const {
    return control_.SendScintilla(message);
}

bool KeyInput::IsTextKey(const QKeyEvent& event) {
    if ((event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::NoModifier)
        return false;
    return IsTyped(event) || EditingKeyOf(event.key(), event.modifiers()).has_value() ||
           event.key() == Qt::Key_Backspace;
}

void KeyInput::Press(QKeyEvent& event) {
    const int pressed = VirtualKey(event);
    int code = pressed;
    if (pressed != 0)
        listeners_.keyDown(code, ShiftState(event.modifiers()));
    if (code != pressed && code == 0)
        return;
    const int key = code == pressed ? event.key() : KeyOfVirtual(code);
    if (RunEditingKey(key, event.modifiers()))
        return;
    if (const std::optional<int> character = ControlCharacter(key, event.modifiers())) {
        const bool isLetter = key >= Qt::Key_A && key <= Qt::Key_Z;
        TypeCode(*character, !isLetter);
        if (*character == 27)
            event.ignore();
    } else if (YieldsText(event.modifiers()) && IsTyped(event)) {
        TypeText(event.text());
    } else {
        event.ignore();
    }
}

bool KeyInput::RunEditingKey(int key, Qt::KeyboardModifiers modifiers) {
    const std::optional<EditingKey> command = EditingKeyOf(key, modifiers);
    if (!command)
        return false;
    const int caret = editing_.Caret();
    switch (command->action) {
    case EditingKey::Action::Message:
        Sci(command->message);
        LeaveCluster(buffer_, editing_, key == Qt::Key_Left ? ClusterEdge::Start : ClusterEdge::End);
        break;
    case EditingKey::Action::Undo:
        Sci(Control::SCI_UNDO);
        break;
    case EditingKey::Action::Redo:
        Sci(Control::SCI_REDO);
        break;
    case EditingKey::Action::Cut:
        Sci(Control::SCI_CUT);
        break;
    case EditingKey::Action::Copy:
        Sci(Control::SCI_COPY);
        break;
    case EditingKey::Action::Paste:
        editing_.PasteFrom(QApplication::clipboard()->mimeData());
        break;
    case EditingKey::Action::SelectAll:
        Sci(Control::SCI_SELECTALL);
        break;
    case EditingKey::Action::DeleteWordBack:
        Sci(editing_.Selection().Empty() ? Control::SCI_DELWORDLEFT : Control::SCI_CLEAR);
        break;
    case EditingKey::Action::DeleteWord:
        Sci(editing_.Selection().Empty() ? Control::SCI_DELWORDRIGHT : Control::SCI_CLEAR);
        break;
    case EditingKey::Action::Delete:
        if (const int end = ClusterEnd(buffer_, caret);
            editing_.Selection().Empty() && end > buffer_.CharacterAt(caret).end)
            editing_.Replace({caret, end}, QByteArray(), StyleRuns());
        else
            Sci(Control::SCI_CLEAR);
        break;
    }
    return true;
}

void KeyInput::TypeText(const QString& text) {
    const bool unicode = editing_.Holds() == CharacterSet::Unicode;
    // In the code page accents that come as characters of their own join their letters first: most pairs have
    // a character.
    const QString composed = unicode ? text : text.normalized(QString::NormalizationForm_C);
    // What comes at once goes at once; single characters in a row are one step by themselves.
    std::optional<UndoAction> step;
    if (composed.size() > 1)
        step.emplace(control_);
    for (qsizetype i = 0; i < composed.size(); ++i) {
        const int code = Cp1252::ToCode(composed[i]);
        if (code >= 0) {
            TypeCode(code, true);
            continue;
        }
        const bool pair = composed[i].isHighSurrogate() && i + 1 < composed.size();
        TypeBeyondCodePage(composed.mid(i, pair ? 2 : 1));
        i += pair ? 1 : 0;
    }
}

void KeyInput::TypeBeyondCodePage(const QString& character) {
    if (editing_.Holds() == CharacterSet::CodePage1252) {
        editing_.Type(editing_.Held(character));
        return;
    }
    const auto code = static_cast<int>(character.toUcs4().value(0));
    int answer = code;
    listeners_.keyPress(answer);
    if (answer != code) {
        TypeAnswer(answer);
        return;
    }
    editing_.Type(editing_.Held(character));
    Sci(Control::SCI_SCROLLCARET);
}

void KeyInput::TypeCode(int code, bool controlTypes) {
    int answer = code;
    listeners_.keyPress(answer);
    if (answer != code || controlTypes)
        TypeAnswer(answer);
}

void KeyInput::TypeAnswer(int answer) {
    if (answer <= 0 || answer > 255)
        return;
    switch (answer) {
    case 8:
        Sci(Control::SCI_DELETEBACK);
        break;
    case 9:
        editing_.Type(QByteArrayLiteral("\t"));
        break;
    case 13:
        editing_.Type(buffer_.LineEnd().toUtf8());
        // A line is as much as one undo step takes back.
        editing_.EndTyping();
        break;
    default:
        if (answer >= 32)
            editing_.Type(QString(Cp1252::FromCode(answer)).toUtf8());
    }
    Sci(Control::SCI_SCROLLCARET);
}
