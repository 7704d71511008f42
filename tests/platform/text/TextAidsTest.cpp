#include "platform/text/TextAids.h"

#include "RichTextFixture.h"

#include <array>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <QPainter>

namespace {

class TextAidsTest : public RichTextFixture {
  protected:
    QImage Picture() {
        QApplication::processEvents();
        return box.viewport()->grab().toImage();
    }
    /// The colour of the ground right of all text in the line of a position.
    ColorNumber Ground(int position) {
        const QRect place = box.CharacterRect(position);
        return FromQColor(Picture().pixelColor(box.viewport()->width() - 3, place.center().y()));
    }
    /// The colour of the ground at a character, in the corner where no letter reaches.
    ColorNumber Corner(int position) {
        const QRect place = box.CharacterRect(position);
        return FromQColor(Picture().pixelColor(place.left() + 1, place.top() + 1));
    }
    /// How many pixels two pictures differ in.
    static int Differing(const QImage& one, const QImage& other) {
        int differing = 0;
        for (int y = 0; y < one.height(); ++y)
            for (int x = 0; x < one.width(); ++x)
                differing += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
        return differing;
    }
};

} // namespace

TEST(AwayFrom, LeadsToTheOtherEnd) {
    EXPECT_EQ(AwayFrom(0xffffff, 0), 0xffffff);
    EXPECT_EQ(AwayFrom(0xffffff, 100), 0);
    EXPECT_EQ(AwayFrom(0, 100), 0xffffff);
    EXPECT_EQ(AwayFrom(0xffffff, 50), 0x808080);
    EXPECT_EQ(AwayFrom(0x0000ff, 100), 0xffffff) << "pure red is dark";
    EXPECT_EQ(AwayFrom(0x80ff80, 100), 0) << "light green is light";
    EXPECT_EQ(AwayFrom(0x00ffff, 10), 0x00e6e6);
}

TEST_F(TextAidsTest, AllIsOffAtFirst) {
    box.SetText(QStringLiteral("one\r\ntwo"));
    EXPECT_EQ(Ground(0), 0xffffff);
    EXPECT_EQ(box.CharacterRect(0).left(), box.CharacterRect(5).left());
    EXPECT_LT(box.CharacterRect(0).left(), 5);
    EXPECT_FALSE(box.Aids().IsMarked(0));
}

TEST_F(TextAidsTest, CurrentLineHasAGroundOfItsOwnOnAnyBackground) {
    box.SetText(QStringLiteral("one\r\ntwo\r\nthree"));
    box.Aids().ShowCurrentLine(true);
    for (const ColorNumber background : {0xffffff, 0, 0x0000ff, 0x808080, 0xe0ffff, 0x202020, 0x7f7f7f}) {
        box.SetBackColor(background);
        box.SetSelStart(6);
        EXPECT_EQ(Ground(0), background);
        EXPECT_EQ(Ground(10), background);
        const auto [red, green, blue] = PartsOf(background);
        const auto [lineRed, lineGreen, lineBlue] = PartsOf(Ground(6));
        const int away = std::abs(lineRed - red) + std::abs(lineGreen - green) + std::abs(lineBlue - blue);
        EXPECT_GE(away, 15) << "to be seen on " << background;
        EXPECT_LE(away, 100) << "to read what stands on it";
        box.SetSelStart(0);
        EXPECT_NE(Ground(0), background);
        EXPECT_EQ(Ground(6), background);
    }
    box.Aids().ShowCurrentLine(false);
    EXPECT_EQ(Ground(0), box.BackColor());
}

TEST_F(TextAidsTest, CurrentLineIsAllRowsOfAWrappedOne) {
    box.SetText(QStringLiteral("words and words ").repeated(30) + QStringLiteral("\r\nlast"));
    box.Aids().ShowCurrentLine(true);
    box.SetSelStart(0);
    EXPECT_NE(Ground(0), 0xffffff);
    EXPECT_NE(Ground(400), 0xffffff);
    EXPECT_EQ(Ground(box.TextLength()), 0xffffff);
}

TEST_F(TextAidsTest, CurrentLineKeepsTheColoursOfTextAndSelection) {
    Put(QStringLiteral("MMMM\r\nMMMM"), QStringLiteral("rrrrkkbbbb"));
    box.SetSelStart(0);
    const auto count = [&](QColor color) {
        const QImage picture = Picture();
        int pixels = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                pixels += picture.pixelColor(x, y) == color ? 1 : 0;
        return pixels;
    };
    const int redBefore = count(Qt::red);
    box.Aids().ShowCurrentLine(true);
    EXPECT_NEAR(count(Qt::red), redBefore, redBefore / 10);
    Select(0, 2);
    EXPECT_EQ(Corner(1), FromQColor(box.palette().color(QPalette::Active, QPalette::Highlight)));
}

