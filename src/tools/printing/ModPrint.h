// One copy of a text on paper, page by page.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

class PrintDevice;
class RichTextBox;

/// In twips, from the paper's edges.
struct PrintMargins {
    int left;
    int top;
    int right;
    int bottom;
};

/// Where a page is drawn, in twips from the corner of what can be printed on.
QRectF DrawingRect(QSizeF paper, QPointF offset, const PrintMargins& margins);

/// Draws the text of a control, with its colours, on a device. The control and the device stay.
class ModPrint {
  public:
    enum class Step { More, Done, Failed };

    ModPrint(RichTextBox& control, PrintDevice& device, const PrintMargins& margins);

    /// Begins the job. False where the device fails.
    bool Start();
    /// Draws one page. Done with the last one, which ends the job.
    Step Page();

  private:
    RichTextBox& control_;
    PrintDevice& device_;
    QRectF rect_; ///< in the device's pixels
    int from_ = 0;
    int length_ = 0;
};
