// The keys of the auto-fill list, one by one.
#include "editor/autofill/AutoFillKeys.h"

#include "editor/autofill/frmDropDown.h"
#include "platform/text/KeyCodes.h"
#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QListWidget>

namespace {

class AutoFillKeysTest : public testing::Test {
  protected:
    /// Hands a character's code to the keys; what is left of it goes to left.
    bool Press(int code) {
        left = code;
        return keys.KeyPress(left);
    }
    /// The same for a key code.
    void Down(int code) {
        left = code;
        keys.KeyDown(left);
    }

    TypingFrame frame;
    AutoFillKeys keys{frame, *frame.active, frame.Lists()};
    int left = -1;
};

TEST_F(AutoFillKeysTest, ABlankOpensAListAndIsTyped) {
    frame.SetMarked("<p|>");
    EXPECT_FALSE(Press(KeyAsciiOf::Blank));
    EXPECT_EQ(left, KeyAsciiOf::Blank);
    EXPECT_TRUE(frame.Flags().DropDownOpen());
    EXPECT_EQ(frame.Rows().size(), 5);
}

TEST_F(AutoFillKeysTest, ABlankTakesTheOpenListAway) {
    frame.SetMarked("<p|>");
    Press(KeyAsciiOf::Blank);
    EXPECT_TRUE(frame.Flags().DropDownFollowsCaret());
    EXPECT_TRUE(Press(KeyAsciiOf::Blank));
    EXPECT_EQ(left, KeyAsciiOf::Blank) << "it is typed all the same";
    EXPECT_FALSE(frame.Flags().DropDownOpen());
    EXPECT_FALSE(frame.Flags().DropDownFollowsCaret());
    EXPECT_EQ(frame.List(), nullptr);
}

TEST_F(AutoFillKeysTest, WithTheListsOffABlankIsABlank) {
    frame.State<EditorOptions>().UseAutoFill = false;
    frame.SetMarked("<p|>");
    frame.Flags().Open();
    EXPECT_FALSE(Press(KeyAsciiOf::Blank));
    EXPECT_EQ(frame.List(), nullptr);
    EXPECT_TRUE(frame.Flags().DropDownOpen());
    EXPECT_TRUE(frame.Flags().DropDownFollowsCaret());
}

TEST_F(AutoFillKeysTest, BackspaceTakesItAwayWithNothingTyped) {
    frame.Type("<p a");
    EXPECT_TRUE(Press(KeyAsciiOf::Backspace));
    EXPECT_EQ(left, KeyAsciiOf::Backspace);
    EXPECT_NE(frame.List(), nullptr);
    frame.Type("\b");
    EXPECT_TRUE(Press(KeyAsciiOf::Backspace));
    EXPECT_EQ(frame.List(), nullptr);
}

TEST_F(AutoFillKeysTest, BackspaceAndEqualsForgetThatItHeldValues) {
    for (const int code : {KeyAsciiOf::Backspace, KeyAsciiOf::Equals}) {
        frame.SetText(QString());
        frame.Type("<p al\r");
        ASSERT_TRUE(frame.Lists().ValueList());
        EXPECT_TRUE(Press(code));
        EXPECT_EQ(left, code);
        EXPECT_FALSE(frame.Lists().ValueList());
    }
    EXPECT_EQ(frame.List(), nullptr);
}

TEST_F(AutoFillKeysTest, EnterTakesTheRowOfAnOpenList) {
    frame.Type("<p al");
    EXPECT_TRUE(Press(KeyAsciiOf::Enter));
    EXPECT_EQ(left, 0);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<p ALIGN=\"|\""));
    frame.Type("le");
    EXPECT_FALSE(Press(KeyAsciiOf::Enter)) << "behind a value the rest of the handling goes on";
    EXPECT_EQ(left, 0);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<p ALIGN=\"LEFT|\""));
}

TEST_F(AutoFillKeysTest, EnterAloneIsTheTextsOwn) {
    frame.SetMarked("<p|>");
    EXPECT_FALSE(Press(KeyAsciiOf::Enter));
    EXPECT_EQ(left, KeyAsciiOf::Enter);
    EXPECT_EQ(frame.Marked(), QStringLiteral("<p|>"));
}

TEST_F(AutoFillKeysTest, ACancelledColourLeavesTheEnter) {
    frame.prompts.colorAnswers = {std::nullopt};
    frame.Type("<font col\r");
    EXPECT_FALSE(Press(KeyAsciiOf::Enter));
    EXPECT_EQ(left, KeyAsciiOf::Enter);
    EXPECT_FALSE(frame.Flags().DropDownOpen());
}

TEST_F(AutoFillKeysTest, OtherCharactersAreNotTheirs) {
    frame.Type("<p ");
    for (const int code : {27, 97, 60, 62, 233}) {
        EXPECT_FALSE(Press(code)) << code;
        EXPECT_EQ(left, code);
    }
    EXPECT_NE(frame.List(), nullptr);
}

TEST_F(AutoFillKeysTest, EscAndRightTakeItAway) {
    for (const int code : {KeyCodeOf::Escape, KeyCodeOf::Right}) {
        frame.SetText(QString());
        frame.Type("<p al\r");
        Down(code);
        EXPECT_EQ(left, code);
        EXPECT_EQ(frame.List(), nullptr);
        EXPECT_FALSE(frame.Lists().ValueList());
        EXPECT_FALSE(frame.Flags().DropDownOpen());
    }
}

TEST_F(AutoFillKeysTest, DownAndUpGoIntoAListThatIsShown) {
    frame.Type("<p ");
    Down(KeyCodeOf::Down);
    EXPECT_EQ(left, KeyCodeOf::Down) << "it is hidden still";
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 3);
    frame.Pause();
    for (const int code : {KeyCodeOf::Down, KeyCodeOf::Up}) {
        frame.Box().SetFocus();
        Down(code);
        EXPECT_EQ(left, 0);
        EXPECT_EQ(QApplication::focusWidget(), frame.ListView1());
    }
}

TEST_F(AutoFillKeysTest, OnlyDownRemembersTheCaret) {
    frame.SetMarked("ab|c");
    Down(KeyCodeOf::Up);
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 0);
    Down(KeyCodeOf::Down);
    EXPECT_EQ(frame.Flags().ListReturnCaret(), 2);
}

TEST_F(AutoFillKeysTest, APickedRowIsWrittenWhileAListIsOpen) {
    frame.Type("<p al");
    EXPECT_TRUE(keys.RowPicked());
    EXPECT_EQ(frame.Marked(), QStringLiteral("<p ALIGN=\"|\""));
    frame.Flags().Close();
    EXPECT_FALSE(keys.RowPicked());
    EXPECT_EQ(frame.Marked(), QStringLiteral("<p ALIGN=\"|\""));
}

} // namespace
