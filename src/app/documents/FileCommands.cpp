#include "app/documents/FileCommands.h"

#include "app/documents/DocumentFiles.h"
#include "app/documents/DocumentPaths.h"
#include "app/documents/OpenDocument.h"
#include "app/documents/RecentFiles.h"
#include "app/documents/SaveOver.h"
#include "dialogs/DialogState.h"
#include "dialogs/FileDialogs.h"
#include "editor/frame/ActiveText.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Path.h"

#include <QWidget>

namespace {

/// The HTML files of the filter are the ones shown at first.
FileRequest DocumentRequest() {
    return {.filter = FileFilter::Document, .filterIndex = 2};
}

/// The file to save as; cancelled where the user wants none.
FileAnswer AskWhereToSave(Frame& frame) {
    FileRequest request = DocumentRequest();
    request.defaultExtension =
        frame.Store().ReadFlag(Keys::UseHTM) ? QStringLiteral("htm") : QStringLiteral("html");
    return PickFileToSave(frame, frame.Window(), request);
}

void mnuClose_Click(Frame& frame) {
    if (Document* document = frame.ActiveForm())
        document->Unload();
}

} // namespace

void FillFileCommands(Frame& frame) {
    CommandSet& commands = frame.Commands();
    commands.Set(QStringLiteral("mnuOpen"), [&frame] { mnuOpen_Click(frame); });
    commands.Set(QStringLiteral("mnuSave"), [&frame] { mnuSave_Click(frame); });
    commands.Set(QStringLiteral("mnuSaveAs"), [&frame] { mnuSaveAs_Click(frame); });
    commands.Set(QStringLiteral("mnuClose"), [&frame] { mnuClose_Click(frame); });
    commands.Set(QStringLiteral("mnuExit"), [&frame] { frame.Window()->close(); });
    commands.Set(QStringLiteral("mnuInsertContents"), [&frame] { mnuInsertContents_Click(frame); });
    for (int n = 0; n < RecentFiles::Count; ++n)
        commands.Set(QStringLiteral("mnuFileArray_%1").arg(n), [&frame, n] { OpenRecentFile(frame, n); });
}

void mnuOpen_Click(Frame& frame) {
    FileRequest request = DocumentRequest();
    request.multiSelect = true;
    request.folder = frame.State<DialogState>().LastDir;
    const FileAnswer answer = frame.Ask().OpenFile(frame.Window(), request);
    if (answer.Cancelled())
        return;
    for (const QString& path : answer.Paths())
        frame.OpenDocumentFile(path);
    frame.State<DialogState>().LastDir = answer.folder;
}

SaveResult mnuSave_Click(Frame& frame) {
    Document* document = frame.ActiveForm();
    if (!document)
        return SaveResult::Cancelled;
    if (document->Caption().isEmpty())
        return mnuSaveAs_Click(frame);
    return SaveOver(frame, *document);
}

SaveResult mnuSaveAs_Click(Frame& frame) {
    if (!frame.ActiveForm())
        return SaveResult::Cancelled;
    const FileAnswer answer = AskWhereToSave(frame);
    Document* document = frame.ActiveForm();
    if (answer.Cancelled() || !document)
        return SaveResult::Cancelled;
    const QString path = answer.Path();
    // The document takes the new path either way; only what is safely in the file counts as saved.
    const SaveResult result = SaveUnder(frame, path, *document);
    frame.State<DialogState>().LastDir = answer.folder;
    Q_EMIT frame.State<DocumentPaths>().Left(document->Caption());
    document->SetCaption(path);
    AddToRecentFiles(frame);
    Q_EMIT frame.State<DocumentPaths>().Taken(path, Path::NameOnDisk(path));
    return result;
}

void mnuInsertContents_Click(Frame& frame) {
    if (!frame.ActiveForm())
        return;
    const FileAnswer answer = frame.Ask().OpenFile(frame.Window(), DocumentRequest());
    RichTextBox* txtInput = ActiveText(frame);
    if (answer.Cancelled() || !txtInput)
        return;
    if (const auto file = DocumentFiles::ReadInOneGo(frame.Store(), answer.Path()))
        txtInput->SetSelText(file->text);
}
