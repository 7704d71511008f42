// The boxes in which pages speak: recognised as theirs, and silenced.
#include "web/PageBox.h"

#include "support/Text.h"
#include "web/BoxAnswers.h"
#include "web/PagePane.h"

#include <csignal>
#include <QWebEnginePage>
#include <QWebEngineView>

namespace {

class PageBoxes : public PagePane {
  protected:
    bool Open(const QString& name, const QByteArray& script) {
        return pane.Navigate(PageFiles::Write(name, "<title></title><body><script>" + script + "</script>"));
    }
    bool HasTitle(const QString& title) {
        // From the outside: a page in a loop answers no script.
        return QTest::qWaitFor([&] { return Probe::Page(pane) && Probe::Page(pane)->title() == title; },
                               20000);
    }
    void NextPageShows() {
        EXPECT_TRUE(pane.Navigate(PageFiles::Write(QStringLiteral("next.htm"), "<title>next</title>")));
        EXPECT_TRUE(Shows(QStringLiteral("next")));
    }
};

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

class PageLoops : public PageBoxes, public testing::WithParamInterface<const char*> {};

TEST_P(PageLoops, AreSilencedInTheSecondBoxAndEnded) {
    BoxAnswers answers({BoxAnswers::Accept, BoxAnswers::Silence});
    ASSERT_TRUE(Open(QStringLiteral("a.htm"), GetParam()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return answers.Seen().size() == 2; }, 20000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Probe::Page(pane); }, 20000)) << "it goes on unheard";
    NextPageShows();
    EXPECT_EQ(answers.Seen().size(), 2);
}

INSTANTIATE_TEST_SUITE_P(Asking, PageLoops,
                         testing::Values("for (;;) alert(1)", "for (;;) confirm(1)", "for (;;) prompt(1)"));

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

class OtherLoops : public PageBoxes, public testing::WithParamInterface<const char*> {};

TEST_P(OtherLoops, HoldNobodyUp) {
    ASSERT_TRUE(
        Open(QStringLiteral("a.htm"), QByteArray("document.title = 'begun'; onload = () => setTimeout("
                                                 "() => { ") +
                                          GetParam() + " }, 100)"));
    EXPECT_TRUE(HasTitle(QStringLiteral("begun")));
    NextPageShows();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(Busy, OtherLoops,
                         testing::Values("for (;;) ;", "for (;;) print()", "for (;;) window.open('a.htm')"));

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
