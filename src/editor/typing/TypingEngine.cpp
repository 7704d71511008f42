#include "editor/typing/TypingEngine.h"

#include "editor/autofill/AutoFillList.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/text/RichTextBox.h"

#include <QPoint>
#include <QWidget>

namespace {

constexpr int rightButton = 2;

} // namespace

TypingEngine::TypingEngine(Frame& frame, Document& document, QTimer& Timer1, QObject* parent)
    : QObject(parent), frame_(frame), document_(document), autoFill_(frame, document, Timer1, nullptr),
      color_(frame.Store(), document.txtInput()), listKeys_(frame, document, autoFill_),
      tagCloser_(frame, document), entities_(frame.Store(), document.txtInput()), buttonKeys_(frame) {
    const RichTextBox* text = &document.txtInput();
    connect(text, &RichTextBox::Change, this, &TypingEngine::txtInput_Change);
    connect(text, &RichTextBox::SelChange, this, &TypingEngine::ShowLinePosition);
    connect(text, &RichTextBox::GotFocus, this, &TypingEngine::txtInput_GotFocus);
    connect(text, &RichTextBox::DblClick, this, &TypingEngine::txtInput_DblClick);
    connect(text, &RichTextBox::KeyDown, this, &TypingEngine::txtInput_KeyDown);
    connect(text, &RichTextBox::KeyPress, this, &TypingEngine::txtinput_KeyPress);
    connect(text, &RichTextBox::MouseUp, this,
            [this](int Button, int /*Shift*/, QPoint at) { txtInput_MouseUp(Button, at); });
    connect(&frame.State<AutoFillList>(), &AutoFillList::RowPicked, this, &TypingEngine::TakePickedRow);
}

void TypingEngine::txtInput_Change() {
    autoFill_.FollowChange();
    document_.SetModified(true);
}

void TypingEngine::ShowLinePosition() {
    const RichTextBox& text = document_.txtInput();
    frame_.SetIdlePanel(QStringLiteral("Line %1").arg(text.GetLineFromChar(text.SelStart()) + 1));
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
    listKeys_.KeyDown(KeyCode);
    buttonKeys_.KeyDown(KeyCode, Shift);
}

void TypingEngine::txtinput_KeyPress(int& KeyAscii) {
    autoFill_.StopTimer();
    color_.KeyPress();
    if (listKeys_.KeyPress(KeyAscii))
        return;
    // Behind a row that was written there is no selection any more.
    color_.KeyPress();
    tagCloser_.KeyPress(KeyAscii);
    entities_.KeyPress(KeyAscii);
}

void TypingEngine::TakePickedRow() {
    if (frame_.ActiveForm() != &document_)
        return;
    autoFill_.StopTimer();
    color_.KeyPress();
    if (!listKeys_.RowPicked())
        color_.KeyPress();
}
