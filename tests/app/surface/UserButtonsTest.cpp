// The strip of user buttons and the dialog that edits one, as a person uses them.
#include "app/surface/UserButtons.h"

#include "app/surface/frmTools.h"
#include "editor/typing/UserButtonTexts.h"
#include "support/TestFrame.h"

#include <gtest/gtest.h>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QtTest/QTest>

namespace {

QString Text(const char* text) {
    return QString::fromUtf8(text);
}

class UserButtonsTest : public testing::Test {
  protected:
    UserButtonsTest() : strip(new UserButtons(frame, frame.Window())) {
        strip->resize(1000, 40);
        strip->show();
    }

    QPushButton* Button(int index) {
        return strip->findChild<QPushButton*>(QStringLiteral("Command1_%1").arg(index));
    }
    QWidget* Page(int index) {
        return strip->findChild<QWidget*>(QStringLiteral("frameButtons_%1").arg(index));
    }
    QTabBar* Tabs() { return strip->findChild<QTabBar*>(QStringLiteral("TabStrip1")); }
    /// The dialog that a right press brings up.
    frmTools* Editor(int index) {
        QTest::mousePress(Button(index), Qt::RightButton);
        return Dialog();
    }
    frmTools* Dialog() { return frame.LoadedForms().Find<frmTools>(); }
    static QLineEdit* Field(frmTools* editor, const char* name) {
        return editor->findChild<QLineEdit*>(QString::fromLatin1(name));
    }
    static void Press(frmTools* editor, const char* button) {
        QTest::mouseClick(editor->findChild<QPushButton*>(QString::fromLatin1(button)), Qt::LeftButton);
    }

