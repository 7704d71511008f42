#include "styles/sheet/frmCSS.h"

#include "styles/sheet/SheetInsertion.h"
#include "styles/sheet/SheetTest.h"
#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>

namespace {

class frmCSSTest : public SheetTest {
  protected:
    /// The controls that Tab reaches, in their order.
    QStringList TabOrder() {
        QStringList order;
        const QWidget* first = form->focusWidget();
        for (const QWidget* at = first; at && order.size() < 40;) {
            order << at->objectName();
            QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
            at = form->focusWidget();
            if (at == first)
                break;
        }
        return order;
    }
    void ExpectUnloaded() { EXPECT_FALSE(Loaded(T(u"frmCSS"))); }
};

TEST_F(frmCSSTest, LooksAsItShould) {
    EXPECT_EQ(form->windowTitle(), T(u"Cascading Style Sheets"));
    EXPECT_FALSE(form->isModal());
    EXPECT_EQ(form->parentWidget(), frame.Window());
    EXPECT_EQ(Elements().headerItem()->text(0), T(u"Element"));
    EXPECT_EQ(Properties().headerItem()->text(0), T(u"Property"));
    EXPECT_EQ(Values().headerItem()->text(0), T(u"Value"));
    EXPECT_EQ(LabelOf(T(u"ListCSS")), T(u"Style Builder"));
    EXPECT_EQ(Tip(T(u"ListCSS")), T(u"Double-click item to remove"));
    EXPECT_EQ(LabelOf(T(u"txtCSS")), T(u"Complete Style Sheet"));
    EXPECT_EQ(Tip(T(u"cmdAddSheet")), T(u"Press this button to add the Style to the Complete Style Sheet."));
    EXPECT_EQ(Rows(Builder()), QStringList());
    EXPECT_EQ(Sheet().Text(), QString());
    auto& menu = Control<QMenu>(T(u"mnuFile"));
    EXPECT_EQ(menu.title(), T(u"&File"));
    ASSERT_EQ(menu.actions().size(), 1);
    EXPECT_EQ(menu.actions().first()->objectName(), T(u"mnuClearAll"));
    EXPECT_EQ(menu.actions().first()->text(), T(u"&Clear All"));
}

TEST_F(frmCSSTest, HasItsSevenButtonsInOrder) {
    const char16_t* const rows[][2] = {{u"tb_Save", u"Save to external style sheet"},
                                       {u"tb_Header", u"Add to <HEAD>"},
                                       {u"tb_Location", u"Add to cursor location"},
                                       {u"tb_Import", u"Link current document to external style sheet"},
                                       {u"tb_Add", u"Add an element"},
                                       {u"tb_Rename", u"Rename an element"},
                                       {u"tb_Remove", u"Remove an element"}};
    auto& toolbar = Control<QToolBar>(T(u"Toolbar1"));
    ASSERT_EQ(toolbar.actions().size(), 7);
    for (qsizetype i = 0; i < 7; ++i) {
        const QAction* action = toolbar.actions()[i];
        EXPECT_EQ(action->objectName(), T(rows[i][0]));
        EXPECT_EQ(action->toolTip(), T(rows[i][1]));
        const auto& button = Control<QToolButton>(T(rows[i][0]));
        EXPECT_TRUE(button.isVisible());
        EXPECT_EQ(button.text(), T(rows[i][0]).mid(3));
        EXPECT_EQ(button.accessibleName(), T(rows[i][1]));
        EXPECT_FALSE(button.icon().isNull()) << T(rows[i][0]).toStdString();
        EXPECT_EQ(button.toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    }
}

TEST_F(frmCSSTest, ANarrowFormShowsTheButtonsWordsAlone) {
    const auto& toolbar = Control<QToolBar>(T(u"Toolbar1"));
    const auto& last = Control<QToolButton>(T(u"tb_Remove"));
    for (const auto& [width, style] :
         {std::pair(480, Qt::ToolButtonTextOnly), std::pair(800, Qt::ToolButtonTextBesideIcon),
          std::pair(480, Qt::ToolButtonTextOnly)}) {
        form->resize(width, form->height());
        EXPECT_EQ(toolbar.toolButtonStyle(), style) << width;
        EXPECT_TRUE(QTest::qWaitFor([&] { return last.isVisible(); })) << width;
    }
}

TEST_F(frmCSSTest, StandsInTheMiddleOfTheScreen) {
    const QPoint middle = frame.Window()->screen()->availableGeometry().center();
    EXPECT_LE((form->geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(frmCSSTest, FitsOnASmallScreen) {
    EXPECT_LE(form->minimumSizeHint().width(), 512);
    EXPECT_LE(form->minimumSizeHint().height(), 384);
}

TEST_F(frmCSSTest, ExistsOnceAndKeepsNothingBetweenShowings) {
    QWidget* first = form;
    Add(u"Color", u"red");
    Press(T(u"cmdAddSheet"));
    OpenSheet();
    EXPECT_EQ(form, first);
    EXPECT_EQ(Sheet().Text(), T(u"H1 { Color: red;  }\r\n"));
    form->close();
    ExpectUnloaded();
    OpenSheet();
    EXPECT_EQ(Sheet().Text(), QString());
    EXPECT_EQ(Rows(Builder()), QStringList());
}

TEST_F(frmCSSTest, EscUnloadsItFromEveryControl) {
    for (const char16_t* name : {u"lstObject", u"lstProperty", u"lstValue", u"ListCSS", u"cmdAddSheet",
                                 u"txtCSS", u"tb_Save", u"tb_Remove"}) {
        OpenSheet();
        auto& control = Control<QWidget>(T(name));
        control.setFocus();
        QTest::keyClick(&control, Qt::Key_Escape);
        EXPECT_FALSE(Loaded(T(u"frmCSS"))) << T(name).toStdString();
    }
    EXPECT_EQ(Text(), QString());
}

TEST_F(frmCSSTest, TabReachesEveryControlFromTheElementsOn) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    EXPECT_EQ(TabOrder(),
              QStringList({T(u"lstObject"), T(u"lstProperty"), T(u"lstValue"), T(u"ListCSS"),
                           T(u"cmdAddSheet"), T(u"txtCSS"), T(u"tb_Save"), T(u"tb_Header"), T(u"tb_Location"),
                           T(u"tb_Import"), T(u"tb_Add"), T(u"tb_Rename"), T(u"tb_Remove")}));
}

TEST_F(frmCSSTest, KeysLeadToEveryList) {
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    const auto lead = [this](Qt::Key key) {
        QTest::keyClick(form, key, Qt::AltModifier);
        return form->focusWidget()->objectName();
    };
    EXPECT_EQ(lead(Qt::Key_P), T(u"lstProperty"));
    EXPECT_EQ(lead(Qt::Key_V), T(u"lstValue"));
    EXPECT_EQ(lead(Qt::Key_E), T(u"lstObject"));
    EXPECT_EQ(lead(Qt::Key_B), T(u"ListCSS"));
    EXPECT_EQ(lead(Qt::Key_C), T(u"txtCSS"));
    ChooseProperty(u"font-family");
    EXPECT_EQ(lead(Qt::Key_V), T(u"lstFont"));
    lead(Qt::Key_A);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sheet().Text() == T(u"H1 {  }\r\n"); }));
}

TEST_F(frmCSSTest, EnterPressesTheToolButtonThatHasTheFocus) {
    frame.prompts.inputAnswers = {T(u".x")};
    QTest::keyClick(&Control<QToolButton>(T(u"tb_Add")), Qt::Key_Return);
    EXPECT_EQ(Rows(Elements()).last(), T(u".x"));
    EXPECT_EQ(Sheet().Text(), QString());
}

TEST_F(frmCSSTest, EveryControlHasAnAccessibleName) {
    for (QWidget* control : form->findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || control->window() != form)
            continue;
        const QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
        ASSERT_TRUE(face != nullptr);
        EXPECT_FALSE(face->text(QAccessible::Name).isEmpty())
            << control->metaObject()->className() << ' ' << control->objectName().toStdString();
    }
}

