// What comes in through the roads that open a file, and what it leaves behind in tabs, list and status bar.
#include "app/documents/OpenDocument.h"

#include "app/documents/FilesFrame.h"
#include "app/documents/RecentFiles.h"

#include <QDialog>

namespace {

constexpr int black = 0;
constexpr int blue = 16711680;
const QString pleaseWait = QStringLiteral("Coloring HTML tags, please wait . . . ");

struct Reading {
    const char* what;
    QByteArray bytes;
    QString text;
};

class OpenedText : public testing::TestWithParam<Reading> {};

TEST_P(OpenedText, IsTheFilesOwn) {
    for (const char* coloredTags : {"1", "2"}) {
        FilesFrame frame;
        frame.Store().Write(Keys::ColoredTags, QString::fromLatin1(coloredTags));
        const QString path = FilesFrame::Make(QStringLiteral("a.htm"), GetParam().bytes);
        OpenDocumentFile(frame, path);
        EXPECT_EQ(frame.Box().Text(), GetParam().text) << GetParam().what;
        EXPECT_EQ(frame.active->Caption(), path);
        EXPECT_FALSE(frame.active->Modified());
        EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Readings, OpenedText,
    testing::Values(Reading{"carriage return and line feed", "<P>\r\nx</P>\r\n",
                            QStringLiteral("<P>\r\nx</P>\r\n")},
                    Reading{"bare line feeds", "<P>\n\nx\n", QStringLiteral("<P>\n\nx\n")},
                    Reading{"bare carriage returns", "<P>\r\rx\r", QStringLiteral("<P>\r\rx\r")},
                    Reading{"every kind of line end", "a\r\n\n\rb\r\r\n", QStringLiteral("a\r\n\n\rb\r\r\n")},
                    Reading{"no line end", "<B>x</B>", QStringLiteral("<B>x</B>")},
                    Reading{"tabs and blanks", "  \t<B>\tx ", QStringLiteral("  \t<B>\tx ")},
                    Reading{"what RTF would read", "{\\par} <B>\\cf1 }{\\'41</B>\\",
                            QStringLiteral("{\\par} <B>\\cf1 }{\\'41</B>\\")},
                    Reading{"code page 1252", "<B>\x80\x9f\xe9\xff\x81",
                            QStringLiteral("<B>\u20ac\u0178\u00e9\u00ff\u0081")},
                    Reading{"an empty file", "", QString()},
                    Reading{"an end of text", "<B>x\x1a</B>\x1ay", QStringLiteral("<B>x")},
                    Reading{"an end of text at once", "\x1a<B>", QString()}));

TEST(OpenDocument, ReadsABytesWorthOfNothingAsText) {
    FilesFrame frame;
    OpenDocumentFile(frame, FilesFrame::Make(QStringLiteral("a.htm"), QByteArray("a\0b", 3)));
    EXPECT_EQ(frame.Box().Text(), QString(QStringLiteral("a") + QChar(0) + u'b'));
}

TEST(OpenDocument, ColoursAPageAndPutsTheCaretOnTop) {
    FilesFrame frame;
    OpenDocumentFile(frame, FilesFrame::Make(QStringLiteral("a.htm"), "x<B>y"));
    const std::vector<std::pair<QString, int>> expected = {
        {QStringLiteral("x"), black}, {QStringLiteral("<B>"), blue}, {QStringLiteral("y"), black}};
    EXPECT_EQ(frame.Colors(), expected);
    EXPECT_EQ(frame.Box().SelStart(), 0);
    EXPECT_EQ(frame.statuses, (QStringList{pleaseWait, QString()}));
}

TEST(OpenDocument, ColoursOnlyWhereTheOptionIsExactlyOne) {
    for (const char* value : {"0", "2", "True", ""}) {
        FilesFrame frame;
        frame.Store().Write(Keys::ColoredTags, QString::fromLatin1(value));
        OpenDocumentFile(frame, FilesFrame::Make(QStringLiteral("a.htm"), "x<B>{\\y"));
        EXPECT_EQ(frame.Box().Text(), QStringLiteral("x<B>{\\y")) << value;
        EXPECT_EQ(frame.Colors().size(), 1u) << value;
        EXPECT_TRUE(frame.Box().streams.isEmpty()) << value;
        EXPECT_EQ(frame.Box().SelStart(), 7);
        EXPECT_TRUE(frame.statuses.isEmpty()) << value;
        EXPECT_FALSE(frame.active->Modified());
    }
}

TEST(OpenDocument, AnUnclosedTagBehindAnotherShowsThePageTwice) {
    FilesFrame frame;
    OpenDocumentFile(frame, FilesFrame::Make(QStringLiteral("a.htm"), "x<p>1 < 2"));
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("x<p>x<p>1 < 2"));
    EXPECT_FALSE(frame.active->Modified());
}

TEST(OpenDocument, MakesAWindowATabAndARecentEntry) {
    FilesFrame frame;
    TestDocument* before = frame.active;
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "x");
    OpenDocumentFile(frame, path);
    EXPECT_NE(frame.active, before);
    EXPECT_EQ(frame.forms->Count(), 2);
    EXPECT_EQ(frame.tabs, QStringList{path});
    EXPECT_EQ(frame.tabCaptions, QStringList{QStringLiteral("a.htm")});
    EXPECT_EQ(frame.Recent(), QStringList{path});
    EXPECT_TRUE(MenuEntry(frame, QStringLiteral("mnuSep10"))->isVisible());
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST(OpenDocument, RefusesAPathThatIsOpen) {
    FilesFrame frame;
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "x");
    OpenDocumentFile(frame, path);
    OpenDocumentFile(frame, path);
    EXPECT_EQ(frame.forms->Count(), 2);
    ASSERT_EQ(frame.prompts.asked.size(), 1);
    const Asked& box = frame.prompts.asked.first();
    EXPECT_EQ(box.text, QStringLiteral("File \"") + path +
                            QStringLiteral("\" already opened.\r\nDuplicate copies not allowed."));
    EXPECT_EQ(box.title, QStringLiteral("The Tarnwick"));
    EXPECT_EQ(box.icon, MsgIcon::Critical);
    EXPECT_EQ(box.buttons, MsgButtons::OK);
}

