#include "app/recovery/OfferCopies.h"

#include "app/documents/TakeInText.h"
#include "app/recovery/LeftCopies.h"
#include "app/recovery/RecoverQuestion.h"
#include "app/recovery/Recovery.h"
#include "app/window/MainFrame.h"
#include "editor/frame/Document.h"
#include "editor/frame/Forms.h"
#include "platform/desktop/Prompts.h"
#include "platform/store/Settings.h"
#include "platform/text/RichTextBox.h"

#include <QFile>
#include <QPointer>

namespace {

/// The window that gets a copy is the active one then. One that the command line opened has the file's text,
/// in which nothing was changed yet.
void BringUpWindow(Frame& frame, const QString& path) {
    QWidget* form = path.isEmpty() ? nullptr : frame.LoadedForms().FindByCaption(path);
    auto* open = dynamic_cast<Document*>(form);
    if (!open)
        return frame.NewDocument();
    frame.ActivateDocument(*open);
    open->txtInput().SetText(QString());
}

void Recover(Frame& frame, Recovery& recovery, const LeftCopy& left) {
    BringUpWindow(frame, left.copy.path);
    Document* document = frame.ActiveForm();
    if (!document)
        return;
    TakeInRecovered(frame, left.copy.path, DocumentFiles::TakeBack(left.copy.content));
    document->txtInput().SetSelStart(left.copy.caret);
    recovery.Adopt(*document, left.run, left.file);
}

MsgAnswer Ask(Frame& frame, const std::vector<LeftCopy>& copies) {
    QStringList paths;
    for (const LeftCopy& left : copies)
        paths << left.copy.path;
    return frame.Ask().MsgBox(frame.Window(), RecoverQuestion(paths), MsgButtons::YesNo, MsgIcon::Question,
                              ProgramTitle);
}

void AskAndRecover(Frame& frame, Recovery& recovery, const std::vector<LeftCopy>& copies) {
    const QPointer<QWidget> window = frame.Window();
    const MsgAnswer answer = Ask(frame, copies);
    if (!window)
        return;
    for (const LeftCopy& left : copies) {
        if (answer == MsgAnswer::Yes)
            Recover(frame, recovery, left);
        else if (answer == MsgAnswer::No)
            QFile::remove(left.file);
    }
}

void TellUnreadable(MainFrame& frame, const QStringList& files) {
    const QString told =
        files.size() == 1
            ? QStringLiteral("A page that was not saved can't be read; it is kept: ")
            : QStringLiteral("%1 pages that were not saved can't be read; they are kept: ").arg(files.size());
    frame.ShowNotice(told + files.first());
}

} // namespace

void OfferCopies(MainFrame& frame, Recovery& recovery) {
    if (!frame.Store().ReadFlag(Keys::Recovery))
        return;
    const LeftCopies left = TakeLeftCopies();
    if (!left.copies.empty())
        AskAndRecover(frame, recovery, left.copies);
    if (!left.unreadable.isEmpty())
        TellUnreadable(frame, left.unreadable);
}
