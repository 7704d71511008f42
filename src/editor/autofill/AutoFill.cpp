#include "editor/autofill/AutoFill.h"

#include "editor/autofill/AutoFillList.h"
#include "editor/autofill/frmDropDown.h"
#include "editor/color/PickColor.h"
#include "editor/color/TagCase.h"
#include "editor/color/TagEnds.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"

#include <algorithm>
#include <QTimer>

namespace {

/// How many characters before the caret are searched for the start of a tag.
constexpr int reach = 150;
/// No attribute that has a list of values has a name as long as this.
constexpr int longestName = 64;

} // namespace

AutoFill::AutoFill(Frame& frame, Document& document, QTimer& Timer1, QObject* parent)
    : QObject(parent), frame_(frame), shared_(frame.State<AutoFillList>()), document_(document),
      Timer1_(Timer1) {
    Timer1_.stop();
    Timer1_.setSingleShot(true);
    Timer1_.setInterval(Delay);
    connect(&Timer1_, &QTimer::timeout, this, &AutoFill::Timer1_Timer);
    shared_.DocumentOpened();
}

frmDropDown* AutoFill::List() const {
    return frame_.LoadedForms().Find<frmDropDown>();
}

void AutoFill::UnloadList() {
    frame_.LoadedForms().Unload<frmDropDown>();
}

void AutoFill::StopTimer() {
    Timer1_.stop();
}

void AutoFill::WhatChar(const QString& typed) {
    const int caret = document_.txtInput().SelStart();
    const auto bracket = BracketBefore(caret, ReaderOf(document_.txtInput()), reach);
    if (!bracket)
        return;
    if (bracket->kind == Bracket::Close) {
        shared_.Close();
        return;
    }
    int position = bracket->place + 1;
    OpenFunc(typed, position);
}

void AutoFill::OpenFunc(const QString& typed, int& position) {
    const RichTextBox& text = document_.txtInput();
    ++position;
    const int behindBracket = position - 1;
    const QString inTag = text.TextRange(behindBracket, text.SelStart() - behindBracket) + typed;
    const auto blank = inTag.indexOf(u' ');
    if (blank < 0)
        return;
    const AutoFillRows rows = AttributeRows(inTag.left(blank).toLower());
    if (rows.isEmpty())
        return;
    OpenDD(false);
    Fill(rows, QStringLiteral("Attributes"));
}

void AutoFill::OpenDD(bool /*quoted*/) {
    Timer1_.start();
    document_.txtInput().SetFocus();
    TypedWord_.Clear();
    WordStart_ = document_.txtInput().SelStart() + 1;
    shared_.Open();
}

void AutoFill::Fill(const AutoFillRows& rows, const QString& called) {
    frame_.LoadedForms().Load<frmDropDown>(frame_).Fill(rows, called);
}

void AutoFill::Timer1_Timer() {
    // The Right key, or a key in another document, may have taken the list away within the pause: it is then
    // loaded anew, without rows, and stays hidden.
    frame_.LoadedForms().Load<frmDropDown>(frame_).Open();
    shared_.Open();
    document_.txtInput().SetFocus();
    Timer1_.stop();
}

void AutoFill::FollowChange() {
    frmDropDown* list = List();
    if (list && shared_.DropDownFollowsCaret())
        list->MoveToCaret();
    WordStart_ = std::max(WordStart_, 1);
    TypedWord_.Take(document_.txtInput(), WordStart_ - 1, document_.txtInput().SelStart());
    if (list && shared_.DropDownOpen() && !TypedWord_.IsEmpty())
        SelectMatchingRow();
}

void AutoFill::SelectMatchingRow() {
    frmDropDown& list = *List();
    for (int row = 0; row < list.RowCount(); ++row) {
        if (!TypedWord_.Begins(list.RowText(row)))
            continue;
        // The text that a pick from the list itself writes must not move the selection there.
        if (!shared_.TakePick())
            list.SelectRow(row);
        list.ScrollToSelected();
        return;
    }
}

AutoFill::Taken AutoFill::TakeRow() {
    RichTextBox& text = document_.txtInput();
    const frmDropDown* list = List();
    const std::optional<QString> key = list ? list->SelectedKey() : std::nullopt;
    if (!key) {
        // An empty list has nothing to give: the typed word stays, and the Enter is an ordinary one.
        ClearValueList();
        UnloadList();
        shared_.Close();
        return Taken::Nothing;
    }
    // The word of an attribute begins behind the blank that opened the list, that of a value at once.
    text.SetSelStart(ValueList_ ? WordStart_ - 1 : WordStart_);
    ClearValueList();
    text.SetSelLength(TypedWord_.Length());
    const QChar last = WriteKey(*key);
    UnloadList();
    shared_.Close();
    if (last != u'"')
        return last.isNull() ? Taken::Nothing : Taken::Word;
    text.SetSelStart(text.SelStart() - 1);
    DoQuote();
    return Taken::InQuotes;
}

QChar AutoFill::WriteKey(const QString& key) {
    QString written = key;
    if (key == QLatin1String("custom")) {
        const std::optional<ColorNumber> picked = PickColor(frame_.Ask(), frame_.Window());
        if (!picked)
            return {};
        written = u'#' + ColorHex(*picked);
    } else {
        written = InCase(key, TagCaseOf(frame_.Store()));
    }
    document_.txtInput().SetSelText(written);
    return written.back();
}

void AutoFill::DoQuote() {
    const RichTextBox& text = document_.txtInput();
    const int equals = text.FindForward(u'=', WordStart_ - 1);
    const int length = equals - WordStart_;
    if (length < 1 || length > longestName)
        return;
    const AutoFillRows rows = ValueRows(text.TextRange(WordStart_, length).toLower());
    if (rows.isEmpty())
        return;
    ValueList_ = true;
    OpenDD(true);
    Fill(rows, QStringLiteral("Values"));
}
