#include "tools/printing/ModPrint.h"

#include "platform/desktop/PrintDevice.h"
#include "platform/text/RichTextBox.h"

QRectF DrawingRect(QSizeF paper, QPointF offset, const PrintMargins& margins) {
    const QPointF corner(margins.left - offset.x(), margins.top - offset.y());
    const QPointF opposite(paper.width() - margins.right - offset.x(),
                           paper.height() - margins.bottom - offset.y());
    return {corner, opposite};
}

ModPrint::ModPrint(RichTextBox& control, PrintDevice& device, const PrintMargins& margins)
    : control_(control), device_(device) {
    const QRectF twips = DrawingRect(device.Paper(), device.Offset(), margins);
    const double scale = device.PixelsPerTwip();
    rect_ = {twips.topLeft() * scale, twips.size() * scale};
}

bool ModPrint::Start() {
    from_ = 0;
    length_ = control_.TextLength();
    return device_.Start();
}

ModPrint::Step ModPrint::Page() {
    const int next = control_.FormatRange(true, device_.Painter(), rect_, from_);
    if (next >= length_)
        return device_.End() ? Step::Done : Step::Failed;
    // A page always takes something; one that takes nothing would be followed by others without end.
    if (next <= from_ || !device_.NewPage())
        return Step::Failed;
    from_ = next;
    return Step::More;
}
