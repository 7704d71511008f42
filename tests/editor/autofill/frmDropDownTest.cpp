// The auto-fill list with the keyboard or the mouse in it.
#include "editor/autofill/frmDropDown.h"

#include "editor/autofill/AutoFillTables.h"
#include "editor/autofill/DropDownIcons.h"
#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <QAccessible>
#include <QApplication>
#include <QListWidget>
#include <QTest>

namespace {

/// Types a tag and a blank, waits, and goes into the list by Down.
class ListTest : public testing::Test {
  protected:
    void Enter(const char* typed) {
        frame.Type(typed);
        frame.Pause();
        frame.Key(Qt::Key_Down);
        ASSERT_EQ(QApplication::focusWidget(), frame.ListView1());
    }

    TypingFrame frame;
};

TEST_F(ListTest, DownGivesItTheFocus) {
    Enter("<img ");
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 5);
    frame.Key(Qt::Key_Down);
    EXPECT_EQ(frame.SelectedRow(), QStringLiteral("WIDTH"));
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 5);
}

TEST_F(ListTest, UpGivesItTheFocusToo) {
    frame.Type("<img id");
    EXPECT_EQ(frame.List()->isVisible(), false);
    frame.Key(Qt::Key_Up);
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
    frame.Key(Qt::Key_End);
    frame.Type("\b\b\b ");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img |"));
    ASSERT_TRUE(frame.PausePending());
    frame.Pause();
    frame.Type("id");
    frame.Key(Qt::Key_Up);
    ASSERT_EQ(QApplication::focusWidget(), frame.ListView1());
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 0);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img id|"));
    const QRect row = frame.ListView1()->visualItemRect(frame.ListView1()->currentItem());
    EXPECT_TRUE(frame.ListView1()->viewport()->rect().contains(row));
}

TEST_F(ListTest, EnterTakesTheRow) {
    Enter("<img ");
    frame.Key(Qt::Key_Down);
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img WIDTH=\"|\""));
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_FALSE(frame.Flags().DropDownOpen());
}

TEST_F(ListTest, EnterReplacesTheTypedWord) {
    frame.Type("<img ");
    frame.Pause();
    frame.Type("al");
    frame.Key(Qt::Key_Down);
    frame.Key(Qt::Key_Down);
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img BORDER=\"|\""));
}

TEST_F(ListTest, GoingIntoItLeavesTheCaretWhereItIs) {
    frame.SetMarked("a\r\n<img|\r\nb");
    Enter(" ");
    EXPECT_EQ(frame.Marked(), QStringLiteral("a\r\n<img |\r\nb"));
    frame.Key(Qt::Key_Escape);
    EXPECT_EQ(frame.Marked(), QStringLiteral("a\r\n<img |\r\nb"));
    // With no list the key is the text's own.
    frame.Key(Qt::Key_Down);
    EXPECT_EQ(frame.Marked(), QStringLiteral("a\r\n<img \r\nb|"));
}

TEST_F(ListTest, DoubleClickTakesTheRow) {
    // With no Down before it the caret goes to 0 first; the pick then finds the word by itself.
    frame.Type("x<img ");
    frame.Pause();
    frame.Type("h");
    QListWidget* list = frame.ListView1();
    const QPoint at = list->visualItemRect(list->item(2)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(frame.Marked(), QStringLiteral("x<img ALIGN=\"|\""));
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
}

TEST_F(ListTest, APickOfAnAttributeIsStillPendingInTheNextList) {
    Enter("<img ");
    frame.Key(Qt::Key_Down);
    frame.Key(Qt::Key_Down);
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img ALIGN=\"|\""));
    EXPECT_TRUE(frame.Flags().ListPickPending());
    frame.Pause();
    // The first change that finds a row clears it, and leaves the selection.
    frame.Type("r");
    EXPECT_EQ(frame.SelectedRow(), QStringLiteral("ABSBOTTOM"));
    EXPECT_FALSE(frame.Flags().ListPickPending());
    frame.Type("i");
    EXPECT_EQ(frame.SelectedRow(), QStringLiteral("RIGHT"));
}

TEST_F(ListTest, APickOfAValueFindsItsRow) {
    frame.Type("<img ali\r");
    frame.Pause();
    frame.Key(Qt::Key_Down);
    frame.Key(Qt::Key_Down);
    EXPECT_FALSE(frame.Flags().ListPickPending());
    frame.Type("\r");
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img ALIGN=\"ABSMIDDLE|\""));
    EXPECT_FALSE(frame.Flags().ListPickPending());
}

TEST_F(ListTest, BackspaceGoesBackToTheText) {
    Enter("<img ");
    frame.Box().SetSelStart(0);
    frame.Type("\b");
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<img |"));
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
}

TEST_F(ListTest, BlankAndEscUnload) {
    Enter("<img ");
    frame.Type(" ");
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<img "));
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
    frame.Key(Qt::Key_End, Qt::ControlModifier);
    Enter(" ");
    frame.Key(Qt::Key_Escape);
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
}

