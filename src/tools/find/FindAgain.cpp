#include "tools/find/FindAgain.h"

#include "editor/frame/ActiveText.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "tools/find/FindState.h"

#include <algorithm>

namespace {

/// In upper case, each character where it stood.
QString UpperCase(QString text) {
    std::transform(text.begin(), text.end(), text.begin(), [](QChar c) { return c.toUpper(); });
    return text;
}

/// The match at a place or behind it, or else the last one before it; 0-based, -1 where there is none.
qsizetype IndexOf(const QString& wanted, const QString& text, int place, int direction) {
    if (wanted.isEmpty())
        return -1;
    if (direction == FindAgainState::Forward)
        return text.indexOf(wanted, place);
    return place < 2 ? -1 : text.lastIndexOf(wanted, place - 2);
}

} // namespace

void FindAgain(Frame& frame) {
    auto& state = frame.State<FindAgainState>();
    RichTextBox* txtInput = ActiveText(frame);
    qsizetype found = -1;
    if (txtInput) {
        const int caret = txtInput->SelStart();
        const int place = caret + (caret == state.LastCaret && !state.FirstSearch ? 1 : 0);
        const QString text = txtInput->Text();
        found = state.MatchCase ? IndexOf(state.Text, text, place, state.Direction)
                                : IndexOf(UpperCase(state.Text), UpperCase(text), place, state.Direction);
    }
    if (found >= 0) {
        txtInput->SetSelStart(static_cast<int>(found));
        txtInput->SetSelLength(static_cast<int>(state.Text.size()));
    } else {
        frame.Ask().MsgBox(frame.Window(), QStringLiteral("Cannot find \"%1\"").arg(state.Text),
                           MsgButtons::OK, MsgIcon::None, ProgramTitle);
    }
    if (txtInput)
        state.LastCaret = txtInput->SelStart();
    state.FirstSearch = false;
}
