// Settings that somebody edited to nonsense: the program starts all the same, and no page suffers.
#include "app/RealFrame.h"
#include "platform/store/ProgramFolder.h"

#include <QLabel>
#include <QScreen>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class DamagedSettings : public FrameTest {
  protected:
    static QList<SettingsKey> EveryKey() {
        using namespace Keys;
        QList<SettingsKey> keys = {MainFormHeight,
                                   MainFormWidth,
                                   MainFormLeft,
                                   MainFormTop,
                                   MainWindowState,
                                   TemplateWindowState,
                                   FirstTimeAgain,
                                   UseMSIE,
                                   ShowUserButtons,
                                   ColoredTags,
                                   ConvertChar,
                                   EditorFont,
                                   EditorFontSize,
                                   Background2,
                                   LinkColor,
                                   ReloadFlag,
                                   TheOpenFile,
                                   TabOption,
                                   LastDir(),
                                   UseAutoFill,
                                   UseWebTimer,
                                   WordWrap,
                                   LowerCaseTags,
                                   UseHTM,
                                   WebTimer,
                                   Web,
                                   FTP,
                                   LocalPreview,
                                   LocalFTP,
                                   UseDDE,
                                   StandardDic(),
                                   CustomDic()};
        for (int n = 0; n < 6; ++n)
            keys << TextColor[n] << EdTextColor[n];
        for (int n = 0; n < 8; ++n)
            keys << MenuArray(n);
        return keys;
    }
    /// Opens a page, types into it and saves it, in a run of its own.
    void WritesAPage(const std::string& why) {
        const QString path = MakeFile(QStringLiteral("page.htm"), page);
        ProgramRun run;
        ASSERT_TRUE(run.Start(path)) << why;
        EXPECT_LE(run.frame->width(), 2 * run.frame->screen()->virtualSize().width()) << why;
        EXPECT_LE(run.frame->height(), 2 * run.frame->screen()->virtualSize().height()) << why;
        RichTextBox& text = run.Active().txtInput();
        ASSERT_EQ(text.Text().toLatin1(), page) << why;
        text.SetSelStart(0);
        text.SetFocus();
        QTest::keyClicks(&text, QStringLiteral("x"));
        run.frame->SaveActiveDocument();
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), "x" + page + "\r\n") << why;
        EXPECT_TRUE(run.prompts.Messages().isEmpty()) << why;
        EXPECT_TRUE(run.Stop()) << why;
    }
    static QString File() {
        Settings settings;
        settings.Write(Keys::UseHTM, QStringLiteral("0"));
        settings.Sync();
        return SettingsFolder() + QStringLiteral("/The Tarnwick.ini");
    }

    const QByteArray page =
        "<HTML>\r\n<BODY>\r\n<P>one {two} \\three</P>\r\n<!-- four -->\r\n</BODY>\r\n</HTML>";
};

TEST_F(DamagedSettings, NoValueKeepsThePageFromOpeningWhole) {
    for (const char* nonsense :
         {"", "abc", "-1", "0", "1e400", "99999999999999999999", "NaN", "}", "}}}{\\", "{\\rtf1 words}",
          "\\red1\\green2", "\\par words;more", "words", "2,5", "@@@"}) {
        FreshUser();
        for (const SettingsKey& key : EveryKey())
            Write(key, nonsense);
        // Coloured, a page goes the whole way.
        Write(Keys::ColoredTags, "1");
        WritesAPage(nonsense);
    }
}

TEST_F(DamagedSettings, AColourOfTheTableThatIsNoneIsTheDefault) {
    const struct {
        const char* stored;
        bool taken;
    } rows[] = {
        {"\\red1\\green2\\blue3", true},
        {"\\red255\\green255\\blue255", true},
        {"", false},
        {"blue", false},
        {"\\red1\\green2\\blue3}", false},
        {"\\red1\\green2\\blue3;x", false},
        {"\\red1 \\green2 \\blue3", false},
        {"\\red\\green\\blue", false},
        {"\\red-1\\green2\\blue3", false},
    };
    for (const auto& row : rows) {
        Write(Keys::EdTextColor[1], row.stored);
        ProgramRun run;
        ASSERT_TRUE(run.Start());
        EXPECT_EQ(run.Editor().ColorTable[1],
                  row.taken ? QString::fromLatin1(row.stored) : Keys::EdTextColor[1].standard)
            << row.stored;
    }
}

TEST_F(DamagedSettings, AFileOfGarbageIsAFreshStoreThatTakesValues) {
    const QString path = File();
    for (const QByteArray& garbage : {QByteArray("\0\1\2\377[[[\n=\n]\n", 12), QByteArray(100000, '\xFF'),
                                      QByteArray("[Window%20Options\nEditorFont=")}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(garbage);
        file.close();
        {
            ProgramRun run;
            ASSERT_TRUE(run.Start());
            EXPECT_EQ(run.optionsShown, 1) << "as for a new user";
            EXPECT_EQ(run.Editor().Background2, 16777215);
            EXPECT_TRUE(run.Stop());
        }
        ProgramRun second;
        ASSERT_TRUE(second.Start());
        EXPECT_EQ(second.optionsShown, 0);
        WritesAPage(garbage.left(10).toStdString());
    }
}

TEST_F(DamagedSettings, AStoreThatCannotBeReadOrWrittenIsDoneWithoutAndToldOf) {
    using InTheWay = bool (*)(const QByteArray& path);
    const struct {
        const char* what;
        InTheWay make;
    } rows[] = {
        {"a folder", [](const QByteArray& path) { return ::mkdir(path, 0700) == 0; }},
        {"a pipe", [](const QByteArray& path) { return ::mkfifo(path, 0600) == 0; }},
        {"a device", [](const QByteArray& path) { return ::symlink("/dev/full", path) == 0; }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        FreshUser();
        const QString path = SettingsFolder() + QStringLiteral("/The Tarnwick.ini");
        ASSERT_TRUE(row.make(QFile::encodeName(path)));
        struct stat before = {};
        ASSERT_EQ(::lstat(QFile::encodeName(path), &before), 0);
        {
            ProgramRun run;
            ASSERT_TRUE(run.Start());
            EXPECT_EQ(run.optionsShown, 1) << "as for a new user";
            EXPECT_EQ(run.Find<QLabel>("Panel3").text(),
                      QStringLiteral("The settings can't be read, nor will they be kept: ") + path);
            EXPECT_TRUE(run.Stop());
        }
        WritesAPage(row.what);
        struct stat after = {};
        ASSERT_EQ(::lstat(QFile::encodeName(path), &after), 0);
        EXPECT_EQ(after.st_ino, before.st_ino);
        EXPECT_EQ(after.st_mode, before.st_mode);
    }
    FreshUser();
    ProgramRun run;
    ASSERT_TRUE(run.Start());
    EXPECT_EQ(run.Find<QLabel>("Panel3").text(), QString()) << "no file is no trouble";
}

} // namespace
