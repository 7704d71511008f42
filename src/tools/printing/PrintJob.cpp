#include "tools/printing/PrintJob.h"

#include "editor/frame/Frame.h"
#include "platform/desktop/EscapeKey.h"
#include "platform/desktop/PrintDevice.h"
#include "platform/text/RichTextBox.h"

#include <QWidget>

namespace {

constexpr PrintMargins oneInch{1440, 1440, 1440, 1440};

/// The same text in the same colours and font, and nothing that a person sees.
std::unique_ptr<RichTextBox> CopyOf(const RichTextBox& text) {
    auto copy = std::make_unique<RichTextBox>();
    copy->SetFont(text.Font());
    copy->SetRawLineEndMode(text.RawLineEndMode());
    copy->SetHolds(text.Holds());
    copy->SetTextRTF(text.TextRTF());
    copy->EmptyUndoBuffer();
    return copy;
}

} // namespace

PrintJob* PrintJob::Of(Frame& frame) {
    return frame.Window()->findChild<PrintJob*>(QString(), Qt::FindDirectChildrenOnly);
}

PrintJob::PrintJob(Frame& frame, const RichTextBox& text, std::unique_ptr<PrintDevice> device, int copies)
    : QObject(frame.Window()), frame_(frame), text_(CopyOf(text)), device_(std::move(device)),
      copiesLeft_(copies) {
    auto* escape = new EscapeKey(*frame.Window(), this);
    connect(escape, &EscapeKey::Pressed, this, &PrintJob::Stop);
    connect(&turn_, &QTimer::timeout, this, &PrintJob::Turn);
    turn_.start(0);
}

// A frame that goes takes a job with it that is under way.
PrintJob::~PrintJob() {
    if (device_)
        device_->Abort();
}

void PrintJob::Turn() {
    if (!copy_) {
        if (copiesLeft_-- == 0)
            return device_->Close() ? End() : Fail(PrintError::FileAccess);
        copy_ = std::make_unique<ModPrint>(*text_, *device_, oneInch);
        if (!copy_->Start())
            return Fail(PrintError::Printer);
    }
    frame_.SetStatusPanel(tr("Printing page %1, Esc stops . . . ").arg(page_++));
    switch (copy_->Page()) {
    case ModPrint::Step::More:
        return;
    case ModPrint::Step::Done:
        return copy_.reset();
    case ModPrint::Step::Failed:
        return Fail(PrintError::Printer);
    }
}

void PrintJob::Stop() {
    device_->Abort();
    End();
}

void PrintJob::Fail(PrintError error) {
    device_->Abort();
    End();
    const PrintErrorBox box = BoxOf(error);
    frame_.Ask().MsgBox(frame_.Window(), box.text, MsgButtons::OK, box.icon, box.title);
}

void PrintJob::End() {
    turn_.stop();
    device_.reset();
    frame_.SetStatusPanel(QString());
    setParent(nullptr);
    deleteLater();
}
