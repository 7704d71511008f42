#include "app/documents/SaveOver.h"

#include "app/documents/CutPages.h"
#include "app/documents/DocumentFiles.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "editor/frame/TellFailedSave.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "platform/values/Path.h"

#include <QFileInfo>

namespace {

bool OthersChanged(Frame& frame, Document& document) {
    return frame.Store().ReadFlag(Keys::AskBeforeOverwrite) &&
           document.OnDisk().mark.Compare(document.Caption()) == FileMark::Now::Changed;
}

bool WantsItOverwritten(Frame& frame, Document& document) {
    const QString path = document.Caption();
    // Who was asked need not be told any more.
    document.OnDisk().told = FileStatus::Of(path);
    const QString question =
        QStringLiteral("\"%1\" has changed on disk since it was opened or saved here. Overwrite it?");
    return frame.Ask().MsgBox(frame.Window(), question.arg(Path::FileName(path)),
                              MsgButtons::YesOrNoByDefault, MsgIcon::Exclamation,
                              ProgramTitle) == MsgAnswer::Yes;
}

/// Keeps the whole file first where the document holds only a part of it.
SaveResult WriteNow(Frame& frame, const QString& path, Document& document,
                    const std::function<WriteResult()>& write) {
    const KeptFile kept = CutPages::Keep(frame.Store(), path, document);
    const WriteResult written = kept.result ? write() : kept.result;
    if (!written) {
        TellFailedSave(frame, path, written.Reason());
        // What can't be kept is not lost as long as all is left as it is.
        return kept.result ? SaveResult::Failed : SaveResult::Refused;
    }
    if (!kept.path.isEmpty())
        CutPages::TellKept(frame, path, kept.path);
    return SaveResult::Saved;
}

SaveResult AskAndWrite(Frame& frame, Document& document, const std::function<WriteResult()>& write) {
    const QWidget* window = &document.Window();
    if (OthersChanged(frame, document) && !WantsItOverwritten(frame, document))
        return SaveResult::Refused;
    // It may have gone while the question was up.
    if (!frame.LoadedForms().Holds(window))
        return SaveResult::Cancelled;
    return WriteNow(frame, document.Caption(), document, write);
}

bool IsItsFile(const Document& document, const QString& path) {
    const QString own = document.Caption();
    return !own.isEmpty() && QFileInfo(own) == QFileInfo(path);
}

} // namespace

SaveResult SaveOver(Frame& frame, Document& document) {
    return AskAndWrite(frame, document, [&frame, &document] {
        return DocumentFiles::Save(frame.Store(), document.Caption(), document);
    });
}

SaveResult WriteOver(Frame& frame, Document& document, const std::function<WriteResult()>& write) {
    const QWidget* window = &document.Window();
    const SaveResult result = AskAndWrite(frame, document, write);
    // A step that lets events through may have seen it go.
    if (result == SaveResult::Saved && frame.LoadedForms().Holds(window))
        DocumentFiles::TakeAsKnown(frame.Store(), document.Caption(), document);
    return result;
}

SaveResult SaveUnder(Frame& frame, const QString& path, Document& document) {
    const bool isItsFile = IsItsFile(document, path);
    if (!isItsFile)
        document.OnDisk().wasReadWhole = true;
    const SaveResult result =
        WriteNow(frame, path, document, [&] { return DocumentFiles::Save(frame.Store(), path, document); });
    // Whatever stands there the user has agreed to see overwritten.
    if (result == SaveResult::Failed && !isItsFile)
        DocumentFiles::TakeAsKnown(frame.Store(), path, document);
    return result;
}
