// The document tab strip: keys, captions, and what counts as a click.
#include "app/window/DocumentTabs.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>

namespace {

class DocumentTabsTest : public testing::Test {
  protected:
    DocumentTabsTest() {
        tabs.Add(QStringLiteral("/s/a.htm"), QStringLiteral("a.htm"));
        tabs.Add(QStringLiteral("/s/b & c.htm"), QStringLiteral("b & c.htm"));
        tabs.show();
    }
    DocumentTabs tabs;
    QSignalSpy clicks{&tabs, &DocumentTabs::Click};
};

TEST_F(DocumentTabsTest, TabHasPathForTagAndBareNameForCaption) {
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.Tag(0), QStringLiteral("/s/a.htm"));
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("a.htm"));
    EXPECT_EQ(tabs.Tag(1), QStringLiteral("/s/b & c.htm"));
    // Doubled, the ampersand is shown; single, it would underline the blank.
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("b && c.htm"));
    EXPECT_EQ(tabs.Tag(7), QString());
    EXPECT_EQ(tabs.tabToolTip(1), QStringLiteral("/s/b & c.htm"));
}

TEST_F(DocumentTabsTest, KeyStandsOnce) {
    tabs.Add(QStringLiteral("/s/a.htm"), QStringLiteral("other"));
    EXPECT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("a.htm"));
    tabs.Add(QStringLiteral("/s/A.htm"), QStringLiteral("A.htm"));
    EXPECT_EQ(tabs.count(), 3);
}

TEST_F(DocumentTabsTest, KeyThatIsThereAlreadyBecomesTheTagOfTheLastTab) {
    tabs.Add(QStringLiteral("/s/a.htm"), QStringLiteral("a.htm"));
    EXPECT_EQ(tabs.Tag(0), QStringLiteral("/s/a.htm"));
    EXPECT_EQ(tabs.Tag(1), QStringLiteral("/s/a.htm"));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("b && c.htm"));
    // Selecting goes by the Tag, taking away by the key.
    tabs.Select(QStringLiteral("/s/b & c.htm"));
    EXPECT_EQ(tabs.currentIndex(), 0);
    tabs.setCurrentIndex(1);
    tabs.Select(QStringLiteral("/s/a.htm"));
    EXPECT_EQ(tabs.currentIndex(), 0);
    tabs.Remove(QStringLiteral("/s/b & c.htm"));
    ASSERT_EQ(tabs.count(), 1);
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("a.htm"));
}

TEST_F(DocumentTabsTest, UnknownKeyChangesNothing) {
    tabs.Remove(QStringLiteral("/none"));
    tabs.Remove(QString());
    tabs.Select(QStringLiteral("/none"));
    EXPECT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.currentIndex(), 0);
}

TEST_F(DocumentTabsTest, ProgramsOwnChangesAreNoClicks) {
    tabs.Select(QStringLiteral("/s/b & c.htm"));
    EXPECT_EQ(tabs.currentIndex(), 1);
    tabs.Remove(QStringLiteral("/s/b & c.htm"));
    tabs.Add(QStringLiteral("/d"), QStringLiteral("d"));
    tabs.RemoveAll();
    EXPECT_EQ(tabs.count(), 0);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(DocumentTabsTest, PressIsOneClickOnTheSelectedTabToo) {
    for (const int index : {1, 1, 0}) {
        clicks.clear();
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(index).center());
        ASSERT_EQ(clicks.size(), 1);
        EXPECT_EQ(clicks[0][0].toInt(), index);
    }
}

TEST_F(DocumentTabsTest, ArrowKeysClick) {
    QTest::keyClick(&tabs, Qt::Key_Right);
    ASSERT_EQ(clicks.size(), 1);
    EXPECT_EQ(clicks[0][0].toInt(), 1);
}

TEST_F(DocumentTabsTest, SpaceAndEnterClickTheTabThatHasTheFocus) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        clicks.clear();
        QTest::keyClick(&tabs, key);
        ASSERT_EQ(clicks.size(), 1) << key;
        EXPECT_EQ(clicks[0][0].toInt(), 0);
    }
    tabs.RemoveAll();
    clicks.clear();
    QTest::keyClick(&tabs, Qt::Key_Space);
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(DocumentTabsTest, AMarkBelongsToTheKeyAndIsToldByTheTip) {
    tabs.SetMarked({QStringLiteral("/s/b & c.htm"), QStringLiteral("/none"), QString()});
    EXPECT_FALSE(tabs.IsMarked(0));
    EXPECT_TRUE(tabs.IsMarked(1));
    EXPECT_EQ(tabs.tabToolTip(0), QStringLiteral("/s/a.htm"));
    EXPECT_EQ(tabs.tabToolTip(1), QStringLiteral("/s/b & c.htm\nModified"));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("b && c.htm"));
    tabs.Remove(QStringLiteral("/s/a.htm"));
    EXPECT_TRUE(tabs.IsMarked(0));
    tabs.SetMarked({});
    EXPECT_FALSE(tabs.IsMarked(0));
    EXPECT_EQ(tabs.tabToolTip(0), QStringLiteral("/s/b & c.htm"));
}

TEST_F(DocumentTabsTest, AMarkIsADotInTheTabsOwnRoom) {
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        tabs.setLayoutDirection(direction);
        const QRect tab = tabs.tabRect(0);
        const auto look = [&] { return tabs.grab(tab).toImage(); };
        const QImage plain = look();
        tabs.SetMarked({QStringLiteral("/s/a.htm")});
        const QImage marked = look();
        EXPECT_EQ(tabs.tabRect(0), tab);
        QRect changed;
        for (int y = 0; y < plain.height(); ++y)
            for (int x = 0; x < plain.width(); ++x)
                if (plain.pixel(x, y) != marked.pixel(x, y))
                    changed |= QRect(x, y, 1, 1);
        EXPECT_GE(changed.width(), 5);
        EXPECT_LE(changed.width(), 9);
        EXPECT_GE(changed.height(), 5);
        EXPECT_LE(changed.height(), 9);
        // Behind the caption, before the edge.
        const int outer = direction == Qt::LeftToRight ? plain.width() - 1 - changed.right() : changed.left();
        EXPECT_GE(outer, 1);
        EXPECT_LE(outer, 8);
        tabs.SetMarked({});
    }
}

TEST_F(DocumentTabsTest, NoTabLooksSelectedForAPathThatHasNone) {
    // The tabs are alike but for their captions.
    tabs.RemoveAll();
    tabs.Add(QStringLiteral("/1/a.htm"), QStringLiteral("a.htm"));
    tabs.Add(QStringLiteral("/2/a.htm"), QStringLiteral("a.htm"));
    const auto look = [this](int index) { return tabs.grab(tabs.tabRect(index)).toImage(); };
    tabs.Select(QStringLiteral("/1/a.htm"));
    const QImage selected = look(0);
    tabs.Select(QStringLiteral("/2/a.htm"));
    const QImage other = look(0);
    ASSERT_NE(selected, other);
    tabs.Select(QStringLiteral("/1/a.htm"));
    tabs.Select(QString());
    EXPECT_FALSE(tabs.ShowsSelection());
    EXPECT_NE(look(0), selected);
    tabs.Select(QStringLiteral("/1/a.htm"));
    EXPECT_TRUE(tabs.ShowsSelection());
    EXPECT_EQ(look(0), selected);
}

} // namespace
