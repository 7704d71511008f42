// The external browser: what it is started with, and what is saved before.
#include "app/documents/Preview.h"

#include "app/documents/FilesFrame.h"
#include "app/run/ProgramState.h"

#include <QTest>

namespace {

struct Line {
    QString browser, target;
    QStringList words;
};

class BrowserLine : public testing::TestWithParam<Line> {};

TEST_P(BrowserLine, IsCutAtBlanks) {
    EXPECT_EQ(BrowserCommandLine(GetParam().browser, GetParam().target), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BrowserLine,
    testing::Values(Line{QStringLiteral("/usr/bin/b"),
                         QStringLiteral("/a.htm"),
                         {QStringLiteral("/usr/bin/b"), QStringLiteral("/a.htm")}},
                    Line{QStringLiteral("/usr/bin/b"),
                         QStringLiteral("/my site/a.htm"),
                         {QStringLiteral("/usr/bin/b"), QStringLiteral("/my"), QStringLiteral("site/a.htm")}},
                    Line{QStringLiteral("b --new  --tab"),
                         QStringLiteral("/a.htm"),
                         {QStringLiteral("b"), QStringLiteral("--new"), QStringLiteral("--tab"),
                          QStringLiteral("/a.htm")}},
                    Line{QStringLiteral("/usr/bin/b"), QString(), {QStringLiteral("/usr/bin/b")}},
                    // A page's name is never an option of the browser; the browser's own words are.
                    Line{QStringLiteral("b -new"),
                         QStringLiteral("-a.htm"),
                         {QStringLiteral("b"), QStringLiteral("-new"), QStringLiteral("./-a.htm")}},
                    Line{QStringLiteral("b"),
                         QStringLiteral("/my -site/a.htm --x - -- -.htm a-b"),
                         {QStringLiteral("b"), QStringLiteral("/my"), QStringLiteral("./-site/a.htm"),
                          QStringLiteral("./--x"), QStringLiteral("./-"), QStringLiteral("./--"),
                          QStringLiteral("./-.htm"), QStringLiteral("a-b")}},
                    Line{QStringLiteral("b"),
                         QStringLiteral("/a;rm $(x) \"q\" *.htm"),
                         {QStringLiteral("b"), QStringLiteral("/a;rm"), QStringLiteral("$(x)"),
                          QStringLiteral("\"q\""), QStringLiteral("*.htm")}}));

class PreviewTest : public testing::Test {
  protected:
    /// A stand-in browser: writes its arguments, one a line, and then a line that says it is done.
    void SetUp() override {
        const QString browser = FilesFrame::Make(
            QStringLiteral("browser"), "#!/bin/sh\n"
                                       "out=$(dirname \"$0\")/arguments\n"
                                       "for word in \"$@\"; do printf '%s\\n' \"$word\" >>\"$out\"; done\n"
                                       "echo . >>\"$out\"\n");
        QFile::setPermissions(browser, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        frame.State<ProgramState>().WebPath = browser;
    }
    /// What the browser was started with.
    static QStringList Arguments() {
        const QString out = FilesFrame::At(QStringLiteral("arguments"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return FilesFrame::Content(out).endsWith(".\n"); }, 20'000));
        QStringList lines = QString::fromLocal8Bit(FilesFrame::Content(out)).split(u'\n', Qt::SkipEmptyParts);
        EXPECT_EQ(lines.takeLast(), QStringLiteral("."));
        return lines;
    }
    static bool Started() { return QFile::exists(FilesFrame::At(QStringLiteral("arguments"))); }

    FilesFrame frame;
};

TEST_F(PreviewTest, SavesAndShowsTheActiveDocument) {
    const QString path = FilesFrame::At(QStringLiteral("a.htm"));
    frame.SetText(QStringLiteral("<B>x"));
    frame.active->SetCaption(path);
    frame.active->SetModified(true);
    frame.Run("mnuReload");
    EXPECT_EQ(FilesFrame::Content(path), "<B>x\r\n");
    EXPECT_FALSE(frame.active->Modified());
    EXPECT_EQ(Arguments(), QStringList{path});
}

TEST_F(PreviewTest, ABlankInThePathMakesItTwoWords) {
    QDir(TestFolder()).mkdir(QStringLiteral("my site"));
    frame.SetText(QStringLiteral("x"));
    frame.active->SetCaption(FilesFrame::At(QStringLiteral("my site/a.htm")));
    frame.Run("mnuReload");
    EXPECT_EQ(Arguments(), (QStringList{FilesFrame::At(QStringLiteral("my")), QStringLiteral("site/a.htm")}));
}

TEST_F(PreviewTest, APagesNameIsNoOptionOfTheBrowser) {
    frame.SetText(QStringLiteral("x"));
    const QString path = FilesFrame::At(QStringLiteral("page --headless -x.htm"));
    frame.active->SetCaption(path);
    frame.Run("mnuReload");
    EXPECT_EQ(FilesFrame::Content(path), "x\r\n");
    EXPECT_EQ(Arguments(), (QStringList{FilesFrame::At(QStringLiteral("page")),
                                        QStringLiteral("./--headless"), QStringLiteral("./-x.htm")}));
}

TEST_F(PreviewTest, APassedPathIsShownAndTheDocumentIsSavedAllTheSame) {
    const QString path = FilesFrame::At(QStringLiteral("a.htm"));
    frame.SetText(QStringLiteral("x"));
    frame.active->SetCaption(path);
    PreviewInBrowser(frame, QStringLiteral("/other.htm"));
    EXPECT_EQ(FilesFrame::Content(path), "x\r\n");
    EXPECT_EQ(Arguments(), QStringList{QStringLiteral("/other.htm")});
}

TEST_F(PreviewTest, ANewDocumentGoesThroughSaveAs) {
    frame.SetText(QStringLiteral("x"));
    const QString path = FilesFrame::At(QStringLiteral("new.htm"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Picked(path)};
    frame.Run("mnuReload");
    EXPECT_EQ(Arguments(), QStringList{path});
}

TEST_F(PreviewTest, ACancelledSaveAsAsksTheBrowserForNothing) {
    frame.SetText(QStringLiteral("x"));
    frame.prompts.saveAnswers = {ScriptedPrompts::Cancelled()};
    frame.Run("mnuReload");
    EXPECT_EQ(Arguments(), QStringList());
}

TEST_F(PreviewTest, ADocumentThatCannotBeSavedIsShownAsItsFileStands) {
    const QString path = FilesFrame::At(QStringLiteral("gone/a.htm"));
    frame.SetText(QStringLiteral("x"));
    frame.active->SetCaption(path);
    frame.active->SetModified(true);
    frame.Run("mnuReload");
    EXPECT_EQ(Arguments(), QStringList{path});
    EXPECT_TRUE(frame.active->Modified());
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
}

TEST_F(PreviewTest, TheBrowsersOwnArgumentsStandInFrontOfThePage) {
    const QString path = FilesFrame::At(QStringLiteral("a.htm"));
    frame.State<ProgramState>().WebPath += QStringLiteral(" --new-window  \"a");
    frame.SetText(QStringLiteral("x"));
    frame.active->SetCaption(path);
    frame.Run("mnuReload");
    EXPECT_EQ(Arguments(), (QStringList{QStringLiteral("--new-window"), QStringLiteral("\"a"), path}));
}

TEST_F(PreviewTest, WithoutABrowserTheDocumentIsSavedAndNothingStarts) {
    const QString path = FilesFrame::At(QStringLiteral("a.htm"));
    for (const QString& browser : {QString(), FilesFrame::At(QStringLiteral("no-such-browser"))}) {
        frame.State<ProgramState>().WebPath = browser;
        frame.SetText(QStringLiteral("x"));
        frame.active->SetCaption(path);
        frame.active->SetModified(true);
        frame.Run("mnuReload");
        EXPECT_EQ(FilesFrame::Content(path), "x\r\n");
        EXPECT_FALSE(frame.active->Modified());
        EXPECT_TRUE(frame.prompts.asked.isEmpty());
        EXPECT_FALSE(Started());
    }
}

// A page whose file may be executed must not be taken for the program where there is none.
TEST_F(PreviewTest, WithoutABrowserThePageItselfIsNotStarted) {
    const QString path = FilesFrame::Make(QStringLiteral("page.htm"), "");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    frame.SetText(QStringLiteral("#!/bin/sh\n: > $(dirname \"$0\")/started #"));
    frame.active->SetCaption(path);
    for (const char* browser : {"", " ", "   "}) {
        frame.State<ProgramState>().WebPath = QString::fromLatin1(browser);
        frame.Run("mnuReload");
        PreviewInBrowser(frame, path);
    }
    // What was started first is done first, or as good as: a program of its own tells that the others had
    // their time.
    SetUp();
    frame.Run("mnuReload");
    EXPECT_EQ(Arguments(), QStringList{path});
    EXPECT_FALSE(QFile::exists(FilesFrame::At(QStringLiteral("started"))));
}

TEST_F(PreviewTest, WithNoDocumentThereIsNothingToShow) {
    frame.CloseDocument();
    frame.Run("mnuReload");
    EXPECT_TRUE(frame.prompts.asked.isEmpty());
    // A file that is named needs no document; it is the first that the browser hears of.
    PreviewInBrowser(frame, QStringLiteral("/other.htm"));
    EXPECT_EQ(Arguments(), QStringList{QStringLiteral("/other.htm")});
}

} // namespace
