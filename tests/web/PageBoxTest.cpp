// The boxes in which pages speak: recognised as theirs, and silenced.
#include "web/PageBox.h"

#include "support/Text.h"
#include "web/BoxAnswers.h"
#include "web/PagePane.h"

#include <csignal>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace {

using PageBoxes = PagePane;

TEST_F(PageBoxes, TellWhoSpeaksAndShowMarkupAsText) {
    QStringList titles, speakers;
    int offers = 0;
    const auto look = [&](PageBox& box) {
        titles << box.windowTitle();
        speakers << box.findChild<QLabel*>(QStringLiteral("lblSpeaker"))->text();
        offers += box.findChild<QCheckBox*>() != nullptr;
        EXPECT_EQ(box.parentWidget()->window(), &window);
        box.accept();
    };
    BoxAnswers answers({look});
    ASSERT_TRUE(Open(QStringLiteral("a.htm"), "alert('<b>one</b>\\n\"two\"'); document.title = 'told'"));
    EXPECT_TRUE(Shows(QStringLiteral("told")));
    EXPECT_EQ(answers.Seen(), QStringList(QStringLiteral("<b>one</b>\n\"two\"")));
    EXPECT_EQ(titles, QStringList(QStringLiteral("Message from a Page")));
    EXPECT_EQ(speakers, QStringList(QStringLiteral("The page \"a.htm\" says:")));
    EXPECT_EQ(offers, 0) << "one message is no nuisance";
}

TEST_F(PageBoxes, GiveThePageTheUsersAnswers) {
    const auto type = [](PageBox& box) {
        EXPECT_EQ(box.findChild<QLineEdit*>()->text(), QStringLiteral("old"));
        box.findChild<QLineEdit*>()->setText(QStringLiteral("new"));
        box.accept();
    };
    BoxAnswers answers({BoxAnswers::Accept, BoxAnswers::Refuse, type, BoxAnswers::Refuse});
    ASSERT_TRUE(
        Open(QStringLiteral("a.htm"),
             "document.title = [confirm('1'), confirm('2'), prompt('3', 'old'), prompt('4')].join('|')"));
    EXPECT_TRUE(Shows(QStringLiteral("true|false|new|")));
    EXPECT_EQ(answers.Seen(), QStringList({"1", "2", "3", "4"}));
}

TEST_F(PageBoxes, AVeryLongMessageIsCut) {
    BoxAnswers answers;
    ASSERT_TRUE(Open(QStringLiteral("a.htm"), "alert('x'.repeat(3e6)); document.title = 'told'"));
    EXPECT_TRUE(Shows(QStringLiteral("told")));
    ASSERT_EQ(answers.Seen().size(), 1);
    EXPECT_LT(answers.Seen().first().size(), 5000);
}

TEST_F(PageBoxes, ASilencedPageThatIsAliveStays) {
    BoxAnswers answers({BoxAnswers::Accept, BoxAnswers::Silence});
    ASSERT_TRUE(Open(QStringLiteral("a.htm"),
                     "let n = 0; setInterval(() => { for (const end = n + 20; n < end; ++n) alert(n);"
                     "if (n > 120) document.title = 'alive' }, 0);"));
    EXPECT_TRUE(HasTitle(QStringLiteral("alive")));
    EXPECT_EQ(answers.Seen(), QStringList({"0", "1"}));
    NextPageShows();
}

TEST_F(PageBoxes, APageThatLoadsItselfAgainStaysSilent) {
    BoxAnswers answers({BoxAnswers::Accept, BoxAnswers::Silence});
    ASSERT_TRUE(Open(QStringLiteral("a.htm"),
                     "alert(1); const n = Number(window.name || 0) + 1; window.name = n;"
                     "if (n < 6) location.reload(); else document.title = 'six'"));
    EXPECT_TRUE(HasTitle(QStringLiteral("six")));
    EXPECT_EQ(answers.Seen().size(), 2);
}

TEST_F(PageBoxes, APageThatIsNotSeenIsNotHeard) {
    BoxAnswers answers;
    pane.hide();
    ASSERT_TRUE(Open(QStringLiteral("a.htm"),
                     "alert(1); document.title = [confirm(2), prompt(3, 'x') === null].join()"));
    EXPECT_TRUE(HasTitle(QStringLiteral("false,true")));
    EXPECT_EQ(answers.Seen(), QStringList());
}

TEST(PageBoxesOfDocuments, OnlyTheDocumentInFrontSpeaks) {
    FreshUser();
    QMdiArea area;
    area.resize(600, 400);
    auto* page = area.addSubWindow(new QWidget);
    auto* typed = area.addSubWindow(new QLineEdit);
    BrowserPane pane(page->widget());
    pane.resize(200, 200);
    area.show();
    pane.show();
    const QString path =
        PageFiles::Write(QStringLiteral("a.htm"),
                         "<title></title><script>const mine = confirm(1); document.title = mine</script>");
    for (auto* front : {typed, page}) {
        area.setActiveSubWindow(front);
        ASSERT_TRUE(pane.isVisible());
        BoxAnswers answers;
        ASSERT_TRUE(pane.Navigate(path));
        const bool heard = front == page;
        EXPECT_TRUE(Probe::Until(pane, QStringLiteral("document.title === '%1'")
                                           .arg(heard ? QStringLiteral("true") : QStringLiteral("false"))));
        EXPECT_EQ(answers.Seen().size(), heard ? 1 : 0);
    }
}

TEST_F(PageBoxes, NoneComesUpOverADialog) {
    QDialog dialog(&window);
    dialog.setModal(true);
    dialog.show();
    ASSERT_TRUE(Open(QStringLiteral("a.htm"), "document.title = confirm(1)"));
    EXPECT_TRUE(Shows(QStringLiteral("false")));
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
}

TEST_F(PageBoxes, AnEngineThatDiesMeanwhileLeavesAnEmptyView) {
    BoxAnswers answers({[this](PageBox& box) {
        ::kill(static_cast<pid_t>(Probe::Page(pane)->renderProcessPid()), SIGKILL);
        box.accept();
    }});
    ASSERT_TRUE(Open(QStringLiteral("a.htm"), "alert(1)"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return answers.Seen().size() == 1 && !Probe::Page(pane); }, 20000));
    NextPageShows();
}

TEST_F(PageBoxes, TheNextPageClosesTheBox) {
    const QString next = PageFiles::Write(QStringLiteral("next.htm"), "<title>next</title>");
    BoxAnswers answers({[&](PageBox&) { EXPECT_TRUE(pane.Navigate(next)); }});
    ASSERT_TRUE(Open(QStringLiteral("a.htm"), "alert(1)"));
    EXPECT_TRUE(Shows(QStringLiteral("next")));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(PageBoxes, AClosedDocumentTakesItsBoxAlong) {
    auto* closed = new BrowserPane(&window);
    closed->show();
    BoxAnswers answers({[&](PageBox&) { delete closed; }});
    ASSERT_TRUE(closed->Navigate(PageFiles::Write(QStringLiteral("a.htm"), "<script>alert(1)</script>")));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return answers.Seen().size() == 1 && !QApplication::activeModalWidget(); }, 20000));
    NextPageShows();
}

} // namespace
