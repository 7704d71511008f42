// A print under way: all copies of a text, a page in each turn of the event loop.
#pragma once

#include "tools/printing/ModPrint.h"
#include "tools/printing/PrintErrors.h"

#include <memory>
#include <QObject>
#include <QTimer>

class Frame;
class PrintDevice;
class RichTextBox;

/// Prints what the text was when the job began: it may be edited, and its document closed, meanwhile. The
/// status bar tells the page, and Esc stops the job. Deletes itself at its end.
class PrintJob final : public QObject {
    Q_OBJECT

  public:
    /// The job of a frame; null where none is under way.
    static PrintJob* Of(Frame& frame);
    /// Starts one.
    PrintJob(Frame& frame, const RichTextBox& text, std::unique_ptr<PrintDevice> device, int copies);
    ~PrintJob() override;

  private:
    void Turn();
    void Stop();
    void Fail(PrintError error);
    void End();

    Frame& frame_;
    std::unique_ptr<RichTextBox> text_;
    std::unique_ptr<PrintDevice> device_;
    std::unique_ptr<ModPrint> copy_;
    int copiesLeft_;
    int page_ = 1;
    QTimer turn_;
};
