// What printing computes: copies, boxes, the rectangle of a page.
#include "tools/printing/Copies.h"
#include "tools/printing/ModPrint.h"
#include "tools/printing/PrintErrors.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;

TEST(Copies, AreAWholeNumberOfSixteenBits) {
    const struct {
        const char* answer;
        int copies;
    } rows[] = {
        {"1", 1},        {"0", 0},         {"-1", -1},         {"abc", 0},     {"", 0},
        {"2 copies", 0}, {" 3 ", 3},       {"1.5", 2},         {"2.5", 2},     {"0.5", 0},
        {"1e2", 100},    {"32767", 32767}, {"32768", 0},       {"70000", 0},   {"-32768", -32768},
        {"-70000", 0},   {"1e999", 0},     {"32767.4", 32767}, {"32767.5", 0},
    };
    for (const auto& row : rows)
        EXPECT_EQ(CopiesFrom(QString::fromLatin1(row.answer)), row.copies) << row.answer;
}

TEST(PrintErrors, HaveTheirBoxes) {
    const struct {
        PrintError error;
        const char16_t* text;
        const char16_t* title;
        MsgIcon icon;
    } rows[] = {
        {PrintError::NotANumber, u"Please enter a number - letters will not work.", u"Print",
         MsgIcon::Critical},
        {PrintError::NothingThere, u"There is nothing to print.", u"Print", MsgIcon::Critical},
        {PrintError::Printer, u"An error ocurred - 482", u"The Tarnwick", MsgIcon::None},
        {PrintError::FileAccess, u"An error ocurred - 75", u"The Tarnwick", MsgIcon::None},
    };
    for (const auto& row : rows) {
        const PrintErrorBox box = BoxOf(row.error);
        EXPECT_EQ(box.text, QString::fromUtf16(row.text));
        EXPECT_EQ(box.title, QString::fromUtf16(row.title));
        EXPECT_EQ(box.icon, row.icon);
    }
}

TEST(DrawingRect, KeepsTheMarginsFromThePapersEdges) {
    const QSizeF paper(11906, 16838);
    EXPECT_EQ(DrawingRect(paper, {0, 0}, {1440, 1440, 1440, 1440}), QRectF(1440, 1440, 9026, 13958));
    // The origin lies where printing can begin; the margins do not move by that.
    EXPECT_EQ(DrawingRect(paper, {240, 360}, {1440, 1440, 1440, 1440}), QRectF(1200, 1080, 9026, 13958));
    EXPECT_EQ(DrawingRect(paper, {240, 360}, {100, 200, 300, 400}), QRectF(-140, -160, 11506, 16238));
}

} // namespace
