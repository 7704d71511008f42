// The Link Browser: the tree as it is built, the double-click, and what it says with no document.
#include "tools/links/frmHTTPExplorer.h"

#include "tools/links/LinkNames.h"
#include "tools/links/LinkScan.h"
#include "tools/links/LinkTree.h"
#include "tools/ToolTest.h"

#include <QAccessible>
#include <QTreeWidget>

namespace {

class frmHTTPExplorerTest : public ToolTest {
  protected:
    void Show(const char16_t* text, const char16_t* caption = u"/home/u/site/A.htm") {
        frame.active->caption = T(caption);
        frame.SetText(T(text));
        Run(u"mnuShowLinks");
    }
    QTreeWidget& Tree() { return Control<QTreeWidget>(*Form<frmHTTPExplorer>(), u"Tree"); }
    /// The nodes, one a line, indented by their level.
    QString Nodes() {
        QString nodes;
        for (int i = 0; i < Tree().topLevelItemCount(); ++i)
            Append(*Tree().topLevelItem(i), 0, nodes);
        return nodes;
    }
    QTreeWidgetItem& Node(const char16_t* text) {
        const auto found = Tree().findItems(T(text), Qt::MatchExactly | Qt::MatchRecursive);
        if (found.size() != 1)
            qFatal("no node %s", qPrintable(T(text)));
        return *found.first();
    }
    void DoubleClick(const char16_t* node) {
        const QPoint at = Tree().visualItemRect(&Node(node)).center();
        // A double-click begins with a click.
        QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, at);
    }

  private:
    static void Append(const QTreeWidgetItem& node, int level, QString& nodes) {
        nodes += QString(level, u' ') + node.text(0) + (node.isExpanded() ? T(u" -\n") : T(u"\n"));
        for (int i = 0; i < node.childCount(); ++i)
            Append(*node.child(i), level + 1, nodes);
    }
};

TEST_F(frmHTTPExplorerTest, ShowsRootPageAndLinksOpened) {
    Show(u"<A HREF=\"B.htm\">b</A> <A HREF=\"http://h/c.htm\">c</A>");
    const auto& form = *Form<frmHTTPExplorer>();
    EXPECT_TRUE(form.isVisible());
    EXPECT_FALSE(form.isModal());
    EXPECT_EQ(form.parentWidget(), frame.Window());
    EXPECT_EQ(form.windowTitle(), T(u"Link Browser"));
    EXPECT_EQ(Nodes(), T(u"Web Files -\n /home/u/site/A.htm -\n  b.htm\n  http://h/c.htm\n"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmHTTPExplorerTest, WithoutLinksThereAreRootAndPageAlone) {
    Show(u"<P>nothing</P>");
    EXPECT_EQ(Nodes(), T(u"Web Files -\n /home/u/site/A.htm -\n"));
    Show(u"", u"");
    EXPECT_EQ(Nodes(), T(u"Web Files -\n  -\n"));
}

TEST_F(frmHTTPExplorerTest, APageOfTheRootsNameIsTheRoot) {
    Show(u"href=\"b.htm\"", u"Web Files");
    EXPECT_EQ(Nodes(), T(u"Web Files -\n b.htm\n"));
}

TEST_F(frmHTTPExplorerTest, TheLinkTextIsEmptyOnceTheTreeIsBuilt) {
    Show(u"href=\"b.htm\"");
    EXPECT_TRUE(frame.State<LinkText>().text.isNull());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(frmHTTPExplorerTest, ChosenAgainItShowsTheActiveDocumentInTheSameWindow) {
    Show(u"href=\"b.htm\"");
    const auto* form = Form<frmHTTPExplorer>();
    frame.NewDocument();
    Show(u"href=\"c.htm\"", u"/d/E.htm");
    EXPECT_EQ(Form<frmHTTPExplorer>(), form);
    EXPECT_EQ(Nodes(), T(u"Web Files -\n /d/E.htm -\n  c.htm\n"));
    EXPECT_TRUE(frame.State<LinkText>().text.isNull());
}

TEST_F(frmHTTPExplorerTest, WithoutADocumentItSaysSo) {
    frame.CloseDocument();
    Run(u"mnuShowLinks");
    EXPECT_EQ(Form<frmHTTPExplorer>(), nullptr);
    ASSERT_EQ(Questions(),
              QStringList{T(u"An error occurred - #91\r\r"
                            u"This feature requires a document to be open.\r\r"
                            u"The error could be caused by an incomplete HTML Tag within the "
                            u"document.\r\r"
                            u"If the link list shows entries, then the list should be complete and you "
                            u"may ignore this message.  Otherwise, scan the document for HTML Tag errors "
                            u"and try again.")});
    EXPECT_EQ(frame.prompts.asked[0].title, T(u"The Tarnwick"));
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::None);
    EXPECT_EQ(frame.prompts.asked[0].buttons, MsgButtons::OK);
}

TEST_F(frmHTTPExplorerTest, ADoubleClickFindsTheLinkInTheWholeText) {
    Show(u"<A HREF=\"B.htm\">b</A> some text");
    Box().SetSelStart(20);
    Box().SetSelLength(3);
    DoubleClick(u"b.htm");
    EXPECT_EQ(frame.Marked(), T(u"<A HREF=\"[B.htm]\">b</A> some text"));
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    // Nodes stay as they are.
    EXPECT_TRUE(Tree().topLevelItem(0)->isExpanded());
}

TEST_F(frmHTTPExplorerTest, OnlyAWholeWordIsFound) {
    Show(u"ab.htm href=\"b.htm\"");
    DoubleClick(u"b.htm");
    EXPECT_EQ(frame.Marked(), T(u"ab.htm href=\"[b.htm]\""));
}

TEST_F(frmHTTPExplorerTest, RootAndPageAreSearchedForAsAnyNode) {
    Show(u"these are web files: href=\"b.htm\"");
    DoubleClick(u"Web Files");
    EXPECT_EQ(Box().SelText(), T(u"web files"));
    DoubleClick(u"/home/u/site/A.htm");
    EXPECT_EQ(Questions(), QStringList{T(u"Tag not found.")});
    EXPECT_TRUE(Tree().topLevelItem(0)->isExpanded());
}

TEST_F(frmHTTPExplorerTest, ALinkThatGotASlashIsNotFound) {
    Show(u"href=\"pages/intro\" x");
    Box().SetSelStart(3);
    Box().SetSelLength(4);
    DoubleClick(u"pages/intro/");
    ASSERT_EQ(Questions(), QStringList{T(u"Tag not found.")});
    EXPECT_EQ(frame.prompts.asked[0].title, T(u"The Tarnwick"));
    EXPECT_EQ(frame.prompts.asked[0].icon, MsgIcon::None);
    EXPECT_EQ(frame.prompts.asked[0].owner, Form<frmHTTPExplorer>());
    EXPECT_EQ(Box().SelStart(), 3);
    EXPECT_EQ(Box().SelLength(), 0);
}

TEST_F(frmHTTPExplorerTest, TheTextHasTheKeysAfterwards) {
    Show(u"href=\"b.htm\"");
    Form<frmHTTPExplorer>()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Form<frmHTTPExplorer>()));
    DoubleClick(u"b.htm");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Box().hasFocus(); }));
}