TEST(OpenDocument, TakesAPercentSignInAPathAsItIs) {
    FilesFrame frame;
    const QString path = FilesFrame::Make(QStringLiteral("100%1.htm"), "x");
    OpenDocumentFile(frame, path);
    OpenDocumentFile(frame, path);
    EXPECT_TRUE(frame.prompts.Messages().value(0).startsWith(QStringLiteral("File \"") + path + u'"'));
}

TEST(OpenDocument, AnotherSpellingOfAPathOpensTheFileTwice) {
    FilesFrame frame;
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "x");
    OpenDocumentFile(frame, path);
    OpenDocumentFile(frame, TestFolder() + QStringLiteral("/./a.htm"));
    EXPECT_EQ(frame.forms->Count(), 3);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("x"));
    EXPECT_EQ(frame.tabCaptions, (QStringList{QStringLiteral("a.htm"), QStringLiteral("a.htm")}));
}

TEST(OpenDocument, TheCaptionOfADialogCountsAsOpenToo) {
    FilesFrame frame;
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "x");
    QDialog dialog(frame.Window());
    dialog.setWindowTitle(path);
    frame.forms->Add(&dialog);
    OpenDocumentFile(frame, path);
    EXPECT_EQ(frame.prompts.Messages().size(), 1);
    EXPECT_EQ(frame.forms->Count(), 2);
}

TEST(OpenDocument, AnEmptyPathIsOpenWhereABlankWindowIs) {
    FilesFrame frame;
    OpenDocumentFile(frame, QString());
    EXPECT_EQ(frame.prompts.Messages(),
              QStringList{QStringLiteral("File \"\" already opened.\r\nDuplicate copies not allowed.")});
}

// Recent files

class RecentFile : public testing::Test {
  protected:
    void Click(const QString& path) {
        RecentFiles::SetCaption(frame, 3, path);
        frame.Run("mnuFileArray_3");
    }
    FilesFrame frame;
};

