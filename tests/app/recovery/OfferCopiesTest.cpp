// The start after a crash: one question for all that was not saved, and what comes of its answers.
#include "app/recovery/OfferCopies.h"

#include "app/RealFrame.h"
#include "app/recovery/LeftCopies.h"
#include "app/recovery/Recovery.h"
#include "app/recovery/RecoveryFolder.h"
#include "app/window/DocumentTabs.h"
#include "app/window/StatusPanels.h"
#include "editor/frame/Commands.h"
#include "support/Files.h"

#include <QLabel>

using namespace std::chrono_literals;

namespace {

class Offers : public FrameTest {
  protected:
    /// As a program leaves it that was killed.
    static QString LeaveCopy(const DocumentCopy& copy, const char* run = "run-00000000000000aa", int n = 0) {
        static int last = 0;
        const QString file = MakeRecoveryFolder() +
                             QStringLiteral("/%1-%2.copy").arg(QLatin1String(run)).arg(n > 0 ? n : ++last);
        WriteFile(file, BytesOf(copy));
        return file;
    }
    static QString LeaveCopy(const QString& path, const QByteArray& text) {
        return LeaveCopy({.path = path, .content = {text, TextEncoding::Ascii}});
    }
    static QStringList FilesThere() { return QDir(RecoveryFolder()).entryList(QDir::Files); }
    static qsizetype CopiesThere() { return FilesThere().filter(QStringLiteral(".copy")).size(); }
    /// A start, up to where the question was answered.
    void Start(MsgAnswer answer, const QString& commandLine = QString()) {
        run.frame->State<RecoveryPace>().settling = 1h;
        ASSERT_TRUE(run.Start(commandLine));
        run.prompts.messageAnswers = {answer};
        Offer();
    }
    void Offer() { OfferCopies(*run.frame, run.frame->Copies()); }
    std::vector<frmTemplate*> Documents() {
        std::vector<frmTemplate*> documents;
        for (int i = 0; i < run.frame->LoadedForms().Count(); ++i)
            if (auto* document = qobject_cast<frmTemplate*>(run.frame->LoadedForms().At(i)))
                documents.push_back(document);
        return documents;
    }

    QString page = TestFolder() + QStringLiteral("/page.htm");
    ProgramRun run;
};

TEST_F(Offers, NothingLeftAsksNothing) {
    ASSERT_TRUE(run.Start());
    Offer();
    EXPECT_TRUE(run.prompts.asked.isEmpty());
    EXPECT_FALSE(QDir(RecoveryFolder()).exists());
}

TEST_F(Offers, YesOpensEachChangedUnderItsOldPathAndTouchesNoFile) {
    MakeFile(QStringLiteral("page.htm"), "old");
    const QString gone = TestFolder() + QStringLiteral("/gone/away.htm");
    LeaveCopy({.path = page, .caret = 3, .content = {"<P>new", TextEncoding::Ascii}});
    LeaveCopy(gone, "lost");
    LeaveCopy(QString(), "words");
    Start(MsgAnswer::Yes);
    ASSERT_EQ(run.prompts.asked.size(), 1);
    const Asked& asked = run.prompts.asked.first();
    EXPECT_TRUE(asked.text.startsWith(QStringLiteral("Recover 3 pages")));
    EXPECT_TRUE(asked.text.contains(page) && asked.text.contains(gone));
    EXPECT_EQ(asked.title, ProgramTitle);
    EXPECT_EQ(asked.buttons, MsgButtons::YesNo);
    EXPECT_EQ(asked.icon, MsgIcon::Question);
    EXPECT_EQ(asked.owner, run.frame.get());

    const auto documents = Documents();
    ASSERT_EQ(documents.size(), 3u);
    const char* const texts[] = {"<P>new", "lost", "words"};
    const QString paths[] = {page, gone, QString()};
    for (size_t n = 0; n < 3; ++n) {
        EXPECT_EQ(documents[n]->txtInput().Text(), QString::fromLatin1(texts[n]));
        EXPECT_EQ(documents[n]->Caption(), paths[n]);
        EXPECT_TRUE(documents[n]->Modified());
        EXPECT_EQ(documents[n]->txtInput().Send(RichTextBox::Message::CanUndo), 0);
    }
    EXPECT_EQ(documents[0]->txtInput().SelStart(), 3);
    EXPECT_EQ(ReadFile(page), "old");
    EXPECT_FALSE(QFile::exists(gone));
    // Each file has its tab, also one that is gone, and stands among the recent files.
    DocumentTabs& tabs = run.frame->TabStrip2();
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.tabText(0), QStringLiteral("page.htm"));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("away.htm"));
    EXPECT_EQ(run.Entry("mnuFileArray_0").text(), gone);
    EXPECT_EQ(run.Entry("mnuFileArray_1").text(), page);
}