TEST_F(frmCSSTest, DeclarationsKeepTheirOrderAndMayComeTwice) {
    Add(u"Color", u"red");
    Add(u"font-size", u"large");
    Add(u"Color", u"red");
    Add(u"Color", u"blue");
    EXPECT_EQ(Rows(Builder()),
              QStringList({T(u"Color: red"), T(u"font-size: large"), T(u"Color: red"), T(u"Color: blue")}));
}

TEST_F(frmCSSTest, ADoubleClickTakesALineOutAndTheLaterOnesMoveUp) {
    for (const char16_t* color : {u"aqua", u"black", u"blue"})
        Add(u"Color", color);
    DoubleClick(Builder(), 1);
    EXPECT_EQ(Rows(Builder()), QStringList({T(u"Color: aqua"), T(u"Color: blue")}));
    QTest::keyClick(&Builder(), Qt::Key_Delete);
    QTest::keyClick(&Builder(), Qt::Key_Return);
    EXPECT_EQ(Rows(Builder()), QStringList());
    // With none selected.
    QTest::keyClick(&Builder(), Qt::Key_Delete);
    QTest::mouseDClick(Builder().viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(Rows(Builder()), QStringList());
}

TEST_F(frmCSSTest, ADoubleClickBesideTheLinesTakesNoneOut) {
    Add(u"Color", u"red");
    QTest::mouseDClick(Builder().viewport(), Qt::LeftButton, {},
                       QPoint(5, Builder().viewport()->height() - 2));
    QTest::keyClick(&Builder(), Qt::Key_Delete);
    EXPECT_EQ(Builder().count(), 1);
}

TEST_F(frmCSSTest, AddingAStyleMovesItIntoTheSheet) {
    Add(u"Color", u"red");
    Add(u"font-size", u"large");
    Press(T(u"cmdAddSheet"));
    EXPECT_EQ(Rows(Builder()), QStringList());
    ChooseElement(u"P");
    Press(T(u"cmdAddSheet"));
    EXPECT_EQ(Sheet().Text(), T(u"H1 { Color: red; font-size: large;  }\r\nP {  }\r\n"));
}

TEST_F(frmCSSTest, ClearAllClearsTheStyleAndTheSheetAlone) {
    Add(u"Color", u"red");
    Press(T(u"cmdAddSheet"));
    Add(u"Color", u"blue");
    ChooseElement(u"P");
    Tool(u"mnuClearAll");
    EXPECT_EQ(Rows(Builder()), QStringList());
    EXPECT_EQ(Sheet().Text(), QString());
    EXPECT_EQ(Elements().SelectedText(), T(u"P"));
    EXPECT_EQ(Properties().SelectedText(), T(u"Color"));
    EXPECT_EQ(Values().topLevelItemCount(), 16);
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmCSSTest, TheHeaderButtonWritesTheSheetAndUnloads) {
    frame.SetMarked("<HEAD></HEAD>|");
    Add(u"Color", u"red");
    Press(T(u"cmdAddSheet"));
    Tool(u"tb_Header");
    EXPECT_EQ(Text(),
              T(u"<HEAD>") + HeadBlock(T(u"H1 { Color: red;  }\r\n"), TagCase::AsWritten) + T(u"</HEAD>"));
    ExpectUnloaded();
}

TEST_F(frmCSSTest, TheLocationButtonWritesTheBareSheetAndUnloads) {
    frame.SetMarked("a|b");
    Press(T(u"cmdAddSheet"));
    Tool(u"tb_Location");
    EXPECT_EQ(Text(), T(u"aH1 {  }b"));
    ExpectUnloaded();
}

TEST_F(frmCSSTest, AnEmptySheetUnloadsAllTheSame) {
    frame.SetMarked("a|b");
    Tool(u"tb_Location");
    EXPECT_EQ(Text(), T(u"ab"));
    ExpectUnloaded();
    OpenSheet();
    frame.SetMarked("<HEAD>|");
    Tool(u"tb_Header");
    EXPECT_EQ(Text(), T(u"<HEAD>\r\n"));
    ExpectUnloaded();
}

TEST_F(frmCSSTest, TheDocumentIsTheOneActiveAtThatMoment) {
    TestDocument* first = frame.active;
    Press(T(u"cmdAddSheet"));
    frame.NewDocument();
    Tool(u"tb_Location");
    EXPECT_EQ(first->input->Text(), QString());
    EXPECT_EQ(Text(), T(u"H1 {  }"));
}

TEST_F(frmCSSTest, WithoutADocumentHeaderAndLocationOnlyUnload) {
    frame.CloseDocument();
    for (const char16_t* tool : {u"tb_Header", u"tb_Location"}) {
        OpenSheet();
        Press(T(u"cmdAddSheet"));
        Tool(tool);
        ExpectUnloaded();
    }
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmCSSTest, WhatIsTypedIntoTheSheetIsWritten) {
    frame.SetMarked("|");
    QTest::keyClicks(&Sheet(), T(u"a {}"));
    QTest::keyClick(&Sheet(), Qt::Key_Return);
    QTest::keyClicks(&Sheet(), T(u"b {}"));
    QTest::keyClick(&Sheet(), Qt::Key_Return);
    Tool(u"tb_Location");
    EXPECT_EQ(Text(), T(u"a {}\r\nb {}"));
}

TEST_F(frmCSSTest, ThreeStylesOfLongAndOddValuesComeThrough) {
    const QString longest(10000, u'x');
    const QString odd = T(u"\"{\\;}'<!-- -->");
    for (const QString& value : {longest, odd}) {
        frame.prompts.inputAnswers = {value};
        ChooseProperty(u"font");
        DoubleClick(Values(), 0);
    }
    Press(T(u"cmdAddSheet"));
    frame.SetMarked("|");
    Tool(u"tb_Location");
    EXPECT_EQ(Text(), T(u"H1 { font: ") + longest + T(u"; font: ") + odd + T(u";  }"));
}

} // namespace