TEST_F(frmHTTPExplorerTest, EnterFindsTheNodeThatTheKeysWentTo) {
    Show(u"href=\"b.htm\"");
    Form<frmHTTPExplorer>()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(Form<frmHTTPExplorer>()));
    Tree().setFocus();
    QTest::keyClick(&Tree(), Qt::Key_Down);
    QTest::keyClick(&Tree(), Qt::Key_Down);
    QTest::keyClick(&Tree(), Qt::Key_Return);
    EXPECT_EQ(Box().SelText(), T(u"b.htm"));
    EXPECT_NE(Form<frmHTTPExplorer>(), nullptr);
}

TEST_F(frmHTTPExplorerTest, WithoutADocumentADoubleClickDoesNothing) {
    Show(u"href=\"b.htm\"");
    frame.CloseDocument();
    DoubleClick(u"b.htm");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(frmHTTPExplorerTest, EscAndTheCloseButtonUnloadIt) {
    Show(u"");
    QTest::keyClick(&Tree(), Qt::Key_Escape);
    EXPECT_EQ(Form<frmHTTPExplorer>(), nullptr);
    Show(u"");
    Form<frmHTTPExplorer>()->close();
    EXPECT_EQ(Form<frmHTTPExplorer>(), nullptr);
}

TEST_F(frmHTTPExplorerTest, EachKindOfLinkHasItsPicture) {
    Show(u"href=\"b.htm\" href=\"http://h/c.htm\" href=\"mailto:a@b.com\" href=\"ftp://h/\"");
    const auto drawn = [](const QIcon& icon) { return icon.pixmap(QSize(16, 16), 1.0).toImage(); };
    const std::pair<const char16_t*, LinkImage> rows[] = {
        {u"Web Files", LinkImage::Files},     {u"/home/u/site/A.htm", LinkImage::Page},
        {u"b.htm", LinkImage::Page},          {u"http://h/c.htm", LinkImage::Web},
        {u"mailto:a@b.com", LinkImage::Mail}, {u"ftp://h/", LinkImage::Ftp}};
    for (const auto& [node, image] : rows)
        EXPECT_EQ(drawn(Node(node).icon(0)), drawn(LinkIcon(image))) << T(node).toStdString();
    std::vector<QImage> seen;
    for (const LinkImage image :
         {LinkImage::Files, LinkImage::Page, LinkImage::Web, LinkImage::Mail, LinkImage::Ftp}) {
        EXPECT_EQ(std::count(seen.begin(), seen.end(), drawn(LinkIcon(image))), 0);
        seen.push_back(drawn(LinkIcon(image)));
    }
}

TEST(LinkNames, AreOneShortLineEach) {
    const LinkNames names;
    const auto shown = [&](const QString& name) { return names.displayText(name, QLocale::c()); };
    EXPECT_EQ(shown(T(u"a.htm")), T(u"a.htm"));
    EXPECT_EQ(shown(T(u"a\r\nb\tc")), T(u"a  b c"));
    EXPECT_EQ(shown(QString(LinkNames::longest, u'x')), QString(LinkNames::longest, u'x'));
    EXPECT_EQ(shown(QString(LinkNames::longest + 1, u'x')),
              QString(LinkNames::longest, u'x') + QChar(0x2026));
}

} // namespace
