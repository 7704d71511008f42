#include "tools/transforms/LineTags.h"

#include "editor/color/InsertTag.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Frame.h"
#include "platform/text/RichTextBox.h"

namespace {

struct Row {
    const char* name;
    const char* replacement; ///< of each CR LF
};

const Row rows[] = {
    {"mnuAddBreaks", "<BR>\r\n"},
    {"mnuAddLi", "\r\n<LI>"},
};

} // namespace

void FillLineTagCommands(Frame& frame) {
    for (const Row& row : rows)
        frame.Commands().Set(QString::fromLatin1(row.name), [&frame, &row] {
            if (const RichTextBox* txtInput = ActiveText(frame))
                ReplaceInSelection(frame, txtInput->SelText(), QStringLiteral("\r\n"),
                                   QString::fromLatin1(row.replacement));
        });
}
