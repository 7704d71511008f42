#include "editor/color/InsertTag.h"

#include "editor/color/ColoredTags.h"
#include "editor/color/ColorizeText.h"
#include "editor/color/TagCase.h"
#include "editor/color/WriteColoredText.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "platform/text/UndoAction.h"
#include "platform/values/ReplaceAll.h"

#include <utility>

WrittenTag InsertTag(Frame& frame, QString open, QString close, KeepCase keepCase) {
    Document* document = frame.ActiveForm();
    // Before anything counts or lowers it: what the document can't hold goes in as references.
    if (document) {
        open = document->txtInput().Held(open);
        close = document->txtInput().Held(close);
    }
    if (keepCase == KeepCase::No) {
        const TagCase tagCase = TagCaseOf(frame.Store());
        open = InCase(open, tagCase);
        close = InCase(close, tagCase);
    }
    if (!document)
        return {open, close};
    RichTextBox& txtInput = document->txtInput();
    const UndoAction step(txtInput);
    QString selected = txtInput.SelText();
    open = WriteColoredText(frame, document, open, TagColorCode(open));
    ColorizeText(frame, std::move(selected), KeepDocument::Yes, CaretToTop::No);
    close = WriteColoredText(frame, document, close, TagColorCode(close));
    // The length as it is now: with colouring on, each CR LF in close counts the five characters of "\par ".
    txtInput.SetSelStart(txtInput.SelStart() - static_cast<int>(close.size()));
    // The caret left the place for which the flush had set the colour of what comes next, and stands at a
    // tag.
    if (WritesColored(frame.Store()))
        txtInput.SetSelColor(frame.Store().ReadNumber(Keys::TextColor[0]));
    return {open, close};
}

QString ReplaceInSelection(Frame& frame, const QString& text, const QString& find, const QString& replacement,
                           Compare compare) {
    const QString result = ReplaceAll(
        text, find, replacement, compare == Compare::IgnoreCase ? Qt::CaseInsensitive : Qt::CaseSensitive);
    if (RichTextBox* txtInput = ActiveText(frame))
        txtInput->SetSelText(result);
    else
        // 91: there is no object to assign to, as programs of this kind have always numbered it.
        frame.Ask().MsgBox(frame.Window(), QStringLiteral("Error - 91"), MsgButtons::OK, MsgIcon::Critical,
                           ProgramTitle);
    frame.Ask().MsgBox(frame.Window(), QStringLiteral("Finished!"), MsgButtons::OK, MsgIcon::Information,
                       ProgramTitle);
    return result;
}
