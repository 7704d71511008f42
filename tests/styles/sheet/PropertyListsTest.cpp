#include "styles/sheet/PropertyLists.h"

#include "platform/desktop/FaceNames.h"
#include "styles/sheet/Catalogue.h"
#include "styles/sheet/SheetTest.h"
#include <QContextMenuEvent>
#include <QTimer>

namespace {

class PropertyListsTest : public SheetTest {
  protected:
    void Key(Qt::Key key) { QTest::keyClick(&Properties(), key); }
    void Select(int row) {
        Properties().setCurrentItem(Properties().topLevelItem(row));
        Properties().setFocus();
    }
    int Asks() { return static_cast<int>(frame.prompts.asked.size()); }
};

TEST_F(PropertyListsTest, BeginsWithItsRowsAndNoValues) {
    ASSERT_EQ(Properties().topLevelItemCount(), 68);
    const auto rows = PropertyCatalogue();
    for (size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(Rows(Properties())[static_cast<qsizetype>(i)], QString::fromLatin1(rows[i].name));
    EXPECT_EQ(Rows(Values()), QStringList());
    EXPECT_TRUE(Values().isVisible());
    EXPECT_FALSE(Fonts().isVisible());
    EXPECT_EQ(Properties().SelectedRow(), nullptr);
}

TEST_F(PropertyListsTest, EveryRowShowsItsValuesBehindTheAnswerOfItsBox) {
    const auto rows = PropertyCatalogue();
    for (size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(rows[i].name);
        for (const char16_t* answer : {u"own value", u""}) {
            frame.prompts.asked.clear();
            if (rows[i].Asks())
                frame.prompts.inputAnswers = {T(answer)};
            Click(Properties(), static_cast<int>(i));
            QStringList values = rows[i].Values();
            if (rows[i].Asks()) {
                ASSERT_EQ(Asks(), 1);
                EXPECT_EQ(frame.prompts.asked.first().text, QString::fromLatin1(rows[i].prompt));
                EXPECT_EQ(frame.prompts.asked.first().title, rows[i].Title());
                EXPECT_EQ(frame.prompts.asked.first().owner, form);
                if (*answer)
                    values.prepend(T(answer));
            }
            EXPECT_EQ(Asks(), rows[i].Asks() ? 1 : 0);
            EXPECT_EQ(Rows(Values()), values);
            EXPECT_EQ(Fonts().isVisible(), rows[i].families);
            EXPECT_EQ(Values().isVisible(), !rows[i].families);
        }
    }
}

TEST_F(PropertyListsTest, TheBackgroundPositionHasTheCentreTwice) {
    ChooseProperty(u"background-position");
    ASSERT_EQ(Values().topLevelItemCount(), 6);
    EXPECT_EQ(Rows(Values())[1], T(u"center"));
    EXPECT_EQ(Rows(Values())[4], T(u"center"));
}

TEST_F(PropertyListsTest, AHeadingLeavesNothing) {
    ChooseProperty(u"font-family");
    ChooseProperty(u"--BOX--");
    EXPECT_EQ(Rows(Values()), QStringList());
    EXPECT_FALSE(Fonts().isVisible());
    EXPECT_TRUE(Values().isVisible());
}

TEST_F(PropertyListsTest, FontFamiliesStandInTheValuesPlaceAndComeAgainEachTime) {
    const QStringList families = FaceNames();
    const QRect place = Values().geometry();
    ChooseProperty(u"font-family");
    EXPECT_EQ(Rows(Fonts()), families);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Fonts().geometry() == place; }));
    ChooseProperty(u"font-family");
    EXPECT_EQ(Rows(Fonts()), families + families);
    ChooseProperty(u"Color");
    EXPECT_EQ(Rows(Fonts()), families + families);
    ChooseProperty(u"font-family");
    EXPECT_EQ(Rows(Fonts()), families + families + families);
}

