#include "editor/autofill/AutoFillKeys.h"

#include "editor/autofill/AutoFill.h"
#include "editor/autofill/AutoFillList.h"
#include "editor/autofill/frmDropDown.h"
#include "editor/frame/Document.h"
#include "editor/frame/EditorOptions.h"
#include "editor/frame/Frame.h"
#include "platform/text/KeyCodes.h"
#include "platform/text/RichTextBox.h"

AutoFillKeys::AutoFillKeys(Frame& frame, Document& document, AutoFill& lists)
    : frame_(frame), document_(document), lists_(lists), shared_(frame.State<AutoFillList>()) {}

bool AutoFillKeys::KeyPress(int& KeyAscii) {
    switch (KeyAscii) {
    case KeyAsciiOf::Blank:
        return Blank();
    case KeyAsciiOf::Backspace:
        if (lists_.TypedWord().IsEmpty())
            lists_.UnloadList();
        lists_.ClearValueList();
        return true;
    case KeyAsciiOf::Equals:
        lists_.UnloadList();
        lists_.ClearValueList();
        return true;
    case KeyAsciiOf::Enter:
        return TakeRow(KeyAscii);
    default:
        return false;
    }
}

bool AutoFillKeys::Blank() {
    if (!frame_.State<EditorOptions>().UseAutoFill)
        return false;
    if (!shared_.DropDownOpen()) {
        lists_.WhatChar(QStringLiteral(" "));
        return false;
    }
    lists_.UnloadList();
    // Meant as it stands: from here on no list follows the caret, until a document window opens.
    shared_.StopFollowing();
    lists_.ClearValueList();
    return true;
}

bool AutoFillKeys::TakeRow(int& KeyAscii) {
    if (!shared_.DropDownOpen())
        return false;
    const AutoFill::Taken taken = lists_.TakeRow();
    if (taken != AutoFill::Taken::Nothing)
        KeyAscii = 0;
    return taken == AutoFill::Taken::InQuotes;
}

bool AutoFillKeys::RowPicked() {
    return shared_.DropDownOpen() && lists_.TakeRow() == AutoFill::Taken::InQuotes;
}

void AutoFillKeys::KeyDown(int& KeyCode) {
    if (KeyCode == KeyCodeOf::Escape || KeyCode == KeyCodeOf::Right) {
        lists_.UnloadList();
        lists_.ClearValueList();
    }
    if (KeyCode == KeyCodeOf::Down)
        shared_.RememberCaret(document_.txtInput().SelStart());
    if (KeyCode == KeyCodeOf::Up || KeyCode == KeyCodeOf::Down)
        GoIntoList(KeyCode);
}

void AutoFillKeys::GoIntoList(int& KeyCode) {
    frmDropDown* list = lists_.List();
    // The key that goes into the list moves no caret in the text: Esc would come back to another line.
    if (list && list->FocusList())
        KeyCode = 0;
}
