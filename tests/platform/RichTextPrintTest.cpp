// Pages of the text, as printing takes them.
#include "platform/RichTextFixture.h"

#include <QPainter>

namespace {

using RichTextPrintTest = RichTextFixture;
using namespace Qt::StringLiterals;

TEST_F(RichTextPrintTest, PagesCoverTheTextWithoutGapOrRepeat) {
    QString text;
    for (int i = 0; i < 120; ++i)
        text += u"line %1 "_s.arg(i) + QString(i * 3, u'w') + (i % 2 == 0 ? u"\r\n"_s : u"\n"_s);
    box.SetText(text);
    QImage sheet(600, 400, QImage::Format_RGB32);
    QPainter painter(&sheet);
    const QRectF page(20, 20, 300, 300);
    int from = 0;
    int pages = 0;
    while (from < box.TextLength()) {
        const int measured = box.FormatRange(false, painter, page, from);
        const int next = box.FormatRange(true, painter, page, from);
        EXPECT_EQ(measured, next);
        ASSERT_GT(next, from);
        from = next;
        ++pages;
    }
    EXPECT_EQ(from, text.size());
    EXPECT_GT(pages, 5);
    EXPECT_EQ(box.FormatRange(true, painter, page, from), text.size());
}

TEST_F(RichTextPrintTest, ATextThatFitsIsDoneAtOnce) {
    QImage sheet(600, 400, QImage::Format_RGB32);
    QPainter painter(&sheet);
    for (const QString& text : {QString(), u"one"_s, u"one\r\n"_s, u"one\r\n\r\n"_s, u"\n"_s}) {
        box.SetText(text);
        EXPECT_EQ(box.FormatRange(true, painter, QRectF(0, 0, 600, 400), 0), text.size());
    }
    EXPECT_EQ(box.FormatRange(true, painter, QRectF(0, 0, 600, 400), 99), 1) << "nothing is behind the end";
}

TEST_F(RichTextPrintTest, OneLineOverManyPagesIsDrawnOnce) {
    // No blank, so that each row holds as much as fits and the pages can be counted against one another.
    box.SetText(QString(60000, u'm'));
    QImage sheet(600, 400, QImage::Format_RGB32);
    QPainter painter(&sheet);
    const QRectF page(0, 0, 600, 400);
    std::vector<int> starts{0};
    while (starts.back() < 60000 && starts.size() < 1000)
        starts.push_back(box.FormatRange(false, painter, page, starts.back()));
    ASSERT_EQ(starts.back(), 60000);
    for (std::size_t i = 2; i + 1 < starts.size(); ++i)
        EXPECT_EQ(starts[i] - starts[i - 1], starts[1]) << "page " << i;
}

TEST_F(RichTextPrintTest, APageTooLowForARowTakesOneAllTheSame) {
    box.SetText(u"a\nb\n"_s);
    QImage sheet(100, 100, QImage::Format_RGB32);
    QPainter painter(&sheet);
    EXPECT_EQ(box.FormatRange(true, painter, QRectF(0, 0, 100, 1), 0), 2);
}

TEST_F(RichTextPrintTest, PagesAreDrawnInColorInsideTheirRectangle) {
    QFont font = box.Font();
    font.setPointSize(30);
    box.SetFont(font);
    box.SetBackColor(0);
    Put(u"MMé€"_s, u"rrgg"_s);
    QImage sheet(400, 400, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    box.FormatRange(true, painter, QRectF(100, 100, 250, 250), 0);
    painter.end();
    int reds = 0;
    int greens = 0;
    int outside = 0;
    for (int x = 0; x < 400; ++x) {
        for (int y = 0; y < 400; ++y) {
            const QColor color = sheet.pixelColor(x, y);
            reds += color == QColor(255, 0, 0) ? 1 : 0;
            greens += color == QColor(0, 255, 0) ? 1 : 0;
            outside += color != QColor(Qt::white) && (x < 95 || y < 95) ? 1 : 0;
        }
    }
    EXPECT_GT(reds, 10);
    EXPECT_GT(greens, 10);
    EXPECT_EQ(outside, 0);
}

TEST_F(RichTextPrintTest, MeasuringDrawsNothing) {
    box.SetText(u"MMMM"_s);
    QImage sheet(100, 100, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    const QImage blank = sheet;
    QPainter painter(&sheet);
    box.FormatRange(false, painter, QRectF(0, 0, 100, 100), 0);
    painter.end();
    EXPECT_EQ(sheet, blank);
}

} // namespace