TEST_F(TextAidsTest, MarksAreSeenAndMoveWithTheText) {
    box.SetText(QStringLiteral("one <b>two</b>"));
    const QImage plain = Picture();
    box.Aids().Mark(std::array{CharRange{4, 7}, CharRange{10, 14}});
    EXPECT_GT(Differing(plain, Picture()), 100);
    EXPECT_FALSE(box.Aids().IsMarked(3));
    EXPECT_TRUE(box.Aids().IsMarked(4));
    EXPECT_TRUE(box.Aids().IsMarked(6));
    EXPECT_FALSE(box.Aids().IsMarked(7));
    EXPECT_TRUE(box.Aids().IsMarked(13));
    EXPECT_FALSE(box.Aids().IsMarked(14));
    EXPECT_FALSE(box.Aids().IsMarked(-1));
    box.SetSelStart(0);
    box.SetSelText(QStringLiteral("xy"));
    EXPECT_FALSE(box.Aids().IsMarked(5));
    EXPECT_TRUE(box.Aids().IsMarked(6));
    box.Aids().Mark(std::array{CharRange{0, 1}});
    EXPECT_TRUE(box.Aids().IsMarked(0));
    EXPECT_FALSE(box.Aids().IsMarked(6)) << "new marks take the place of the old ones";
    box.Aids().Unmark();
    EXPECT_FALSE(box.Aids().IsMarked(0));
}

TEST_F(TextAidsTest, MarksAreSeenOnAnyBackground) {
    box.SetText(QStringLiteral("      "));
    box.Aids().Mark(std::array{CharRange{1, 4}});
    for (const ColorNumber background : {0xffffff, 0, 0x0000ff, 0x808080, 0xe0ffff}) {
        box.SetBackColor(background);
        EXPECT_EQ(Corner(5), background);
        const auto [red, green, blue] = PartsOf(background);
        const QRect place = box.CharacterRect(2);
        const QColor inside = Picture().pixelColor(place.center());
        EXPECT_GE(std::abs(inside.red() - red) + std::abs(inside.green() - green) +
                      std::abs(inside.blue() - blue),
                  30)
            << background;
    }
}

TEST_F(TextAidsTest, MarksAboveTheViewStayWhereOnlyThoseInViewGo) {
    box.SetText(QStringLiteral("line\r\n").repeated(500));
    box.Aids().Mark(std::array{CharRange{0, 4}, CharRange{2994, 2998}});
    box.SetSelStart(box.TextLength());
    box.Aids().UnmarkInView();
    EXPECT_TRUE(box.Aids().IsMarked(0));
    EXPECT_FALSE(box.Aids().IsMarked(2994));
    box.Aids().Unmark();
    EXPECT_FALSE(box.Aids().IsMarked(0));
}

TEST_F(TextAidsTest, LineNumbersTakeTheRoomThatTheirCountAsksFor) {
    box.SetText(QStringLiteral("one\r\ntwo"));
    const int before = box.CharacterRect(0).left();
    box.Aids().ShowLineNumbers(true);
    const int ofThree = box.CharacterRect(0).left();
    EXPECT_GT(ofThree, before + 10);
    box.SetText(QStringLiteral("x\r\n").repeated(998)); // the last number is 999
    EXPECT_EQ(box.CharacterRect(0).left(), ofThree);
    box.SetText(QStringLiteral("x\r\n").repeated(9'999)); // and now 10000
    const int ofFive = box.CharacterRect(0).left();
    EXPECT_GT(ofFive, ofThree);
    box.SetZoom(200);
    EXPECT_GT(box.CharacterRect(0).left(), ofFive * 3 / 2);
    box.SetZoom(100);
    EXPECT_EQ(box.CharacterRect(0).left(), ofFive);
    box.SetText(QString());
    EXPECT_EQ(box.CaretPixel().x(), ofThree);
    box.Aids().ShowLineNumbers(false);
    EXPECT_EQ(box.CaretPixel().x(), before);
}

TEST_F(TextAidsTest, NothingOfThemIsCopiedPrintedOrUndone) {
    Put(QStringLiteral("<b>x</b>\r\ny"), QStringLiteral("bbbkbbbbkkr"));
    const QString rtf = box.TextRTF();
    const auto printed = [&] {
        QImage sheet(300, 200, QImage::Format_RGB32);
        sheet.fill(Qt::white);
        QPainter painter(&sheet);
        box.FormatRange(true, painter, QRectF(0, 0, 300, 200), 0);
        return sheet;
    };
    const QImage before = printed();
    box.Aids().ShowCurrentLine(true);
    box.Aids().ShowLineNumbers(true);
    box.Aids().Mark(std::array{CharRange{0, 3}, CharRange{4, 8}});
    box.SetZoom(200);
    EXPECT_EQ(box.TextRTF(), rtf);
    EXPECT_EQ(printed(), before);
    EXPECT_FALSE(CanUndo());
    EXPECT_EQ(Colors(), QStringLiteral("bbbkbbbbkkr"));
    EXPECT_EQ(Signalled(), QStringList());
    Select(0, 8);
    box.Send(RichTextBox::Message::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("<b>x</b>"));
    EXPECT_FALSE(QApplication::clipboard()->mimeData()->hasHtml());
}
