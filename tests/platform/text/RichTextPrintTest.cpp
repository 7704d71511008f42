// Pages of the text, as printing takes them.
#include "platform/text/RichTextFixture.h"

#include <optional>
#include <QPainter>

namespace {

using namespace Qt::StringLiterals;

class RichTextPrintTest : public RichTextFixture {
  protected:
    /// In letters so large that their strokes have their full colour.
    void Enlarge() {
        QFont font = box.Font();
        font.setPointSize(40);
        box.SetFont(font);
    }

    /// A sheet with the text from its start on a page of it.
    QImage Draw(const QRectF& page, const QSize& size = QSize(600, 400)) {
        QImage sheet(size, QImage::Format_RGB32);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        box.FormatRange(true, painter, page, 0);
        return sheet;
    }

    /// What a colour, or anything at all, has been drawn on.
    static QRect Drawn(const QImage& sheet, std::optional<QColor> color = std::nullopt) {
        QRect all;
        for (int x = 0; x < sheet.width(); ++x) {
            for (int y = 0; y < sheet.height(); ++y) {
                const QColor here = sheet.pixelColor(x, y);
                if (color ? here == *color : here != QColor(Qt::white))
                    all |= QRect(x, y, 1, 1);
            }
        }
        return all;
    }
};

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

TEST_F(RichTextPrintTest, EachCharacterHasItsColorAndEachRowItsPlace) {
    Enlarge();
    Put(u"HÉH\r\nH\nH"_s, u"rgbkkrkg"_s);
    const QImage sheet = Draw(QRectF(50, 60, 500, 330));
    const QColor colors[] = {QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 0, 255)};
    const QImage firstRow = sheet.copy(0, 0, 600, 60 + QFontMetrics(box.Font(), &sheet).height());
    const QRect redLetter = Drawn(firstRow, colors[0]);
    const QRect greenLetter = Drawn(firstRow, colors[1]);
    const QRect blueLetter = Drawn(firstRow, colors[2]);
    ASSERT_FALSE(redLetter.isEmpty() || greenLetter.isEmpty() || blueLetter.isEmpty());
    EXPECT_LT(redLetter.right(), greenLetter.left());
    EXPECT_LT(greenLetter.right(), blueLetter.left());
    const QRect secondRow = Drawn(sheet.copy(0, blueLetter.bottom() + 1, 600, 400), colors[0]);
    const QRect thirdRow = Drawn(sheet.copy(0, blueLetter.bottom() + 1, 600, 400), colors[1]);
    ASSERT_FALSE(secondRow.isEmpty() || thirdRow.isEmpty());
    EXPECT_LT(secondRow.bottom(), thirdRow.top());
    EXPECT_NEAR(secondRow.left(), redLetter.left(), 1);
}

TEST_F(RichTextPrintTest, NothingStandsOutsideThePage) {
    Enlarge();
    const QRect page(100, 110, 300, 150);
    for (const QString& text : {QString(100, u'M'), u"MMM MMM "_s.repeated(20), u"M\n"_s.repeated(20)}) {
        box.SetText(text);
        const QRect drawn = Drawn(Draw(page));
        EXPECT_TRUE(page.adjusted(-3, 0, 3, 0).contains(drawn)) << text.left(4).toStdString();
        EXPECT_FALSE(drawn.isEmpty());
    }
}

TEST_F(RichTextPrintTest, ATabIsEightBlanksWide) {
    Enlarge();
    box.SetText(u"\tH"_s);
    const QRect behindTab = Drawn(Draw(QRectF(0, 0, 600, 400)));
    box.SetText(u"        H"_s);
    EXPECT_NEAR(behindTab.left(), Drawn(Draw(QRectF(0, 0, 600, 400))).left(), 1);
}

TEST_F(RichTextPrintTest, LineEndsAreNotDrawn) {
    Enlarge();
    box.SetText(u"HE"_s);
    const QImage plain = Draw(QRectF(0, 0, 600, 400));
    for (const QString& end : {u"\n"_s, u"\r"_s, u"\r\n"_s}) {
        box.SetText(u"HE"_s + end);
        EXPECT_EQ(Draw(QRectF(0, 0, 600, 400)), plain) << end.size();
    }
}

TEST_F(RichTextPrintTest, ALongLineFillsEachRowOfALargePage) {
    // Such a line is set in stretches; no row may end where a stretch does.
    box.SetText(QString(150000, u'm'));
    QImage sheet(10, 10, QImage::Format_RGB32);
    QPainter painter(&sheet);
    const int row = box.FormatRange(false, painter, QRectF(0, 0, 3000, 1), 0);
    const int page = box.FormatRange(false, painter, QRectF(0, 0, 3000, 1500), 0);
    ASSERT_GT(row, 100);
    EXPECT_GT(page, 20000);
    EXPECT_LT(page, 150000);
    EXPECT_EQ(page % row, 0);
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
