#include "app/documents/Skeletons.h"

#include "app/documents/DocumentFiles.h"
#include "app/run/ProgramState.h"
#include "app/run/Version.h"
#include "editor/color/ColorizeText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "platform/text/UndoAction.h"

#include <QStringList>

namespace {

/// Whether the document's text may go: an empty one goes unasked.
bool MayReplace(Frame& frame, Document& document, const QString& title) {
    if (document.txtInput().TextLength() == 0)
        return true;
    return frame.Ask().MsgBox(frame.Window(),
                              QStringLiteral("This will overwrite current document!  Continue?"),
                              MsgButtons::YesNo, MsgIcon::Exclamation, title) != MsgAnswer::No;
}

} // namespace

void FillSkeletonCommands(Frame& frame) {
    CommandSet& commands = frame.Commands();
    commands.Set(QStringLiteral("mnuDefault"), [&frame] { mnuDefault_Click(frame); });
    commands.Set(QStringLiteral("mnuUserTemplate"), [&frame] { mnuUserTemplate_Click(frame); });
    commands.Set(QStringLiteral("mnuSetUserTemplate"), [&frame] { mnuSetUserTemplate_Click(frame); });
}

QString DefaultSkeleton(const QString& version) {
    const QStringList lines = {
        QStringLiteral("<HTML>"),
        QStringLiteral("<HEAD>"),
        QStringLiteral("<meta name=\"generator\" content=\"The Tarnwick %1\">").arg(version),
        QStringLiteral("<TITLE></TITLE>"),
        QStringLiteral("</HEAD>"),
        QStringLiteral("<BODY>"),
        QString(),
        QStringLiteral("</BODY>"),
        QStringLiteral("</HTML>"),
    };
    return lines.join(QStringLiteral("\r\n"));
}

void mnuDefault_Click(Frame& frame) {
    Document* document = frame.ActiveForm();
    if (!document || !MayReplace(frame, *document, QStringLiteral("Overwrite!")))
        return;
    const UndoAction step(document->txtInput());
    document->txtInput().SetText(QString());
    ColorizeText(frame, DefaultSkeleton(Version::Dotted()), KeepDocument::No, CaretToTop::No);
}

void mnuUserTemplate_Click(Frame& frame) {
    Document* document = frame.ActiveForm();
    if (!document || !MayReplace(frame, *document, ProgramTitle))
        return;
    const UndoAction step(document->txtInput());
    document->txtInput().SetText(QString());
    const QString& text = frame.State<ProgramState>().UserTemplate;
    if (text.isEmpty())
        return;
    DocumentFiles::SuitEncoding(frame.Store(), *document, text);
    ColorizeText(frame, text, KeepDocument::Yes, CaretToTop::No);
}

void mnuSetUserTemplate_Click(Frame& frame) {
    Document* document = frame.ActiveForm();
    if (!document) {
        frame.Ask().MsgBox(frame.Window(), QStringLiteral("Load document first."), MsgButtons::OK,
                           MsgIcon::Critical, ProgramTitle);
        return;
    }
    frame.State<ProgramState>().UserTemplate = document->txtInput().Text();
}
