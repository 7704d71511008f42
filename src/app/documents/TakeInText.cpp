#include "app/documents/TakeInText.h"

#include "app/documents/CutPages.h"
#include "app/documents/DocumentPaths.h"
#include "app/documents/EncodingNote.h"
#include "app/documents/RecentFiles.h"
#include "editor/color/ColoredTags.h"
#include "editor/color/ColorizeText.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Path.h"

#include <utility>

namespace {

void WriteColored(Frame& frame, QString text) {
    ColorizeText(frame, std::move(text), KeepDocument::Yes, CaretToTop::Yes);
}

void WriteAsSet(Frame& frame, Document& document, QString text) {
    if (!ColoredTagsChecked(frame.Store())) {
        document.txtInput().SetSelText(text);
        return;
    }
    frame.SetStatusPanel(QStringLiteral("Coloring HTML tags, please wait . . . "), true);
    WriteColored(frame, std::move(text));
    frame.SetStatusPanel(QString());
}

/// The pass writes a text twice that ends in an open tag, as it does while one is typed: what stands behind
/// the last ">" is a text of its own.
void WriteExactly(Frame& frame, Document& document, const QString& text) {
    RichTextBox& txtInput = document.txtInput();
    const qsizetype closed = text.lastIndexOf(u'>') + 1;
    WriteAsSet(frame, document, text.left(closed));
    txtInput.SetSelStart(txtInput.TextLength());
    WriteAsSet(frame, document, text.mid(closed));
    if (txtInput.Text() != text)
        txtInput.SetText(text);
}

/// What stands there now is unchanged, and where undo ends: undoing the load itself would empty the page.
void CountAsLoaded(Document& document) {
    document.txtInput().EmptyUndoBuffer();
    document.SetModified(false);
}

void TakeInFile(Document& document, const QString& path, const FileText& file) {
    document.SetCaption(path);
    document.SetEncoding(file.encoding);
    document.OnDisk() = {.mark = file.mark, .told = {}, .wasReadWhole = file.part == ReadPart::Whole};
}

} // namespace

void TakeInText(Frame& frame, const QString& path, FileText file) {
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    TakeInFile(*document, path, file);
    WriteAsSet(frame, *document, std::move(file.text));
    CountAsLoaded(*document);
    AddToRecentFiles(frame);
    Q_EMIT frame.State<DocumentPaths>().Taken(path, Path::NameOnDisk(path));
    TellEncoding(frame, *document);
    CutPages::Tell(frame, path, file.part);
}

void TakeInRecentText(Frame& frame, const QString& path, FileText file) {
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    TakeInFile(*document, path, file);
    WriteColored(frame, std::move(file.text));
    CountAsLoaded(*document);
    Q_EMIT frame.State<DocumentPaths>().Taken(path, Path::NameOnDisk(path));
    TellEncoding(frame, *document);
    CutPages::Tell(frame, path, file.part);
}

void TakeInRecovered(Frame& frame, const QString& path, const FileText& file) {
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    TakeInFile(*document, path, file);
    WriteExactly(frame, *document, file.text);
    document->txtInput().EmptyUndoBuffer();
    document->SetModified(true);
    if (!path.isEmpty()) {
        AddToRecentFiles(frame);
        const QString name = Path::NameOnDisk(path);
        Q_EMIT frame.State<DocumentPaths>().Taken(path, name.isEmpty() ? Path::FileName(path) : name);
    }
    TellEncoding(frame, *document);
}
