#include "tools/transforms/LineEnds.h"

#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/ReplaceAll.h"

namespace {

struct Row {
    const char* name;
    const char* from;
    const char* to;
};

// What the text holds is not looked at: one with CR LF that is taken from CR ends in CR LF LF.
const Row rows[] = {
    {"mnuConvertFromMac", "\r", "\r\n"},
    {"mnuConvertFromUNIX", "\n", "\r\n"},
    {"mnuConvertToMac", "\r\n", "\r"},
    {"mnuConvertToUNIX", "\r\n", "\n"},
};

void WritePlain(Frame& frame, RichTextBox& txtInput, const QString& text) {
    // With a selection the colour would be the selection's, and undo would bring that back in it.
    txtInput.SetSelStart(txtInput.SelStart());
    txtInput.SetSelColor(frame.Store().ReadNumber(Keys::TextColor[0]));
    txtInput.SetText(text);
}

void Convert(Frame& frame, const Row& row) {
    const RichTextBox* txtInput = ActiveText(frame);
    ConvertLineEnds(frame, txtInput ? txtInput->Text() : QString(), QString::fromLatin1(row.from),
                    QString::fromLatin1(row.to));
}

} // namespace

QString ConvertLineEnds(Frame& frame, const QString& text, const QString& from, const QString& to) {
    const QString result = ReplaceAll(text, from, to);
    if (RichTextBox* txtInput = ActiveText(frame))
        WritePlain(frame, *txtInput, result);
    else
        frame.Ask().MsgBox(frame.Window(), QStringLiteral("An error occured, try again!"), MsgButtons::OK,
                           MsgIcon::Critical, ProgramTitle);
    frame.Ask().MsgBox(frame.Window(), QStringLiteral("Finished!"), MsgButtons::OK, MsgIcon::Information,
                       ProgramTitle);
    return result;
}

void FillLineEndCommands(Frame& frame) {
    for (const Row& row : rows)
        frame.Commands().Set(QString::fromLatin1(row.name), [&frame, &row] { Convert(frame, row); });
}