TEST_F(PropertyListsTest, AFontIsTakenByOneClickAndTwiceByNone) {
    ChooseProperty(u"font-family");
    ASSERT_GT(Fonts().count(), 0);
    const QString family = T(u"font-family: ") + Fonts().item(0)->text();
    const QPoint at = Fonts().visualItemRect(Fonts().item(0)).center();
    QTest::mouseClick(Fonts().viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(Rows(Builder()), QStringList(family));
    QTest::mouseDClick(Fonts().viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(Rows(Builder()), QStringList(family)) << "a double click is no second one";
    QTest::keyClick(&Fonts(), Qt::Key_Return);
    EXPECT_EQ(Rows(Builder()), QStringList({family, family}));
    QTest::keyClick(&Fonts(), Qt::Key_Down);
    EXPECT_EQ(Builder().count(), 2) << "arrow keys only look";
}

TEST_F(PropertyListsTest, AValueIsTakenByADoubleClickOrEnter) {
    ChooseProperty(u"Color");
    Click(Values(), 1);
    EXPECT_EQ(Rows(Builder()), QStringList());
    DoubleClick(Values(), 1);
    EXPECT_EQ(Rows(Builder()), QStringList(T(u"Color: black")));
    QTest::keyClick(&Values(), Qt::Key_Return);
    QTest::keyClick(&Values(), Qt::Key_Down);
    QTest::keyClick(&Values(), Qt::Key_Enter);
    EXPECT_EQ(Rows(Builder()), QStringList({T(u"Color: black"), T(u"Color: black"), T(u"Color: blue")}));
}

TEST_F(PropertyListsTest, TheTwoHeightsDifferByABlank) {
    Add(u"height", u"auto", u"");
    Add(u"height ", u"auto", u"");
    Add(u"height ", u"10px", u"10px");
    EXPECT_EQ(Rows(Builder()), QStringList({T(u"height: auto"), T(u"height : auto"), T(u"height : 10px")}));
}

TEST_F(PropertyListsTest, ARightClickAsksForAnOwnValueUnderTheTitleOfFont) {
    ChooseProperty(u"Color");
    frame.prompts.inputAnswers = {T(u"#123456"), QString()};
    Click(Values(), 0, Qt::RightButton);
    Click(Values(), 0, Qt::RightButton);
    ASSERT_EQ(Asks(), 2);
    EXPECT_EQ(frame.prompts.asked[0].title, T(u"FONT"));
    EXPECT_EQ(frame.prompts.asked[0].text, T(u"Add your own value(s):"));
    EXPECT_EQ(frame.prompts.asked[0].owner, form);
    EXPECT_EQ(Values().topLevelItemCount(), 17);
    EXPECT_EQ(Rows(Values()).last(), T(u"#123456"));
    EXPECT_EQ(Rows(Builder()), QStringList()) << "not taken yet";
    DoubleClick(Values(), 16);
    EXPECT_EQ(Rows(Builder()), QStringList(T(u"Color: #123456")));
}

TEST_F(PropertyListsTest, TheRightButtonAsksAsItGoesDownAndOnEmptyGroundToo) {
    frame.prompts.inputAnswers = {T(u"x"), T(u"y")};
    QTest::mousePress(Values().viewport(), Qt::RightButton, {}, QPoint(5, 60));
    EXPECT_EQ(Rows(Values()), QStringList(T(u"x")));
    QTest::mouseRelease(Values().viewport(), Qt::RightButton, {}, QPoint(5, 60));
    EXPECT_EQ(Asks(), 1);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(&Values(), &menuKey);
    EXPECT_EQ(Rows(Values()), QStringList({T(u"x"), T(u"y")}));
    QContextMenuEvent byMouse(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
    QApplication::sendEvent(Values().viewport(), &byMouse);
    EXPECT_EQ(Asks(), 2);
}

TEST_F(PropertyListsTest, WithNoPropertySelectedAValueGoesNowhere) {
    frame.prompts.inputAnswers = {T(u"x")};
    QTest::mouseClick(Values().viewport(), Qt::RightButton, {}, QPoint(5, 60));
    DoubleClick(Values(), 0);
    EXPECT_EQ(Rows(Builder()), QStringList());
}

TEST_F(PropertyListsTest, AHeadingIsARowLikeAnyOther) {
    ChooseProperty(u"--TEXT--");
    frame.prompts.inputAnswers = {T(u"x")};
    QTest::mouseClick(Values().viewport(), Qt::RightButton, {}, QPoint(5, 60));
    DoubleClick(Values(), 0);
    EXPECT_EQ(Rows(Builder()), QStringList(T(u"--TEXT--: x")));
}

TEST_F(PropertyListsTest, ValuesMayHoldAnything) {
    const QString longest(10000, u'x');
    for (const QString& value :
         {T(u"\"quoted\" 'twice'"), T(u"a } b { c"), T(u"one\r\ntwo"), longest, T(u"  blanks  ")}) {
        frame.prompts.inputAnswers = {value};
        Click(Properties(), Find(Properties(), u"font"));
        DoubleClick(Values(), 0);
        EXPECT_EQ(Rows(Builder()).last(), T(u"font: ") + value);
    }
}

TEST_F(PropertyListsTest, ArrowKeysSelectAsTheyComeUpAndBringTheBoxes) {
    Select(Find(Properties(), u"font-size"));
    frame.prompts.inputAnswers = {QString()};
    QTest::keyPress(&Properties(), Qt::Key_Down);
    EXPECT_EQ(Asks(), 0) << "not before the key comes up";
    QTest::keyRelease(&Properties(), Qt::Key_Down);
    ASSERT_EQ(Asks(), 1);
    EXPECT_EQ(frame.prompts.asked.first().title, T(u"FONT"));
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(Properties().SelectedText(), T(u"Color"));
    EXPECT_EQ(Values().topLevelItemCount(), 16);
    EXPECT_EQ(Asks(), 1);
    Key(Qt::Key_Home);
    EXPECT_EQ(Rows(Values()), QStringList());
}

TEST_F(PropertyListsTest, AKeyThatDidNotGoDownInTheListIsNone) {
    Select(Find(Properties(), u"font"));
    // What is left of a Tab that led here, of an Enter that closed a box, of an Alt+P.
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_P, Qt::Key_Alt, Qt::Key_Down})
        QTest::keyRelease(&Properties(), key);
    Key(Qt::Key_Shift);
    Key(Qt::Key_Control);
    EXPECT_EQ(Asks(), 0);
}

TEST_F(PropertyListsTest, TheKeyThatClosesABoxOpensNoOther) {
    Select(Find(Properties(), u"font-size"));
    frame.prompts.inputAnswers = {QString()};
    Key(Qt::Key_Down);
    QTest::keyRelease(&Properties(), Qt::Key_Return);
    EXPECT_EQ(Asks(), 1);
}

TEST_F(PropertyListsTest, TypedLettersJumpAndTheBoxWaitsForTheWord) {
    Select(0);
    QTest::keyClicks(&Properties(), T(u"margin-t"));
    EXPECT_EQ(Properties().SelectedText(), T(u"margin-top"));
    EXPECT_EQ(Asks(), 0) << "it would catch the letters to come";
    EXPECT_EQ(Rows(Values()), QStringList());
    frame.prompts.inputAnswers = {T(u"1px")};
    EXPECT_TRUE(QTest::qWaitFor([&] { return Asks() == 1; }));
    EXPECT_EQ(Rows(Values()), QStringList({T(u"1px"), T(u"auto")}));
}

TEST_F(PropertyListsTest, TypedLettersShowValuesAtOnceWhereNothingIsAsked) {
    Select(0);
    QTest::keyClicks(&Properties(), T(u"cl"));
    EXPECT_EQ(Properties().SelectedText(), T(u"clear"));
    EXPECT_EQ(Rows(Values()), QStringList({T(u"none"), T(u"left"), T(u"right"), T(u"both")}));
}

TEST_F(PropertyListsTest, AnotherRowEndsTheWaitForTheWord) {
    Select(0);
    QTest::keyClicks(&Properties(), T(u"font-f"));
    EXPECT_EQ(Fonts().count(), 0);
    const auto& search = *form->findChild<QTimer*>(T(u"search"));
    EXPECT_TRUE(search.isActive());
    ChooseProperty(u"clear");
    EXPECT_FALSE(search.isActive());
    EXPECT_EQ(Rows(Values()).size(), 4);
    EXPECT_FALSE(Fonts().isVisible());
}

} // namespace
