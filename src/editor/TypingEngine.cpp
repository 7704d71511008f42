// What happens in a document as keys are pressed.
#include "editor/TypingEngine.h"

#include "editor/CharacterTable.h"
#include "editor/Document.h"
#include "editor/EditorState.h"
#include "editor/Frame.h"
#include "editor/frmDropDown.h"
#include "editor/InsertTag.h"
#include "editor/TagEnds.h"
#include "editor/WriteColoredText.h"
#include "platform/RichTextBox.h"
#include "platform/Settings.h"

#include <QPoint>
#include <QWidget>

namespace {

// Character codes of KeyAscii.
constexpr int backspace = 8;
constexpr int enter = 13;
constexpr int blank = 32;
constexpr int equals = 61;
constexpr int closingBracket = 62;

// Virtual key codes of KeyCode, and a Shift of it.
constexpr int keyEscape = 27;
constexpr int keyUp = 38;
constexpr int keyRight = 39;
constexpr int keyDown = 40;
constexpr int keyDigit0 = 48;
constexpr int keyDigit9 = 57;
constexpr int ctrlAlone = 2;

constexpr int rightButton = 2;

} // namespace

TypingEngine::TypingEngine(Frame& frame, Document& document, QTimer& Timer1, QObject* parent)
    : QObject(parent), frame_(frame), document_(document), autoFill_(frame, document, Timer1, nullptr) {
    const RichTextBox* text = &document.txtInput();
    connect(text, &RichTextBox::Change, this, &TypingEngine::txtInput_Change);
    connect(text, &RichTextBox::SelChange, this, &TypingEngine::ShowLinePosition);
    connect(text, &RichTextBox::GotFocus, this, &TypingEngine::txtInput_GotFocus);
    connect(text, &RichTextBox::DblClick, this, &TypingEngine::txtInput_DblClick);
    connect(text, &RichTextBox::KeyDown, this, &TypingEngine::txtInput_KeyDown);
    connect(text, &RichTextBox::KeyPress, this, &TypingEngine::txtinput_KeyPress);
    connect(text, &RichTextBox::MouseUp, this,
            [this](int Button, int /*Shift*/, QPoint at) { txtInput_MouseUp(Button, at); });
}

TypingEngine* TypingEngine::Of(Document& document) {
    return document.Window().findChild<TypingEngine*>();
}

void TypingEngine::txtInput_Change() {
    autoFill_.FollowChange();
    document_.SetModified(true);
}

void TypingEngine::ShowLinePosition() {
    const RichTextBox& text = document_.txtInput();
    frame_.SetStatusPanel(QStringLiteral("Line %1").arg(text.GetLineFromChar(text.SelStart()) + 1));
}

void TypingEngine::txtInput_GotFocus() {
    ShowLinePosition();
    // By a click the text has the focus before its window is the active one.
    frame_.SelectDocumentTab(document_.Caption());
}

void TypingEngine::txtInput_DblClick() {
    document_.txtInput().Send(RichTextBox::Message::LeftButtonUp);
}

void TypingEngine::txtInput_MouseUp(int Button, QPoint at) {
    if (Button == rightButton)
        frame_.PopUpEditMenu(document_.txtInput().viewport()->mapToGlobal(at));
}

void TypingEngine::txtInput_KeyDown(int& KeyCode, int Shift) {
    if (KeyCode == keyEscape || KeyCode == keyRight) {
        autoFill_.UnloadList();
        autoFill_.ClearValueList();
    }
    if (KeyCode == keyDown)
        frame_.State<EditorState>().ListReturnCaret = document_.txtInput().SelStart();
    if (KeyCode == keyUp || KeyCode == keyDown) {
        frmDropDown* list = autoFill_.List();
        // The key that goes into the list moves no caret in the text: Esc would come back to another line.
        if (list && list->FocusList())
            KeyCode = 0;
    }
    if (Shift == ctrlAlone && KeyCode >= keyDigit0 && KeyCode <= keyDigit9)
        RunUserButton(KeyCode - keyDigit0);
}

void TypingEngine::RunUserButton(int digit) {
    const auto button = static_cast<size_t>(digit == 0 ? 9 : digit - 1);
    const auto& state = frame_.State<EditorState>();
    InsertTag(frame_, state.FirstBut[button], state.SecondBut[button], KeepCase::No);
}

void TypingEngine::TypePlain() {
    document_.txtInput().SetSelColor(frame_.Store().ReadNumber(Keys::TextColor[0]));
}

void TypingEngine::txtinput_KeyPress(int& KeyAscii) {
    auto& state = frame_.State<EditorState>();
    RichTextBox& text = document_.txtInput();
    autoFill_.StopTimer();
    if (text.SelLength() < 1)
        TypePlain();
    if (KeyAscii == blank && state.UseAutoFill) {
        if (state.DropDownOpen) {
            autoFill_.UnloadList();
            // Meant as it stands: from here on no list follows the caret, until a document window opens.
            state.DropDownFollowsCaret = false;
            autoFill_.ClearValueList();
            return;
        }
        autoFill_.WhatChar(QStringLiteral(" "));
    }
    if (KeyAscii == backspace) {
        if (autoFill_.TypedWord().IsEmpty())
            autoFill_.UnloadList();
        autoFill_.ClearValueList();
        return;
    }
    if (KeyAscii == equals) {
        autoFill_.UnloadList();
        autoFill_.ClearValueList();
        return;
    }
    if (KeyAscii == enter && state.DropDownOpen && autoFill_.TakeRow(KeyAscii))
        return;
    const int typed = KeyAscii;
    if (text.SelLength() < 1)
        TypePlain();
    if (typed == closingBracket && CloseTag())
        KeyAscii = 0;
    if (!frame_.Store().ReadFlag(Keys::ConvertChar))
        return;
    if (const QLatin1String entity = EntityOf(typed); !entity.isEmpty()) {
        KeyAscii = 0;
        text.SetSelText(entity);
    }
}

bool TypingEngine::CloseTag() {
    RichTextBox& text = document_.txtInput();
    const int caret = text.SelStart();
    const int selected = text.SelLength();
    // The character directly before the caret doesn't count: "<>" is no tag. Only a ">" from there on lets
    // the tag be coloured: one before it closes the tag already, and without any, as behind the last tag of a
    // document, the tag stays plain until the document is coloured anew.
    const auto around = FindTagAround(caret - 1, ReaderOf(text));
    if (!around || around->length == 0)
        return false;
    const int open = around->start;
    // Not escaped: a backslash or a brace in a typed tag goes into the stream as it stands.
    QString tag = text.TextRange(open, caret - open) + u'>';
    const QStringView color = TagColorCode(tag);
    const RichTextBox::PaintHold hold(text);
    text.SetSelStart(open);
    // A selection is replaced, as any typed character replaces it.
    text.SetSelLength(caret - open + selected);
    frame_.State<EditorState>().RtfFlushNow = true;
    WriteColoredText(frame_, document_, tag, color, false);
    return true;
}
