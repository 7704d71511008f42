// Scripts without end: they hold up neither the next page nor the user.
#include "support/Text.h"
#include "web/BoxAnswers.h"
#include "web/PagePane.h"

namespace {

class PageLoops : public PagePane, public testing::WithParamInterface<const char*> {};

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

class OtherLoops : public PagePane, public testing::WithParamInterface<const char*> {};

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

} // namespace