TEST_F(RecentFile, ComesInColouredWithoutAWordInTheStatusBar) {
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "x<B>\r\ny");
    Click(path);
    EXPECT_EQ(frame.forms->Count(), 2);
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("x<B>\r\ny"));
    EXPECT_EQ(frame.Colors().size(), 3u);
    EXPECT_EQ(frame.Box().SelStart(), 0);
    EXPECT_EQ(frame.active->Caption(), path);
    EXPECT_FALSE(frame.active->Modified());
    EXPECT_EQ(frame.Box().Send(RichTextBox::Message::CanUndo), 0);
    EXPECT_EQ(frame.tabs, QStringList{path});
    EXPECT_EQ(frame.tabCaptions, QStringList{QStringLiteral("a.htm")});
    EXPECT_TRUE(frame.statuses.isEmpty());
}

TEST_F(RecentFile, LeavesTheListAsItIs) {
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "x");
    RecentFiles::SetCaption(frame, 0, QStringLiteral("/other.htm"));
    Click(path);
    EXPECT_EQ(frame.Recent(), (QStringList{QStringLiteral("/other.htm"), path}));
}

TEST_F(RecentFile, IsHandedToTheColouringPassWhateverTheOption) {
    frame.Store().Write(Keys::ColoredTags, QStringLiteral("0"));
    Click(FilesFrame::Make(QStringLiteral("a.htm"), "<B>{x}\\</B>y"));
    // With the colours off the pass types its pieces, escapes and colour word included.
    EXPECT_EQ(frame.Box().Text(), QStringLiteral("<B>\\{x\\}\\\\</B>\\cf1 y"));
    EXPECT_FALSE(frame.active->Modified());
}

TEST_F(RecentFile, WithAnEndOfTextComesInEmpty) {
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "<B>x\x1a");
    Click(path);
    EXPECT_EQ(frame.forms->Count(), 2);
    EXPECT_EQ(frame.Box().Text(), QString());
    EXPECT_EQ(frame.active->Caption(), path);
    EXPECT_EQ(frame.tabs, QStringList{path});
    EXPECT_FALSE(frame.active->Modified());
}

TEST_F(RecentFile, ThatIsGoneOrEmptyIsNotFound) {
    const QString notFound = QStringLiteral("The file you selected was not found.\r"
                                            "Please check to see if it was deleted or moved.");
    for (const QString& path : {FilesFrame::At(QStringLiteral("gone.htm")),
                                FilesFrame::Make(QStringLiteral("empty.htm"), ""), TestFolder(), QString()}) {
        frame.prompts.asked.clear();
        Click(path);
        ASSERT_EQ(frame.prompts.asked.size(), 1);
        const Asked& box = frame.prompts.asked.first();
        EXPECT_EQ(box.text, notFound);
        EXPECT_EQ(box.title, QStringLiteral("The Tarnwick"));
        EXPECT_EQ(box.icon, MsgIcon::Exclamation);
        EXPECT_EQ(box.buttons, MsgButtons::OK);
        EXPECT_EQ(frame.forms->Count(), 1);
    }
}

TEST_F(RecentFile, ThatIsOpenButGoneIsNotFound) {
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "x");
    Click(path);
    QFile::remove(path);
    Click(path);
    EXPECT_TRUE(frame.prompts.Messages().value(0).startsWith(QStringLiteral("The file you selected")));
    EXPECT_EQ(frame.prompts.asked.size(), 1);
}

TEST_F(RecentFile, ThatIsOpenIsRefused) {
    const QString path = FilesFrame::Make(QStringLiteral("a.htm"), "x");
    Click(path);
    Click(path);
    EXPECT_EQ(frame.forms->Count(), 2);
    EXPECT_EQ(frame.prompts.Messages(),
              QStringList{QStringLiteral("File \"") + path +
                          QStringLiteral("\" already opened.\r\nDuplicate copies not allowed.")});
}

TEST_F(RecentFile, OfAnyIndexOpens) {
    QStringList paths;
    for (int n = 0; n < RecentFiles::Count; ++n) {
        paths << FilesFrame::Make(QStringLiteral("%1.htm").arg(n), "x");
        RecentFiles::SetCaption(frame, n, paths.last());
    }
    for (int n = 0; n < RecentFiles::Count; ++n) {
        frame.commands.Run(QStringLiteral("mnuFileArray_%1").arg(n));
        EXPECT_EQ(frame.active->Caption(), paths[n]);
    }
}

} // namespace
