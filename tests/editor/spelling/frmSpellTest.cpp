// The dialog of the spell check as a person uses it.
#include "editor/spelling/SpellFrame.h"

#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

namespace {

using namespace Qt::StringLiterals;

class SpellDialogTest : public testing::Test {
  protected:
    void Ask(const QString& text) {
        frame.SetText(text);
        frame.Start();
        frame.WaitForQuestion();
    }
    QLineEdit& Change() { return frame.In<QLineEdit>("txtChange"); }
    QListWidget& List() { return frame.In<QListWidget>("lstSuggestions"); }
    SpellFrame frame;
};

TEST_F(SpellDialogTest, ShowsTheWordInItsSentenceAndWhatItMayBe) {
    Ask(u"One two. The quick\r\nbrwn fox. Three <b>x</b>"_s);
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
    WriteFile(TestFolder() + u"/words2"_s, "One\ntwo\nThree\nThe\nquick\nbrown\nfox\n");
    frame.checker->StandardDic = TestFolder() + u"/words2"_s;
    Ask(u"One two. The quick\r\nbrwn fox. Three <b>x</b>"_s);
    EXPECT_EQ(frame.In<QTextEdit>("txtSentence").toPlainText(), u"The quick brwn fox."_s);
    EXPECT_EQ(frame.In<QTextEdit>("txtSentence").textCursor().position(), 14);
    ASSERT_EQ(List().count(), 1);
    EXPECT_EQ(List().item(0)->text(), u"brown"_s);
    EXPECT_EQ(Change().text(), u"brown"_s) << "the best suggestion is at hand";
    EXPECT_EQ(Change().selectedText(), u"brown"_s);
    EXPECT_EQ(frame.Dialog()->focusWidget(), &Change());
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
}

TEST_F(SpellDialogTest, EnterChangesAndEscCancels) {
    Ask(u"the brwn fxo"_s);
    QTest::keyClick(&Change(), Qt::Key_Return);
    frame.WaitForQuestion();
    EXPECT_EQ(frame.found.last(), u"9:fxo"_s);
    QTest::keyClick(&Change(), Qt::Key_Escape);
    frame.WaitForEnd();
    EXPECT_EQ(frame.Box().Text(), u"the brown fxo"_s);
    EXPECT_EQ(frame.Boxes(), u"Canceled"_s);
    EXPECT_FALSE(frame.Dialog()->isVisible());
}

TEST_F(SpellDialogTest, TheCloseButtonCancels) {
    Ask(u"the brwn fox"_s);
    frame.Dialog()->close();
    frame.WaitForEnd();
    EXPECT_EQ(frame.Boxes(), u"Canceled"_s);
}

TEST_F(SpellDialogTest, ASuggestionIsChosenByKeysOrMouse) {
    WriteFile(TestFolder() + u"/words2"_s, "brown\nbrow\nthe\n");
    frame.checker->StandardDic = TestFolder() + u"/words2"_s;
    Ask(u"the browm browm"_s);
    ASSERT_EQ(List().count(), 2);
    List().setFocus();
    QTest::keyClick(&List(), Qt::Key_Down);
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(Change().text(), List().item(1)->text());
    const QString second = Change().text();
    QTest::keyClick(&List(), Qt::Key_Return);
    frame.WaitForQuestion();
    const QRect row = List().visualItemRect(List().item(0));
    QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, row.center());
    QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, row.center());
    frame.WaitForEnd();
    EXPECT_EQ(frame.Box().Text(), u"the "_s + second + u' ' + List().item(0)->text());
}

TEST_F(SpellDialogTest, AWordIsNotChangedToNothing) {
    Ask(u"the qqqq"_s);
    EXPECT_EQ(List().count(), 0);
    EXPECT_EQ(Change().text(), u"qqqq"_s) << "without a suggestion the word itself";
    Change().clear();
    EXPECT_FALSE(frame.In<QPushButton>("cmdChange").isEnabled());
    EXPECT_FALSE(frame.In<QPushButton>("cmdChangeAll").isEnabled());
    QTest::keyClick(&Change(), Qt::Key_Return);
    EXPECT_TRUE(frame.Asking());
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
}

TEST_F(SpellDialogTest, AnAnswerIsTakenOnce) {
    Ask(u"brwn brwn fxo"_s);
    auto& change = frame.In<QPushButton>("cmdChange");
    change.click();
    change.click();
    frame.WaitForQuestion();
    EXPECT_EQ(frame.Found(), u"0:brwn 5:brwn"_s);
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
}

TEST_F(SpellDialogTest, LeavesTheWordInThePageToBeSeen) {
    frame.SetText(u"the fox\r\n"_s.repeated(300) + u"brwn"_s + u"\r\nthe fox"_s.repeated(300));
    frame.Start();
    frame.WaitForQuestion();
    const RichTextBox& box = frame.Box();
    const QRect word = box.CharacterRect(box.SelStart());
    EXPECT_TRUE(box.viewport()->rect().contains(word)) << "it came into view";
    const QRect onScreen(box.viewport()->mapToGlobal(word.topLeft()), word.size());
    EXPECT_FALSE(frame.Dialog()->frameGeometry().intersects(onScreen));
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
}

TEST_F(SpellDialogTest, EveryControlHasAMnemonicOrAKey) {
    Ask(u"the brwn"_s);
    QString keys;
    for (const char* name : {"cmdChange", "cmdChangeAll", "cmdIgnore", "cmdIgnoreAll", "cmdAdd"}) {
        const QString text = frame.In<QPushButton>(name).text();
        keys += text[text.indexOf(u'&') + 1].toLower();
    }
    for (const char* name : {"lblSentence", "lblChange", "lblSuggestions"}) {
        const QLabel& label = frame.In<QLabel>(name);
        keys += label.text()[label.text().indexOf(u'&') + 1].toLower();
        ASSERT_TRUE(label.buddy()) << name;
        EXPECT_FALSE(label.buddy()->accessibleName().isEmpty()) << name;
    }
    for (qsizetype i = 0; i < keys.size(); ++i)
        EXPECT_EQ(keys.count(keys[i]), 1) << keys.toStdString();
    frame.Give({"cmdCancel"});
    frame.WaitForEnd();
}

} // namespace
