// The document tab strip: keys, captions, and what counts as a click.
#include "app/DocumentTabs.h"

#include "support/Text.h"

#include <gtest/gtest.h>
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

} // namespace
