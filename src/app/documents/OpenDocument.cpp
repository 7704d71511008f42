#include "app/documents/OpenDocument.h"

#include "app/documents/AwaitedFile.h"
#include "app/documents/DocumentFiles.h"
#include "app/documents/RecentFiles.h"
#include "app/documents/TakeInText.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/WholeFile.h"

namespace {

/// Says so when a file is open already. The comparison is exact: another spelling of its path opens a file
/// twice.
bool RefusedAsDuplicate(Frame& frame, const QString& path) {
    if (!frame.LoadedForms().FindByCaption(path))
        return false;
    frame.Ask().MsgBox(
        frame.Window(),
        QStringLiteral("File \"%1\" already opened.\r\nDuplicate copies not allowed.").arg(path),
        MsgButtons::OK, MsgIcon::Critical, ProgramTitle);
    return true;
}

} // namespace

void OpenDocumentFile(Frame& frame, const QString& path) {
    if (RefusedAsDuplicate(frame, path))
        return;
    frame.NewDocument();
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    std::optional<FileText> file = DocumentFiles::ReadUpToEndOfText(frame.Store(), path);
    if (file)
        TakeInText(frame, path, std::move(*file));
    else if (!path.isEmpty())
        new AwaitedFile(frame, *document, path);
}

void OpenRecentFile(Frame& frame, int n) {
    const QString path = RecentFiles::Caption(frame, n);
    if (WholeFile::Size(path) <= 0) {
        frame.Ask().MsgBox(frame.Window(),
                           QStringLiteral("The file you selected was not found.\r"
                                          "Please check to see if it was deleted or moved."),
                           MsgButtons::OK, MsgIcon::Exclamation, ProgramTitle);
        return;
    }
    if (RefusedAsDuplicate(frame, path))
        return;
    frame.NewDocument();
    TakeInRecentText(frame, path, DocumentFiles::ReadOrNothing(frame.Store(), path));
}
