// The roads by which a file becomes a document window.
#include "app/OpenDocument.h"

#include "app/AwaitedFile.h"
#include "app/DocumentFiles.h"
#include "app/RecentFiles.h"
#include "editor/ColorizeText.h"
#include "editor/Document.h"
#include "editor/Forms.h"
#include "editor/Frame.h"
#include "platform/Path.h"
#include "platform/Prompts.h"
#include "platform/RichTextBox.h"
#include "platform/Settings.h"
#include "platform/WholeFile.h"

namespace {

const QString title = QStringLiteral("The Tarnwick");

/// Says so when a file is open already. The comparison is exact: another spelling of its path opens a file
/// twice.
bool RefusedAsDuplicate(Frame& frame, const QString& path) {
    if (!IsLoaded(frame, path))
        return false;
    frame.Ask().MsgBox(
        frame.Window(),
        QStringLiteral("File \"%1\" already opened.\r\nDuplicate copies not allowed.").arg(path),
        MsgButtons::OK, MsgIcon::Critical, title);
    return true;
}

void WriteColored(Frame& frame, QString& text) {
    bool keepDocument = true;
    ColorizeText(frame, text, keepDocument, true);
}

/// What stands there now is unchanged, and where undo ends: undoing the load itself would empty the page.
void CountAsLoaded(Document& document) {
    document.txtInput().EmptyUndoBuffer();
    document.SetModified(false);
}

} // namespace

bool IsLoaded(Frame& frame, const QString& path) {
    const Forms& forms = frame.LoadedForms();
    for (int i = 0; i < forms.Count(); ++i) {
        if (forms.CaptionAt(i) == path)
            return true;
    }
    return false;
}

void OpenDocumentFile(Frame& frame, const QString& path) {
    if (RefusedAsDuplicate(frame, path))
        return;
    frame.NewDocument();
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    std::optional<QString> text = DocumentFiles::ReadUpToEndOfText(path);
    if (text)
        TakeInText(frame, path, std::move(*text));
    else if (!path.isEmpty())
        new AwaitedFile(frame, *document, path);
}

void TakeInText(Frame& frame, const QString& path, QString text) {
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    document->SetCaption(path);
    if (frame.Store().ReadFlag(Keys::ColoredTags)) {
        frame.SetStatusPanel(QStringLiteral("Coloring HTML tags, please wait . . . "), true);
        WriteColored(frame, text);
        frame.SetStatusPanel(QString());
    } else {
        document->txtInput().SetSelText(text);
    }
    CountAsLoaded(*document);
    AddToRecentFiles(frame);
    frame.AddDocumentTab(path, Path::NameOnDisk(path));
}

void OpenRecentFile(Frame& frame, int n) {
    const QString path = RecentFiles::Caption(frame, n);
    if (WholeFile::Size(path) <= 0) {
        frame.Ask().MsgBox(frame.Window(),
                           QStringLiteral("The file you selected was not found.\r"
                                          "Please check to see if it was deleted or moved."),
                           MsgButtons::OK, MsgIcon::Exclamation, title);
        return;
    }
    if (RefusedAsDuplicate(frame, path))
        return;
    frame.NewDocument();
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    QString text = DocumentFiles::ReadInOneGo(path).value_or(QString());
    document->SetCaption(path);
    WriteColored(frame, text);
    CountAsLoaded(*document);
    frame.AddDocumentTab(path, Path::NameOnDisk(path));
}
