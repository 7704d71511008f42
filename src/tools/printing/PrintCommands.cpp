#include "tools/printing/PrintCommands.h"

#include "dialogs/DialogState.h"
#include "editor/frame/Commands.h"
#include "editor/frame/Document.h"
#include "editor/frame/Frame.h"
#include "platform/desktop/FileRequest.h"
#include "platform/desktop/Prompts.h"
#include "platform/text/RichTextBox.h"
#include "platform/values/Path.h"
#include "tools/printing/Copies.h"
#include "tools/printing/PrintErrors.h"
#include "tools/printing/PrintJob.h"

using namespace Qt::StringLiterals;

namespace {

/// The document's own name with another ending; empty for one that has none.
QString PdfName(const QString& caption) {
    const QString name = Path::FileName(caption);
    if (name.isEmpty())
        return {};
    const qsizetype dot = name.lastIndexOf(u'.');
    return (dot > 0 ? name.left(dot) : name) + u".pdf"_s;
}

/// Null where the user cancels.
std::unique_ptr<PrintDevice> AskForPdf(Frame& frame, const QString& caption) {
    const FileAnswer answer =
        frame.Ask().SaveFile(frame.Window(), {.filter = u"PDF Files (*.pdf)|*.pdf|All Files (*.*)|*.*|"_s,
                                              .folder = frame.State<DialogState>().LastDir,
                                              .fileName = PdfName(caption),
                                              .defaultExtension = u"pdf"_s});
    return answer.Cancelled() ? nullptr : frame.State<PrintDevices>().Pdf(answer.Path());
}

void mnuPrint_Click(Frame& frame) {
    if (PrintJob::Of(frame))
        return;
    const int copies =
        CopiesFrom(frame.Ask().InputBox(frame.Window(), u"Number of copies:"_s, u"Print"_s, u"1"_s));
    if (copies < 1)
        return;
    Document* document = frame.ActiveForm();
    if (!document) {
        const PrintErrorBox box = BoxOf(PrintError::NothingThere);
        frame.Ask().MsgBox(frame.Window(), box.text, MsgButtons::OK, box.icon, box.title);
        return;
    }
    std::unique_ptr<PrintDevice> device = frame.State<PrintDevices>().Default();
    if (!device)
        device = AskForPdf(frame, document->Caption());
    if (device)
        new PrintJob(frame, document->txtInput(), std::move(device), copies);
}

} // namespace

void FillPrintCommands(Frame& frame) {
    frame.Commands().Set(u"mnuPrint"_s, [&frame] { mnuPrint_Click(frame); });
}
