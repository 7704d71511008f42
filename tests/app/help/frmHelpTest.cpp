#include "app/help/frmHelp.h"

#include "app/help/HelpBrowser.h"
#include "app/help/HelpCommands.h"
#include "app/help/HelpFile.h"
#include "app/help/HelpTopic.h"
#include "app/RealFrame.h"
#include "platform/store/ProgramFolder.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

/// A user whose program's folder holds the help.
class frmHelpTest : public FrameTest {
  protected:
    void SetUp() override {
        if (BuiltHelpFile().isEmpty())
            GTEST_SKIP() << "no compiler for the help file here";
        ASSERT_TRUE(QFile::copy(BuiltHelpFile(), InProgramFolder(u"tarnwick.chm"_s)));
        ASSERT_TRUE(run.Start());
    }
    frmHelp* Help() { return run.frame->LoadedForms().Find<frmHelp>(); }
    HelpBrowser& Browser() { return *Help()->findChild<HelpBrowser*>(); }
    QString Shown() { return Help() ? Browser().Page() : u"(no help)"_s; }
    template <typename T> T& Part(const char* name) {
        return *Help()->findChild<T*>(QString::fromLatin1(name));
    }
    void Press(const char* button) { Part<QAbstractButton>(button).click(); }
    /// The page that F1 shows with the caret where "|" stands.
    QString PageAt(const QString& marked) {
        RichTextBox& text = run.New().txtInput();
        text.SetText(QString(marked).remove(u'|'));
        text.SetSelStart(static_cast<int>(marked.indexOf(u'|')));
        QTest::keyClick(&text, Qt::Key_F1);
        return Shown();
    }

    ProgramRun run;
};

TEST_F(frmHelpTest, HelpOpensTheFirstPageInAWindowOfItsOwn) {
    MenuEntry(*run.frame, u"mnuMainHelp"_s)->trigger();
    ASSERT_TRUE(Help());
    EXPECT_EQ(Shown(), FirstHelpPage);
    EXPECT_TRUE(Help()->isWindow());
    EXPECT_FALSE(Help()->parentWidget());
    EXPECT_EQ(Help()->windowTitle(), u"A first page in five minutes - The Tarnwick Help"_s);
    EXPECT_TRUE(Browser().toPlainText().startsWith(u"A first page in five minutes"_s));
    EXPECT_EQ(Part<QTreeWidget>("Contents").currentItem()->text(0), u"A first page in five minutes"_s);
}

TEST_F(frmHelpTest, PicturesAreShown) {
    ShowHelp(*run.frame);
    const QVariant picture =
        Browser().document()->resource(QTextDocument::ImageResource, QUrl(u"images/editor.png"_s));
    EXPECT_FALSE(picture.value<QImage>().isNull());
    EXPECT_LE(picture.value<QImage>().width(), 600) << "no wider than a page";
}

TEST_F(frmHelpTest, TheKeyOpensThePageOfTheDialog) {
    run.frame->Commands().Run(u"tb_abc"_s);
    QWidget* dialog = run.frame->LoadedForms().Find(u"frmFont"_s);
    ASSERT_TRUE(dialog);
    QTest::keyClick(dialog->findChild<QPushButton*>(u"cmdCancel"_s), Qt::Key_F1);
    EXPECT_EQ(Shown(), u"frmFont.html"_s);
}

TEST_F(frmHelpTest, InsideATagTheKeyOpensThePageOfItsDialog) {
    EXPECT_EQ(PageAt(u"<HR SI|ZE=2>"_s), u"frmHRInput.html"_s);
    EXPECT_EQ(PageAt(u"<P></FO|NT>"_s), u"frmFont.html"_s);
    EXPECT_EQ(PageAt(u"<HR>a|"_s), FirstHelpPage) << "no tag";
    EXPECT_EQ(PageAt(u"<XYZZY |>"_s), FirstHelpPage) << "no dialog";
    EXPECT_EQ(PageAt(u"|"_s), FirstHelpPage);
}

TEST_F(frmHelpTest, InAMenuTheKeyOpensThePageOfTheMenuAndShutsIt) {
    auto* menu = run.frame->menuBar()->findChild<QMenu*>(u"mnuTags"_s);
    menu->popup(QPoint(10, 10));
    QTest::keyClick(menu, Qt::Key_F1);
    EXPECT_FALSE(menu->isVisible());
    EXPECT_EQ(Shown(), u"mnuTags.html"_s);
}

TEST_F(frmHelpTest, AModalDialogHasAWindowOfItsOwnThatItDoesNotBlock) {
    QDialog modal(run.frame.get());
    modal.setObjectName(u"frmTools"_s);
    modal.setModal(true);
    modal.show();
    QTest::keyClick(&modal, Qt::Key_F1);
    EXPECT_FALSE(Help()) << "the list of forms would outlive the dialog";
    auto* window = modal.findChild<frmHelp*>();
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->isWindow());
    EXPECT_EQ(window->findChild<HelpBrowser*>()->Page(), u"frmTools.html"_s);
    QTest::keyClick(&modal, Qt::Key_F1);
    EXPECT_EQ(modal.findChildren<frmHelp*>().size(), 1) << "a second press raises the window that is up";
    window->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !modal.findChild<frmHelp*>(); }));
}

