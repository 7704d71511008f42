#include "styles/sheet/ListView.h"

#include "support/Text.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace {

class ListViewTest : public testing::Test {
  protected:
    ListViewTest() {
        list.setHeaderLabel(QStringLiteral("Element"));
        list.setAccessibleName(QStringLiteral("Element"));
        list.AddRows({QStringLiteral("alpha"), QStringLiteral("beta"), QStringLiteral("gamma")});
        list.AddRow(QStringLiteral("beta 2"));
        list.resize(200, 200);
        list.show();
    }
    QPoint Place(int row) { return list.visualItemRect(list.topLevelItem(row)).center(); }
    void Press(int row) { QTest::mousePress(list.viewport(), Qt::LeftButton, {}, Place(row)); }
    void Release(QPoint at) { QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, at); }

    ListView list;
    QSignalSpy clicks{&list, &ListView::Click};
    QSignalSpy doubleClicks{&list, &ListView::DblClick};
    QSignalSpy keys{&list, &ListView::KeyUp};
    QSignalSpy letters{&list, &ListView::LetterUp};
};

TEST_F(ListViewTest, ANarrowOneDoesNotScrollSideways) {
    for (int row = 0; row < 40; ++row)
        list.AddRow(QStringLiteral("one more"));
    list.resize(70, 100);
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.verticalScrollBar()->isVisible(); }));
    EXPECT_EQ(list.horizontalScrollBar()->maximum(), 0);
    EXPECT_EQ(list.header()->sectionSize(0), list.viewport()->width());
}

TEST_F(ListViewTest, IsOneColumnUnderAHeadWithRowsSelectedWhole) {
    EXPECT_EQ(list.columnCount(), 1);
    EXPECT_TRUE(list.header()->isVisible());
    EXPECT_EQ(list.headerItem()->text(0), QStringLiteral("Element"));
    EXPECT_EQ(list.selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(list.selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_EQ(list.topLevelItemCount(), 4);
    EXPECT_EQ(list.topLevelItem(3)->text(0), QStringLiteral("beta 2"));
    EXPECT_EQ(list.SelectedText(), QString());
    EXPECT_EQ(list.SelectedRow(), nullptr);
}

TEST_F(ListViewTest, AScreenReaderReadsItsNameItsHeadAndItsRows) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(&list);
    ASSERT_TRUE(face);
    EXPECT_EQ(face->text(QAccessible::Name), QStringLiteral("Element"));
    QStringList names;
    for (int child = 0; child < face->childCount(); ++child)
        names << face->child(child)->text(QAccessible::Name);
    EXPECT_EQ(names, QStringList({QStringLiteral("Element"), QStringLiteral("alpha"), QStringLiteral("beta"),
                                  QStringLiteral("gamma"), QStringLiteral("beta 2")}));
}

TEST_F(ListViewTest, AClickIsToldOnceWithTheRowSelected) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Place(1));
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(list.SelectedText(), QStringLiteral("beta"));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Place(1));
    EXPECT_EQ(clicks.count(), 2) << "on the row that is selected too";
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, QPoint(50, 190));
    QTest::mouseClick(list.viewport(), Qt::RightButton, {}, Place(0));
    EXPECT_EQ(clicks.count(), 2);
}

TEST_F(ListViewTest, ADoubleClickIsAClickAndADoubleClick) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, Place(1));
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, Place(1));
    EXPECT_EQ(clicks.count(), 1);
    EXPECT_EQ(doubleClicks.count(), 1);
    QTest::mouseDClick(list.viewport(), Qt::RightButton, {}, Place(1));
    EXPECT_EQ(doubleClicks.count(), 1);
}

TEST_F(ListViewTest, ADragThatEndsOnAnotherRowIsAClickOnThatOne) {
    Press(0);
    QMouseEvent move(QEvent::MouseMove, Place(2), list.viewport()->mapToGlobal(Place(2)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list.viewport(), &move);
    Release(Place(2));
    EXPECT_EQ(list.SelectedText(), QStringLiteral("gamma"));
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(ListViewTest, KeysAreToldAsTheyComeUpAndLettersApart) {
    list.setCurrentItem(list.topLevelItem(0));
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(keys.count(), 1);
    EXPECT_EQ(letters.count(), 0);
    QTest::keyClick(&list, Qt::Key_G);
    EXPECT_EQ(list.SelectedText(), QStringLiteral("gamma"));
    EXPECT_EQ(keys.count(), 1);
    EXPECT_EQ(letters.count(), 1);
    QTest::keyRelease(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Shift);
    EXPECT_EQ(keys.count() + letters.count(), 2);
}

TEST_F(ListViewTest, AHeldKeyIsToldOnce) {
    list.setCurrentItem(list.topLevelItem(0));
    QTest::keyPress(&list, Qt::Key_Down);
    for (int again = 0; again < 2; ++again) {
        QKeyEvent up(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier, QString(), true);
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&list, &up);
        QApplication::sendEvent(&list, &down);
    }
    EXPECT_EQ(keys.count(), 0);
    QTest::keyRelease(&list, Qt::Key_Down);
    EXPECT_EQ(keys.count(), 1);
    EXPECT_EQ(list.SelectedText(), QStringLiteral("beta 2"));
}

TEST_F(ListViewTest, AKeyGoesWithTheFocus) {
    QTest::keyPress(&list, Qt::Key_Down);
    QFocusEvent out(QEvent::FocusOut);
    QApplication::sendEvent(&list, &out);
    QTest::keyRelease(&list, Qt::Key_Down);
    EXPECT_EQ(keys.count(), 0);
}

TEST_F(ListViewTest, EnterIsADoubleClickOnTheSelectedRow) {
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_EQ(doubleClicks.count(), 0);
    list.setCurrentItem(list.topLevelItem(0));
    QTest::keyClick(&list, Qt::Key_Return);
    QTest::keyClick(&list, Qt::Key_Enter);
    EXPECT_EQ(doubleClicks.count(), 2);
}

} // namespace