TEST_F(Offers, RecoveredPageKeepsItsCopyUntilItIsSaved) {
    LeaveCopy(page, "new");
    Start(MsgAnswer::Yes);
    EXPECT_FALSE(run.frame->Copies().IsWaiting()) << "it is copied as it stands";
    EXPECT_EQ(CopiesThere(), 1);
    EXPECT_TRUE(TakeLeftCopies().copies.empty()) << "and no other program may take it";
    run.frame->SaveActiveDocument();
    EXPECT_TRUE(QTest::qWaitFor([] { return FilesThere().isEmpty(); }, 20'000));
    EXPECT_EQ(ReadFile(page), "new\r\n");
}

TEST_F(Offers, RecoveredPageKnowsItsFileAsItWasRead) {
    MakeFile(QStringLiteral("page.htm"), "old");
    LeaveCopy({.path = page, .content = {.utf8 = "new", .mark = FileMark::Of(page)}});
    MakeFile(QStringLiteral("page.htm"), "of another");
    Start(MsgAnswer::Yes);
    run.prompts.messageAnswers = {MsgAnswer::No};
    run.frame->SaveActiveDocument();
    EXPECT_TRUE(run.prompts.asked.last().text.contains(QStringLiteral("has changed on disk")));
    EXPECT_EQ(ReadFile(page), "of another");
    run.prompts.messageAnswers = {MsgAnswer::Yes};
    run.frame->SaveActiveDocument();
    EXPECT_EQ(ReadFile(page), "new\r\n");
}

TEST_F(Offers, RecoveredPageThatWasReadInPartHasItsFileKept) {
    MakeFile(QStringLiteral("page.htm"), "old\x1arest");
    LeaveCopy({.path = page, .content = {.utf8 = "new", .mark = FileMark::Of(page), .wasReadWhole = false}});
    Start(MsgAnswer::Yes);
    const qsizetype asked = run.prompts.asked.size();
    run.frame->SaveActiveDocument();
    EXPECT_EQ(run.prompts.asked.size(), asked) << "nobody changed it";
    EXPECT_EQ(ReadFile(page), "new\r\n");
    EXPECT_EQ(ReadFile(RecoveryFolder() + QStringLiteral("/kept-1-page.htm")), "old\x1arest");
}

TEST_F(Offers, RecoveredPageThatIsChangedIsCopiedInItsPlace) {
    const QString file = LeaveCopy(page, "new");
    run.frame->State<RecoveryPace>().shortest = 1ms;
    Start(MsgAnswer::Yes);
    run.frame->State<RecoveryPace>().settling = 1ms;
    run.Active().txtInput().SetSelText(QStringLiteral("more "));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            const auto copy = CopyFromBytes(ReadFile(file));
            return copy && copy->content.utf8 == "more new";
        },
        20'000));
    EXPECT_EQ(CopiesThere(), 1);
}

TEST_F(Offers, NoRemovesThemForGood) {
    LeaveCopy(page, "new");
    LeaveCopy(QString(), "words");
    Start(MsgAnswer::No);
    EXPECT_EQ(run.prompts.asked.size(), 1);
    EXPECT_TRUE(Documents().empty());
    EXPECT_TRUE(FilesThere().isEmpty());
    Offer();
    EXPECT_EQ(run.prompts.asked.size(), 1);
}

TEST_F(Offers, QuestionThatWasNotAnsweredLeavesThemForTheNextStart) {
    LeaveCopy(page, "new");
    Start(MsgAnswer::Cancel);
    EXPECT_TRUE(Documents().empty());
    EXPECT_EQ(CopiesThere(), 1);
    run.prompts.messageAnswers = {MsgAnswer::Yes};
    Offer();
    EXPECT_EQ(Documents().size(), 1u);
}

TEST_F(Offers, PageOfTheCommandLineIsNotOpenTwice) {
    MakeFile(QStringLiteral("page.htm"), "old");
    LeaveCopy(page, "new");
    Start(MsgAnswer::Yes, page);
    ASSERT_EQ(Documents().size(), 1u);
    EXPECT_EQ(run.Active().Caption(), page);
    EXPECT_EQ(run.Active().txtInput().Text(), QStringLiteral("new"));
    EXPECT_TRUE(run.Active().Modified());
    EXPECT_EQ(run.frame->TabStrip2().count(), 1);
}

TEST_F(Offers, OfSeveralOfOnePathTheNewestComesAndTheOthersNextTime) {
    const QString older = LeaveCopy({.path = page, .content = {"older", {}}}, "run-00000000000000bb", 1);
    LeaveCopy({.path = page, .content = {"newer", {}}}, "run-00000000000000aa", 1);
    QFile file(older);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFile::FileModificationTime));
    file.close();
    Start(MsgAnswer::Yes);
    ASSERT_EQ(Documents().size(), 1u);
    EXPECT_EQ(run.Active().txtInput().Text(), QStringLiteral("newer"));
    run.frame->SaveActiveDocument();
    EXPECT_TRUE(QTest::qWaitFor([] { return CopiesThere() == 1; }, 20'000));
    EXPECT_EQ(TakeLeftCopies().copies.at(0).copy.content.utf8, "older");
}

TEST_F(Offers, DamagedCopyIsKeptAndToldAndTheOthersAreOffered) {
    const QString damaged = LeaveCopy(page, "new");
    WriteFile(damaged, ReadFile(damaged).chopped(1));
    const QByteArray before = ReadFile(damaged);
    LeaveCopy(QString(), "words");
    Start(MsgAnswer::No);
    EXPECT_EQ(run.prompts.asked.size(), 1);
    EXPECT_TRUE(run.prompts.asked.first().text.startsWith(QStringLiteral("Recover a page ")));
    EXPECT_EQ(ReadFile(damaged), before);
    EXPECT_EQ(run.frame->Panels().Panel3(),
              QStringLiteral("A page that was not saved can't be read; it is kept: ") + damaged);
}

TEST_F(Offers, SeveralDamagedCopiesAreCounted) {
    const QString first = LeaveCopy(page, "1");
    WriteFile(first, "x");
    const QString second = LeaveCopy(page, "2");
    WriteFile(second, "x");
    ASSERT_TRUE(run.Start());
    Offer();
    EXPECT_TRUE(run.prompts.asked.isEmpty());
    EXPECT_TRUE(run.frame->Panels().Panel3().startsWith(
        QStringLiteral("2 pages that were not saved can't be read; they are kept: ")));
    EXPECT_EQ(CopiesThere(), 2);
}

TEST_F(Offers, SettingOffAsksNothingAndTouchesNothing) {
    Write(Keys::Recovery, "0");
    const QString file = LeaveCopy(page, "new");
    const QByteArray before = ReadFile(file);
    ASSERT_TRUE(run.Start());
    Offer();
    EXPECT_TRUE(run.prompts.asked.isEmpty());
    EXPECT_EQ(FilesThere().size(), 1);
    EXPECT_EQ(ReadFile(file), before);
}

// What was typed comes back to the character, whatever it is.

struct TextRow {
    const char* what;
    const char* text;
    TextEncoding encoding;
    QByteArray saved; ///< what a save makes of it
};

TEST_F(Offers, TextComesBackAsItStoodAndIsSavedInItsEncoding) {
    const TextRow rows[] = {
        {"in the middle of a tag", "<P>a</P>\r\n<A HREF=\"b", TextEncoding::Ascii,
         "<P>a</P>\r\n<A HREF=\"b\r\n"},
        {"nothing but an open tag", "<", TextEncoding::Ascii, "<\r\n"},
        {"a loose bracket", "<P>1 < 2", TextEncoding::Ascii, "<P>1 < 2\r\n"},
        {"no tag", "words", TextEncoding::Ascii, "words\r\n"},
        {"nothing", "", TextEncoding::Ascii, "\r\n"},
        {"backslashes and braces", "\\cf1 {x} \\'e9<B>\\}</B>{", TextEncoding::Ascii,
         "\\cf1 {x} \\'e9<B>\\}</B>{\r\n"},
        {"line ends of all kinds", "a\rb\nc\r\nd\t<B>\r\n\n", TextEncoding::Ascii,
         "a\rb\nc\r\nd\t<B>\r\n\n\r\n"},
        {"code page 1252", "<P>caf\u00e9 \u20ac", TextEncoding::CodePage1252, "<P>caf\xe9 \x80\r\n"},
        {"1252 into what was ASCII", "caf\u00e9", TextEncoding::Ascii, "caf\xe9\r\n"},
        {"UTF-8", "<P>caf\u00e9 \u2603 \U0001F600", TextEncoding::Utf8, "<P>caf\u00e9 \u2603 \U0001F600\r\n"},
        {"UTF-8 with a mark", "<P>\u2603", TextEncoding::Utf8WithMark, "\xef\xbb\xbf<P>\u2603\r\n"},
    };
    ASSERT_TRUE(run.Start());
    for (const bool colored : {true, false}) {
        run.store.WriteFlag(Keys::ColoredTags, colored);
        for (const TextRow& row : rows) {
            LeaveCopy({.path = page, .content = {row.text, row.encoding}});
            run.prompts.messageAnswers = {MsgAnswer::Yes};
            Offer();
            ASSERT_EQ(Documents().size(), 1u) << row.what;
            EXPECT_EQ(run.Active().txtInput().Text(), QString::fromUtf8(row.text)) << row.what;
            EXPECT_EQ(run.Active().Encoding(), row.encoding) << row.what;
            run.frame->SaveActiveDocument();
            EXPECT_EQ(ReadFile(page), row.saved) << row.what;
            EXPECT_TRUE(run.Active().Unload());
            EXPECT_TRUE(QTest::qWaitFor([] { return FilesThere().isEmpty(); }, 20'000));
        }
    }
}

TEST_F(Offers, TagsAreColoured) {
    LeaveCopy(page, "<B>x</B> and <A HREF");
    Start(MsgAnswer::Yes);
    RichTextBox& text = run.Active().txtInput();
    EXPECT_EQ(text.ColorAt(0), 16711680);
    EXPECT_EQ(text.ColorAt(3), 0);
    EXPECT_EQ(text.ColorAt(4), 16711680);
    EXPECT_EQ(text.ColorAt(text.TextLength() - 1), 0);
}

TEST_F(Offers, NulInATextComesBack) {
    const QByteArray bytes("a\0b<B>\0", 7);
    LeaveCopy({.path = page, .content = {bytes, TextEncoding::CodePage1252}});
    Start(MsgAnswer::Yes);
    EXPECT_EQ(run.Active().txtInput().Utf8Text(), bytes);
}

} // namespace
