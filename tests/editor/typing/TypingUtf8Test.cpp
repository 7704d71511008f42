// Typing into a page in UTF-8.
#include "editor/autofill/frmDropDown.h"
#include "support/TypingFrame.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>

namespace {

using namespace Qt::StringLiterals;

class TypingUtf8 : public testing::Test {
  protected:
    TypingUtf8() { frame.active->SetEncoding(TextEncoding::Utf8); }
    TypingFrame frame;
};

TEST_F(TypingUtf8, LettersStayThemselvesInTheTextColour) {
    frame.SetMarked(u"<p><I>|"_s);
    frame.Box().SetSelStart(0);
    frame.Box().SetSelLength(6);
    frame.Box().SetSelColor(16711680);
    frame.Box().SetSelStart(6);
    frame.Type(u"łľ日"_s);
    EXPECT_EQ(frame.Marked(), u"<p><I>łľ日|"_s);
    EXPECT_EQ(frame.Box().ColorAt(5), 16711680);
    for (int i = 6; i < 9; ++i)
        EXPECT_EQ(frame.Box().ColorAt(i), 0) << i;
    EXPECT_TRUE(frame.active->modified);
}

TEST_F(TypingUtf8, AccentedLettersBecomeEntitiesWhereTheOptionSaysSo) {
    frame.Type(u"éł"_s);
    EXPECT_EQ(frame.Marked(), u"&eacute;ł|"_s);
    frame.Store().WriteFlag(Keys::ConvertChar, false);
    frame.Type(u"éł"_s);
    EXPECT_EQ(frame.Marked(), u"&eacute;łéł|"_s);
}

TEST_F(TypingUtf8, ATagWithOtherLettersTakesItsColourAtItsEnd) {
    frame.SetMarked(u"日本 <b title=\"żółć 😀\"|<i>"_s);
    frame.Type(u">"_s);
    EXPECT_EQ(frame.Marked(), u"日本 <b title=\"żółć 😀\">|<i>"_s);
    EXPECT_EQ(frame.Box().ColorAt(2), 0);
    EXPECT_EQ(frame.Box().ColorAt(3), 16711680);
    EXPECT_EQ(frame.Box().ColorAt(14), 16711680);
}

TEST_F(TypingUtf8, AKeyOfAnyScriptStopsAPendingList) {
    frame.SetMarked(u"日本<img|"_s);
    frame.Type(u" "_s);
    EXPECT_TRUE(frame.PausePending());
    frame.Type(u"ł"_s);
    EXPECT_FALSE(frame.PausePending());
}

TEST_F(TypingUtf8, ARowOfAListComesInWhereItsWordStands) {
    frame.SetMarked(u"😀日本<img|>żółć"_s);
    frame.Type(u" "_s);
    frame.Pause();
    EXPECT_TRUE(frame.ListShown());
    frame.Type(u"al"_s);
    EXPECT_EQ(frame.SelectedRow(), u"ALIGN"_s);
    frame.Type(u"\r"_s);
    EXPECT_EQ(frame.Marked(), u"😀日本<img ALIGN=\"|\">żółć"_s);
    frame.Pause();
    frame.Type(u"left\r"_s);
    EXPECT_EQ(frame.Marked(), u"😀日本<img ALIGN=\"LEFT|\">żółć"_s);
}

TEST_F(TypingUtf8, TheLineIsToldBehindOtherLetters) {
    frame.SetMarked(u"日\r\n😀\r\nż|"_s);
    EXPECT_EQ(frame.statuses.back(), u"Line 3"_s);
}

} // namespace