TEST_F(ListTest, LeavingTheListForgetsNotThatItHeldValues) {
    // Its own Esc, blank and Backspace clear no more than the list: the next pick counts from one character
    // further left, as for a value.
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Space, Qt::Key_Backspace}) {
        frame.SetText(QString());
        frame.Type("<img ali\r");
        frame.Pause();
        frame.Key(Qt::Key_Down);
        ASSERT_EQ(QApplication::focusWidget(), frame.ListView1());
        frame.Key(key);
        EXPECT_EQ(frame.List(), nullptr);
        EXPECT_TRUE(frame.Lists().ValueList());
        EXPECT_EQ(frame.Marked(), QStringLiteral("<img ALIGN=\"|\""));
        frame.Key(Qt::Key_End);
        frame.Type(" h\r");
        EXPECT_EQ(frame.Box().Text(), QStringLiteral("<img ALIGN=\"\"HEIGHT=\"\"h"));
        EXPECT_FALSE(frame.Lists().ValueList());
    }
}

TEST_F(ListTest, ACancelledColourTakenFromTheListWritesNothing) {
    frame.prompts.colorAnswers = {std::nullopt};
    frame.Type("<font col\r");
    frame.Pause();
    frame.Key(Qt::Key_Down);
    ASSERT_EQ(QApplication::focusWidget(), frame.ListView1());
    frame.Type("\r");
    EXPECT_EQ(frame.prompts.asked.size(), 1);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<font COLOR=\"|\""))
        << "that Enter was the list's, no key of the text";
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), &frame.Box());
}

TEST_F(ListTest, RowsShowTheirSmallPictures) {
    frame.Type("<font col\r");
    const QListWidget& list = *frame.ListView1();
    for (int row = 0; row < list.count(); ++row) {
        const AutoFillRow expected = ListColorValues().at(row);
        const QImage image = list.item(row)->icon().pixmap(16).toImage();
        EXPECT_EQ(image.pixelColor(8, 8), SwatchColor(expected.SmallIcon)) << expected.Text.toStdString();
    }
}

TEST_F(ListTest, MarksAreDrawnInTheTextsColour) {
    // On a dark palette they must be light, and on the selected row as its text is.
    const QPalette before = QGuiApplication::palette();
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::magenta);
    QApplication::setPalette(palette);
    for (const int index : {1, 3, 4}) {
        for (const auto& [mode, color] :
             {std::pair{QIcon::Normal, QColor(Qt::yellow)}, {QIcon::Selected, QColor(Qt::magenta)}}) {
            const QImage image = ImageList1(index).pixmap(QSize(64, 64), 1, mode).toImage();
            int drawn = 0, right = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const QColor pixel = image.pixelColor(x, y);
                    drawn += pixel.alpha() == 255;
                    right += pixel.alpha() == 255 && pixel == color;
                }
            }
            EXPECT_GT(drawn, 50) << index;
            EXPECT_EQ(right, drawn) << index;
        }
    }
    QApplication::setPalette(before);
}

TEST_F(ListTest, UnloadingByNameClearsTheFlag) {
    frame.Type("<img ");
    EXPECT_TRUE(frame.Flags().DropDownOpen());
    frame.LoadedForms().Unload<frmDropDown>();
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_EQ(frame.List(), nullptr);
}

TEST_F(ListTest, WithoutADocumentItsKeysDoNothing) {
    Enter("<img ");
    frame.CloseDocument();
    frame.ListView1();
    auto* list = frame.window->findChild<QListWidget*>(QStringLiteral("ListView1"));
    ASSERT_NE(list, nullptr);
    QTest::keyClick(list, Qt::Key_Return);
    QTest::keyClick(list, Qt::Key_Backspace);
    EXPECT_EQ(frame.LoadedForms().Find<frmDropDown>(), nullptr);
}

TEST_F(ListTest, IsReadable) {
    frame.Type("<img ");
    frame.Pause();
    EXPECT_EQ(frame.ListView1()->accessibleName(), QStringLiteral("Attributes"));
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(frame.ListView1());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->childCount(), 18);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), QStringLiteral("WIDTH"));
    EXPECT_TRUE(list->child(0)->state().selected);
    frame.Type("w");
    EXPECT_FALSE(list->child(0)->state().selected);
    EXPECT_TRUE(list->child(1)->state().selected);
    frame.Type("\b");
    frame.Type("ali\r");
    frame.Pause();
    EXPECT_EQ(frame.ListView1()->accessibleName(), QStringLiteral("Values"));
}

TEST_F(ListTest, FitsASmallWindow) {
    frame.window->resize(200, 120);
    frame.active->setGeometry(frame.window->rect());
    frame.Type("<table ");
    frame.Pause();
    EXPECT_TRUE(frame.window->rect().contains(frame.List()->geometry()));
    EXPECT_FALSE(frame.List()->size().isEmpty());
}

TEST_F(ListTest, LeavesNoPaneBehind) {
    for (int i = 0; i < 5; ++i)
        frame.Type("<img \b\b\b\b\b");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_LE(frame.window->findChildren<frmDropDown*>().size(), 1);
}

} // namespace
