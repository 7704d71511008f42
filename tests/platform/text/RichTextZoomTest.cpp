// The size in which a text is drawn.
#include "RichTextFixture.h"

#include <QScrollBar>

namespace {

class RichTextZoomTest : public RichTextFixture {
  protected:
    bool CaretInView() {
        const int top = box.CaretPixel().y();
        return top >= 0 && top + box.LineHeight() <= box.viewport()->height();
    }
};

} // namespace

TEST_F(RichTextZoomTest, DrawsLargerAndKeepsTheFont) {
    box.SetText(QStringLiteral("some words"));
    const QFont font = box.Font();
    const int height = box.LineHeight();
    const int width = box.CharacterRect(9).left();
    box.SetZoom(200);
    EXPECT_EQ(box.Zoom(), 200);
    EXPECT_EQ(box.Font(), font);
    EXPECT_NEAR(box.LineHeight(), 2 * height, 3);
    EXPECT_NEAR(box.CharacterRect(9).left(), 2 * width, 12);
    box.SetZoom(100);
    EXPECT_EQ(box.LineHeight(), height);
    EXPECT_EQ(box.CharacterRect(9).left(), width);
    EXPECT_EQ(Signalled(), QStringList(QStringLiteral("Change"))) << "of the assignment";
}

TEST_F(RichTextZoomTest, GoesWithAFontThatComesLater) {
    box.SetZoom(200);
    box.SetFont(QFont(QStringLiteral("Arial"), 20));
    const int height = box.LineHeight();
    box.SetZoom(100);
    EXPECT_NEAR(height, 2 * box.LineHeight(), 3);
    EXPECT_EQ(box.Font().pointSize(), 20);
}

TEST_F(RichTextZoomTest, WrapsAnew) {
    box.SetText(QStringLiteral("words and more words, ").repeated(10) + QStringLiteral("\r\nlast"));
    QApplication::processEvents();
    const int rows = box.CharacterRect(box.TextLength()).top() / box.LineHeight();
    box.SetZoom(200);
    QApplication::processEvents();
    EXPECT_GT(box.CharacterRect(box.TextLength()).top() / box.LineHeight(), rows);
    EXPECT_EQ(box.horizontalScrollBar()->maximum(), 0);
}

TEST_F(RichTextZoomTest, CaretStaysInView) {
    box.SetText(
        QStringLiteral("a line of some words that is long enough to be wrapped when it is drawn larger\r\n")
            .repeated(100));
    for (const int caret : {0, 400, 1'000, 4'000, box.TextLength()}) {
        box.SetSelStart(caret);
        for (const int percent : {110, 150, 200, 300, 500, 50, 90, 100}) {
            box.SetZoom(percent);
            QApplication::processEvents();
            EXPECT_TRUE(CaretInView()) << caret << " at " << percent;
        }
    }
}

TEST_F(RichTextZoomTest, ViewStaysWhereTheCaretIsElsewhere) {
    box.SetText(QStringLiteral("line\r\n").repeated(1'000));
    box.SetSelStart(0);
    QApplication::processEvents();
    box.verticalScrollBar()->setValue(500);
    box.SetZoom(150);
    QApplication::processEvents();
    EXPECT_EQ(box.verticalScrollBar()->value(), 500);
}

TEST_F(RichTextZoomTest, LongestLineIsMeasuredAnew) {
    box.SetRightMargin(65000);
    box.SetText(QString(200, u'x'));
    QApplication::processEvents();
    box.SetZoom(300);
    box.viewport()->repaint();
    QApplication::processEvents();
    const int wide = box.horizontalScrollBar()->maximum();
    box.SetZoom(100);
    box.viewport()->repaint();
    QApplication::processEvents();
    EXPECT_GT(wide, 0);
    EXPECT_LT(box.horizontalScrollBar()->maximum(), wide / 2);
}

TEST_F(RichTextZoomTest, HugeFontGrowsNoFurther) {
    box.SetText(QStringLiteral("x"));
    box.SetFont(QFont(QStringLiteral("Arial"), 1638));
    const int height = box.LineHeight();
    box.SetZoom(500);
    EXPECT_EQ(box.LineHeight(), height);
}

TEST_F(RichTextZoomTest, WhatAnInputMethodComposesIsDrawnInItsSize) {
    box.SetText(QString());
    box.SetZoom(300);
    const QWidget& widget = box;
    EXPECT_EQ(widget.inputMethodQuery(Qt::ImFont).value<QFont>().pointSizeF(), 3 * box.Font().pointSizeF());
    QInputMethodEvent composing(QStringLiteral("MMMM"), {});
    QApplication::sendEvent(&box, &composing);
    const QImage picture = box.viewport()->grab().toImage();
    const QRgb ground = box.palette().color(QPalette::Highlight).rgb();
    int right = 0;
    for (int x = 0; x < picture.width(); ++x)
        right = picture.pixel(x, box.CaretPixel().y() + 2) == ground ? x : right;
    EXPECT_GT(right, 2 * QFontMetrics(box.Font()).horizontalAdvance(QStringLiteral("MMMM")));
}