    TestFrame frame;
    UserButtons* strip;
};

TEST_F(UserButtonsTest, TwoPagesOfFifteenBlankButtons) {
    EXPECT_EQ(strip->objectName(), Text("Picture2"));
    EXPECT_EQ(strip->accessibleName(), Text("User buttons"));
    ASSERT_EQ(Tabs()->count(), 2);
    EXPECT_EQ(Tabs()->tabText(0), Text("User 1"));
    EXPECT_EQ(Tabs()->tabText(1), Text("User 2"));
    for (int index = 0; index < 30; ++index) {
        ASSERT_TRUE(Button(index)) << index;
        EXPECT_EQ(Button(index)->text(), QString());
        EXPECT_EQ(Button(index)->accessibleName(), QStringLiteral("User button %1").arg(index + 1));
        EXPECT_TRUE(Page(index < 15 ? 0 : 1)->isAncestorOf(Button(index))) << index;
    }
    EXPECT_FALSE(Button(30));
}

TEST_F(UserButtonsTest, TheTipOfABlankButtonTellsHowToFillIt) {
    const QString tip =
        Text("A button for tags of your own: to fill it, click it with the right mouse button or "
             "press the Menu key on it");
    EXPECT_EQ(Button(0)->toolTip(), tip);
    EXPECT_EQ(Button(29)->toolTip(), tip);
    strip->SetCaption(0, Text("<B>ox"));
    EXPECT_EQ(Button(0)->toolTip(), Text("&lt;B&gt;ox"));
    strip->SetCaption(0, QString());
    EXPECT_EQ(Button(0)->toolTip(), tip);
    frame.Store().WriteFlag(Keys::BlankButtonTips, false);
    strip->SetCaption(0, QString());
    EXPECT_EQ(Button(0)->toolTip(), QString());
}

TEST_F(UserButtonsTest, TheTabShowsItsPage) {
    EXPECT_TRUE(Page(0)->isVisible());
    EXPECT_FALSE(Page(1)->isVisible());
    Tabs()->setCurrentIndex(1);
    EXPECT_FALSE(Page(0)->isVisible());
    EXPECT_TRUE(Page(1)->isVisible());
    Tabs()->setCurrentIndex(0);
    EXPECT_TRUE(Page(0)->isVisible());
    EXPECT_FALSE(Page(1)->isVisible());
    // It is the caption that counts, to the letter.
    Tabs()->setTabText(1, Text("user 1"));
    Tabs()->setCurrentIndex(1);
    EXPECT_TRUE(Page(1)->isVisible());
}

TEST_F(UserButtonsTest, AClickInsertsTheButtonsTwoTags) {
    auto& state = frame.State<UserButtonTexts>();
    state.FirstBut[17] = Text("<DIV ID=\"X\">");
    state.SecondBut[17] = Text("</DIV>\r\n");
    struct Row {
        bool lower;
        bool colored;
        const char* after;
        int caret;
    };
    // With colouring on, the closing tag's line end counts five as the caret goes back: the tag's own rule.
    for (const Row& row : {Row{false, true, "a<DIV ID=\"X\">T</DIV>\r\nb", 11},
                           {true, true, "a<div id=\"x\">T</div>\r\nb", 11},
                           {false, false, "a<DIV ID=\"X\">T</DIV>\r\nb", 14},
                           {true, false, "a<div id=\"x\">T</div>\r\nb", 14}}) {
        frame.Store().WriteFlag(Keys::LowerCaseTags, row.lower);
        frame.Store().WriteFlag(Keys::ColoredTags, row.colored);
        frame.SetText(Text("aTb"));
        frame.Box().SetSelStart(1);
        frame.Box().SetSelLength(1);
        Button(17)->click();
        EXPECT_EQ(frame.Box().Text(), Text(row.after));
        EXPECT_EQ(frame.Box().SelStart(), row.caret);
        // What is stored stays as the user wrote it.
        EXPECT_EQ(state.FirstBut[17], Text("<DIV ID=\"X\">"));
        EXPECT_EQ(state.SecondBut[17], Text("</DIV>\r\n"));
    }
}

TEST_F(UserButtonsTest, AButtonWithoutTagsChangesNothing) {
    for (const bool colored : {true, false}) {
        frame.Store().WriteFlag(Keys::ColoredTags, colored);
        frame.SetText(Text("aTb"));
        frame.Box().SetSelStart(1);
        Button(3)->click();
        EXPECT_EQ(frame.Box().Text(), Text("aTb"));
        EXPECT_EQ(frame.Box().SelStart(), 1);
    }
}

TEST_F(UserButtonsTest, WithoutADocumentAClickDoesNothing) {
    frame.State<UserButtonTexts>().FirstBut[0] = Text("<B>");
    frame.CloseDocument();
    Button(0)->click();
    EXPECT_FALSE(frame.ActiveForm());
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(UserButtonsTest, ARightPressEditsThatButton) {
    auto& state = frame.State<UserButtonTexts>();
    Tabs()->setCurrentIndex(1);
    strip->SetCaption(17, Text("Old"));
    state.FirstBut[17] = Text("<X>");
    state.SecondBut[17] = Text("</X>");
    frmTools* editor = Editor(17);
    ASSERT_TRUE(editor);
    EXPECT_EQ(strip->Tag(), 17);
    EXPECT_EQ(strip->property("Tag").toInt(), 17);
    EXPECT_TRUE(editor->isVisible());
    EXPECT_TRUE(editor->isModal());
    EXPECT_EQ(editor->parentWidget(), frame.Window());
    EXPECT_EQ(editor->windowTitle(), Text("User Buttons"));
    EXPECT_EQ(Field(editor, "txtName")->text(), Text("Old"));
    EXPECT_EQ(Field(editor, "txtFirst")->text(), Text("<X>"));
    EXPECT_EQ(Field(editor, "txtSecond")->text(), Text("</X>"));

    Field(editor, "txtName")->setText(Text("Box ☃"));
    Field(editor, "txtFirst")->setText(Text("<DIV é>"));
    Field(editor, "txtSecond")->setText(Text("</DIV>"));
    Press(editor, "cmdOK");
    EXPECT_FALSE(Dialog());
    // What no document can hold comes in as a reference.
    EXPECT_EQ(Button(17)->text(), Text("Box &#9731;"));
    EXPECT_EQ(strip->Caption(17), Text("Box &#9731;"));
    EXPECT_EQ(state.FirstBut[17], Text("<DIV é>"));
    EXPECT_EQ(state.SecondBut[17], Text("</DIV>"));
    for (int index = 0; index < 30; ++index)
        if (index != 17) {
            EXPECT_EQ(strip->Caption(index), QString()) << index;
            EXPECT_EQ(state.FirstBut[static_cast<size_t>(index)], QString()) << index;
        }
    // The store is written when the program stops, not here.
    EXPECT_EQ(frame.Store().Read(Keys::ButCap(17)), QString());
    EXPECT_EQ(frame.Store().Read(Keys::FirstBut(17)), QString());
}

TEST_F(UserButtonsTest, CancelAndEscLeaveTheButtonAlone) {
    strip->SetCaption(2, Text("Old"));
    frmTools* editor = Editor(2);
    Field(editor, "txtName")->setText(Text("New"));
    Press(editor, "cmdCancel");
    EXPECT_FALSE(Dialog());
    EXPECT_EQ(strip->Caption(2), Text("Old"));
    editor = Editor(2);
    Field(editor, "txtName")->setText(Text("New"));
    QTest::keyClick(editor, Qt::Key_Escape);
    EXPECT_FALSE(Dialog());
    EXPECT_EQ(strip->Caption(2), Text("Old"));
    editor = Editor(2);
    editor->close();
    EXPECT_FALSE(Dialog());
}

TEST_F(UserButtonsTest, EnterIsOkInEveryField) {
    for (const char* field : {"txtName", "txtFirst", "txtSecond"}) {
        frmTools* editor = Editor(4);
        Field(editor, "txtName")->setText(Text(field));
        QTest::keyClick(Field(editor, field), Qt::Key_Return);
        EXPECT_FALSE(Dialog());
        EXPECT_EQ(strip->Caption(4), Text(field));
    }
}

TEST_F(UserButtonsTest, OnlyTheRightButtonEdits) {
    QTest::mousePress(Button(5), Qt::LeftButton);
    QTest::mouseRelease(Button(5), Qt::LeftButton);
    QTest::mousePress(Button(5), Qt::MiddleButton);
    EXPECT_FALSE(Dialog());
    EXPECT_EQ(strip->Tag(), -1);
}

TEST_F(UserButtonsTest, TheKeyboardsWayToAContextMenuEditsToo) {
    QContextMenuEvent ask(QContextMenuEvent::Keyboard, QPoint(1, 1), Button(6)->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(Button(6), &ask);
    EXPECT_TRUE(Dialog());
    EXPECT_EQ(strip->Tag(), 6);
}

TEST_F(UserButtonsTest, AFieldSelectsItsTextAsItGetsTheFocus) {
    strip->SetCaption(8, Text("Title"));
    frame.State<UserButtonTexts>().FirstBut[8] = Text("<FIRST>");
    frame.State<UserButtonTexts>().SecondBut[8] = Text("</SECOND>");
    frmTools* editor = Editor(8);
    editor->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([&] { return editor->isActiveWindow(); }));
    // Title first, then the tags, then the buttons.
    ASSERT_TRUE(QTest::qWaitFor([&] { return Field(editor, "txtName")->hasFocus(); }));
    EXPECT_EQ(Field(editor, "txtName")->selectedText(), Text("Title"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(Field(editor, "txtFirst")->hasFocus());
    EXPECT_EQ(Field(editor, "txtFirst")->selectedText(), Text("<FIRST>"));
    QTest::mouseClick(Field(editor, "txtSecond"), Qt::LeftButton);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return Field(editor, "txtSecond")->selectedText() == Text("</SECOND>"); }));
    // One more click sets the caret: the focus is there already.
    QTest::mouseClick(Field(editor, "txtSecond"), Qt::LeftButton, {}, QPoint(2, 8), 1000);
    QCoreApplication::processEvents();
    EXPECT_EQ(Field(editor, "txtSecond")->selectedText(), QString());
}

TEST_F(UserButtonsTest, LabelsNameTheirFields) {
    const frmTools* editor = Editor(0);
    QStringList labels;
    for (const QLabel* label : editor->findChildren<QLabel*>())
        labels << label->buddy()->objectName() + u' ' + label->text().remove(u'&') + u' ' +
                      label->buddy()->accessibleName();
    EXPECT_EQ(labels,
              (QStringList{Text("txtName Button Title Button Title"), Text("txtFirst First Tag First Tag"),
                           Text("txtSecond Second Tag Second Tag")}));
}

TEST_F(UserButtonsTest, AnIndexOutsideTheButtonsIsPassedOver) {
    strip->SetCaption(30, Text("x"));
    strip->SetCaption(-1, Text("x"));
    EXPECT_EQ(strip->Caption(30), QString());
    EXPECT_EQ(strip->Caption(-1), QString());
}

TEST_F(UserButtonsTest, ALongCaptionWidensNothing) {
    const int before = strip->minimumSizeHint().width();
    strip->SetCaption(0, QString(500, u'W'));
    EXPECT_EQ(strip->minimumSizeHint().width(), before);
    EXPECT_LE(before, 800);
}

} // namespace