TEST_F(frmHelpTest, BackForwardAndTheFirstPage) {
    ShowHelp(*run.frame);
    EXPECT_FALSE(Part<QToolButton>("cmdBack").isEnabled());
    Help()->ShowPage(u"keys.html"_s);
    Press("cmdBack");
    EXPECT_EQ(Shown(), FirstHelpPage);
    EXPECT_FALSE(Part<QToolButton>("cmdBack").isEnabled());
    Press("cmdForward");
    EXPECT_EQ(Shown(), u"keys.html"_s);
    EXPECT_FALSE(Part<QToolButton>("cmdForward").isEnabled());
    Press("cmdHome");
    EXPECT_EQ(Shown(), FirstHelpPage);
}

TEST_F(frmHelpTest, TheContentsLeadToPages) {
    ShowHelp(*run.frame);
    auto& contents = Part<QTreeWidget>("Contents");
    for (QTreeWidgetItemIterator item(&contents); *item; ++item) {
        const QString page = (*item)->data(0, Qt::UserRole).toString();
        if (page.isEmpty())
            continue;
        contents.setCurrentItem(*item);
        EXPECT_EQ(Shown(), page);
    }
}

TEST_F(frmHelpTest, TheIndexFindsAKeywordByItsFirstLetters) {
    ShowHelp(*run.frame);
    QTest::keyClicks(&Part<QLineEdit>("txtKeyword"), u"<hr"_s);
    EXPECT_EQ(Part<QListWidget>("Keywords").currentItem()->text(), u"<HR>"_s);
    QTest::keyClick(&Part<QLineEdit>("txtKeyword"), Qt::Key_Return);
    EXPECT_EQ(Shown(), u"frmHRInput.html"_s);
}

TEST_F(frmHelpTest, AListThatComesToSightTakesTheKeys) {
    ShowHelp(*run.frame);
    auto& tabs = Part<QTabWidget>("Tabs");
    tabs.setCurrentIndex(2);
    EXPECT_EQ(Help()->focusWidget(), &Part<QLineEdit>("txtSearch"));
    tabs.setCurrentIndex(1);
    EXPECT_EQ(Help()->focusWidget(), &Part<QLineEdit>("txtKeyword"));
    tabs.setCurrentIndex(0);
    EXPECT_EQ(Help()->focusWidget(), &Part<QTreeWidget>("Contents"));
    tabs.tabBar()->setFocus();
    tabs.setCurrentIndex(1);
    EXPECT_EQ(Help()->focusWidget(), tabs.tabBar()) << "the arrow keys go on";
}

TEST_F(frmHelpTest, TheSearchListsPagesAndShowsTheFirst) {
    ShowHelp(*run.frame);
    QTest::keyClicks(&Part<QLineEdit>("txtSearch"), u"keys"_s);
    QTest::keyClick(&Part<QLineEdit>("txtSearch"), Qt::Key_Return);
    EXPECT_EQ(Part<QListWidget>("Hits").currentItem()->text(), u"Keys"_s);
    EXPECT_EQ(Shown(), u"keys.html"_s);
    Part<QLineEdit>("txtSearch").setText(u"qwertzuiop"_s);
    Press("cmdSearch");
    EXPECT_EQ(Part<QListWidget>("Hits").count(), 0);
    EXPECT_EQ(Part<QLabel>("lblHits").text(), u"No page holds these words."_s);
}

TEST_F(frmHelpTest, LettersGrowAndShrinkWithinBounds) {
    ShowHelp(*run.frame);
    const qreal first = Browser().font().pointSizeF();
    Press("cmdZoomIn");
    EXPECT_EQ(Browser().font().pointSizeF(), first + 1);
    for (int n = 0; n < 40; ++n)
        Press("cmdZoomOut");
    EXPECT_GE(Browser().font().pointSizeF(), 4);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Help()));
    QTest::keyClick(Help(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Browser().font().pointSizeF() == first; }));
}

TEST_F(frmHelpTest, EscClosesItAndTheProgramEndsWithItOpen) {
    ShowHelp(*run.frame);
    QTest::keyClick(Help(), Qt::Key_Escape);
    EXPECT_FALSE(Help());
    ShowHelp(*run.frame);
    EXPECT_TRUE(run.Stop());
}

TEST_F(frmHelpTest, APageThatIsNotThereSaysSo) {
    ShowHelp(*run.frame);
    Help()->ShowPage(u"nothing.html"_s);
    EXPECT_EQ(Browser().toPlainText(), u"The help has no such page."_s);
}

} // namespace
