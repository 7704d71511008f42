// A text on pages, drawn from its parts.
#include "platform/text/TextPrinter.h"
#include "platform/text/TextParts.h"

#include <QImage>
#include <QPainter>

namespace {

using namespace Qt::StringLiterals;

using TextPrinterTest = TextParts;

TEST_F(TextPrinterTest, PagesFollowOneAnotherUntilTheTextsEnd) {
    Put(u"\u00e9 one\r\n"_s.repeated(50));
    QImage sheet(300, 200, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    const TextPrinter printer(buffer, colors, QFont(u"DejaVu Sans"_s, 10));
    int pages = 0;
    int from = 0;
    while (from < buffer.Length()) {
        const int next = printer.FormatRange(false, painter, QRectF(0, 0, 300, 200), from);
        ASSERT_GT(next, from);
        EXPECT_EQ(next % 7, 0) << "whole lines of seven characters";
        from = next;
        ++pages;
    }
    EXPECT_GT(pages, 2);
    const QImage blank = sheet;
    printer.FormatRange(true, painter, QRectF(0, 0, 300, 200), 0);
    EXPECT_NE(sheet, blank) << "only asked to draw it draws";
}

} // namespace
