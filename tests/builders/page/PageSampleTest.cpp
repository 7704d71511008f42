// A small page that shows a background colour and a background picture.
#include "builders/page/PageSample.h"

#include <gtest/gtest.h>

namespace {

/// The colour on the screen at a place well inside.
QColor Shown(PageSample& page, QPoint at) {
    return page.grab().toImage().pixelColor(at);
}

} // namespace

TEST(PageSample, IsWhiteAtFirstWhateverTheDesktopsColours) {
    PageSample page;
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Base, Qt::black);
    page.setPalette(dark);
    page.resize(60, 60);
    EXPECT_EQ(Shown(page, {30, 30}), QColor(Qt::white));
}

TEST(PageSample, ShowsItsColourAndItsPictureRepeated) {
    PageSample page;
    page.resize(60, 60);
    page.SetBackColor(QColor(1, 2, 3));
    EXPECT_EQ(Shown(page, {30, 30}), QColor(1, 2, 3));
    QPixmap tile(10, 10);
    tile.fill(Qt::red);
    page.SetPicture(tile);
    for (const QPoint at : {QPoint(5, 5), QPoint(30, 30), QPoint(50, 10)})
        EXPECT_EQ(Shown(page, at), QColor(Qt::red));
    page.SetPicture(QPixmap());
    EXPECT_EQ(Shown(page, {30, 30}), QColor(1, 2, 3));
}
