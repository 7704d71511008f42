// What the documents share of the auto-fill list, and to which of them a picked row goes.
#include "editor/autofill/AutoFillList.h"

#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <QListWidget>
#include <QTest>

namespace {

TEST(AutoFillList, ADocumentThatOpensClosesItAndLetsItFollow) {
    AutoFillList list;
    EXPECT_FALSE(list.DropDownFollowsCaret());
    list.Open();
    list.MarkPick();
    list.RememberCaret(7);
    list.DocumentOpened();
    EXPECT_FALSE(list.DropDownOpen());
    EXPECT_TRUE(list.DropDownFollowsCaret());
    EXPECT_TRUE(list.ListPickPending());
    EXPECT_EQ(list.ListReturnCaret(), 7);
    list.StopFollowing();
    EXPECT_FALSE(list.DropDownFollowsCaret());
}

TEST(AutoFillList, APickIsTakenOnce) {
    AutoFillList list;
    EXPECT_FALSE(list.TakePick());
    list.MarkPick();
    EXPECT_TRUE(list.ListPickPending());
    EXPECT_TRUE(list.TakePick());
    EXPECT_FALSE(list.TakePick());
}

TEST(AutoFillList, APickedRowGoesToTheActiveDocument) {
    TypingFrame frame;
    TestDocument* first = frame.active;
    frame.NewDocument();
    const TypingEngine engine(frame, *frame.active, frame.active->Timer1, nullptr);
    frame.active->input->SetFocus();
    // The list comes from the first document, and the second is the active one when a row is picked.
    TestDocument* second = frame.active;
    frame.active = first;
    first->input->SetFocus();
    frame.Type("<form ");
    frame.Pause();
    frame.active = second;
    frame.SetText(QStringLiteral("abc"));
    frame.Flags().RememberCaret(0);
    QListWidget* rows = frame.ListView1();
    rows->setFocus();
    QTest::keyClick(rows, Qt::Key_Return);
    EXPECT_EQ(first->input->Text(), QStringLiteral("<form "));
    // Where its own word began: behind its first character, as no list was opened there.
    EXPECT_EQ(second->input->Text(), QStringLiteral("aACTION=\"\"bc"));
    EXPECT_EQ(frame.List(), nullptr);
}

TEST(AutoFillList, ADocumentWithoutAnEngineTakesNoRow) {
    TypingFrame frame;
    frame.Type("<p ");
    frame.Pause();
    frame.NewDocument();
    QListWidget* rows = frame.ListView1();
    rows->setFocus();
    QTest::keyClick(rows, Qt::Key_Return);
    EXPECT_EQ(frame.Box().Text(), QString());
    EXPECT_NE(frame.List(), nullptr);
}

} // namespace
