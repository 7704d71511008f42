#include "platform/desktop/BoxWidth.h"

#include <gtest/gtest.h>
#include <QFontDatabase>
#include <QMessageBox>
#include <QScreen>

namespace {

const QString longTitle = QStringLiteral("A title that is longer than the few words of its text");

} // namespace

TEST(TitleWidth, HasRoomForTheTitleAndTheButtonsBeside) {
    const QWidget window;
    const QFontMetrics letters(QFontDatabase::systemFont(QFontDatabase::TitleFont));
    EXPECT_EQ(TitleWidth(QString(), window), 0);
    EXPECT_GT(TitleWidth(longTitle, window), letters.horizontalAdvance(longTitle) + 50);
    EXPECT_GT(TitleWidth(longTitle + longTitle, window), TitleWidth(longTitle, window));
}

TEST(WidenToTitle, BoxIsAsWideAsItsTitle) {
    QMessageBox narrow(QMessageBox::Question, longTitle, QStringLiteral("Why?"));
    narrow.show();
    QMessageBox box(QMessageBox::Question, longTitle, QStringLiteral("Why?"));
    WidenToTitle(box);
    box.show();
    EXPECT_GE(box.width(), TitleWidth(longTitle, box));
    EXPECT_GT(box.width(), narrow.width());
    EXPECT_EQ(box.height(), narrow.height());
}

TEST(WidenToTitle, LeavesABoxThatIsWideEnough) {
    const QString text = QStringLiteral("words and more words and ").repeated(3);
    QMessageBox plain(QMessageBox::Question, QStringLiteral("T"), text);
    plain.show();
    QMessageBox box(QMessageBox::Question, QStringLiteral("T"), text);
    WidenToTitle(box);
    box.show();
    EXPECT_EQ(box.size(), plain.size());
}

TEST(WidenToTitle, NoBoxIsWiderThanTheScreen) {
    QMessageBox box(QMessageBox::Question, longTitle.repeated(20), QStringLiteral("Why?"));
    WidenToTitle(box);
    box.show();
    EXPECT_LE(box.width(), box.screen()->availableSize().width());
}

TEST(LineWidth, HoldsALineOfADescription) {
    const QWidget window;
    const QString line =
        QStringLiteral("Everything about the birds of the northern shore, and how to find them");
    EXPECT_GE(LineWidth(window), window.fontMetrics().horizontalAdvance(line));
    EXPECT_LE(LineWidth(window), window.screen()->availableSize().width());
}
