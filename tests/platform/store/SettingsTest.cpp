// The settings store: what is written comes back, whatever it holds, and a damaged file harms nobody.
#include "platform/store/Settings.h"

#include "platform/store/FileCalls.h"
#include "platform/store/ProgramFolder.h"
#include "support/FreshUser.h"
#include "support/Text.h"

#include <csignal>
#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int nobody = 65534;
constexpr auto OnlyTheUser =
    QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadUser | QFileDevice::WriteUser;

QString File(const QString& application = Keys::Tarnwick) {
    return SettingsFolder() + u'/' + application + QStringLiteral(".ini");
}

void WriteFile(const QByteArray& content) {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray Content() {
    QFile file(File());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Store(const SettingsKey& key, const QString& text) {
    Settings().Write(key, text);
}
QString Stored(const SettingsKey& key) {
    return Settings().Read(key);
}

QStringList FilesOf(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

class SettingsTest : public testing::Test {
  protected:
    void SetUp() override { FreshUser(); }
};

} // namespace

TEST_F(SettingsTest, FreshStoreGivesTheDefaults) {
    struct Row {
        SettingsKey key;
        const char* section;
        const char* name;
        QString standard;
    };
    const QString home = ProgramFolder();
    const Row rows[] = {
        {Keys::MainFormHeight, "Window Options", "MainFormHeight", QStringLiteral("0")},
        {Keys::MainFormWidth, "Window Options", "MainFormWidth", QStringLiteral("0")},
        {Keys::MainFormLeft, "Window Options", "MainFormLeft", QStringLiteral("0")},
        {Keys::MainFormTop, "Window Options", "MainFormTop", QStringLiteral("0")},
        {Keys::MainWindowState, "Window Options", "MainWindowState", QStringLiteral("0")},
        {Keys::TemplateWindowState, "Window Options", "TemplateWindowState", QStringLiteral("2")},
        {Keys::FirstTimeAgain, "Window Options", "FirstTimeAgain", QStringLiteral("0")},
        {Keys::UseMSIE, "Window Options", "UseMSIE", QStringLiteral("0")},
        {Keys::ShowUserButtons, "Window Options", "ShowUserButtons", QStringLiteral("0")},
        {Keys::ColoredTags, "Window Options", "ColoredTags", QStringLiteral("1")},
        {Keys::ConvertChar, "Window Options", "ConvertChar", QStringLiteral("1")},
        {Keys::TextColor[0], "Window Options", "TextColor0", QStringLiteral("0")},
        {Keys::TextColor[1], "Window Options", "TextColor1", QStringLiteral("16711680")},
        {Keys::TextColor[2], "Window Options", "TextColor2", QStringLiteral("32768")},
        {Keys::TextColor[3], "Window Options", "TextColor3", QStringLiteral("255")},
        {Keys::TextColor[4], "Window Options", "TextColor4", QStringLiteral("32767")},
        {Keys::TextColor[5], "Window Options", "TextColor5", QStringLiteral("8421504")},
        {Keys::EdTextColor[0], "Window Options", "EdTextColor0", QStringLiteral("\\red0\\green0\\blue0")},
        {Keys::EdTextColor[1], "Window Options", "EdTextColor1", QStringLiteral("\\red0\\green0\\blue255")},
        {Keys::EdTextColor[2], "Window Options", "EdTextColor2", QStringLiteral("\\red0\\green128\\blue0")},
        {Keys::EdTextColor[3], "Window Options", "EdTextColor3", QStringLiteral("\\red255\\green0\\blue0")},
        {Keys::EdTextColor[4], "Window Options", "EdTextColor4", QStringLiteral("\\red255\\green127\\blue0")},
        {Keys::EdTextColor[5], "Window Options", "EdTextColor5",
         QStringLiteral("\\red128\\green128\\blue128")},
        {Keys::Background2, "Window Options", "Background2", QStringLiteral("16777215")},
        {Keys::LinkColor, "Window Options", "LinkColor", QStringLiteral("8421376")},
        {Keys::EditorFont, "Window Options", "EditorFont", QStringLiteral("Arial")},
        {Keys::EditorFontSize, "Window Options", "EditorFontSize", QStringLiteral("10")},
        {Keys::UserTemplate, "Window Options", "UserTemplate", QString()},
        {Keys::ReloadFlag, "Window Options", "ReloadFlag", QStringLiteral("False")},
        {Keys::TheOpenFile, "Window Options", "TheOpenFile", QString()},
        {Keys::LastDir(), "Window Options", "LastDir", home},
        {Keys::TabOption, "Window Options", "TabOption", QStringLiteral("False")},
        {Keys::UseAutoFill, "Program Options", "UseAutoFill", QStringLiteral("1")},
        {Keys::UseWebTimer, "Program Options", "UseWebTimer", QStringLiteral("0")},
        {Keys::WordWrap, "Program Options", "WordWrap", QStringLiteral("1")},
        {Keys::LowerCaseTags, "Program Options", "LowerCaseTags", QStringLiteral("0")},
        {Keys::UseHTM, "Program Options", "UseHTM", QStringLiteral("0")},
        {Keys::WebTimer, "Program Options", "WebTimer", QStringLiteral("False")},
        {Keys::Zoom, "Program Options", "Zoom", QStringLiteral("100")},
        {Keys::UseZoom, "Program Options", "UseZoom", QStringLiteral("1")},
        {Keys::ShowPartnerTag, "Program Options", "ShowPartnerTag", QStringLiteral("1")},
        {Keys::ShowCurrentLine, "Program Options", "ShowCurrentLine", QStringLiteral("1")},
        {Keys::ShowLineNumbers, "Program Options", "ShowLineNumbers", QStringLiteral("0")},
        {Keys::FileDialogFolders, "Program Options", "FileDialogFolders", QStringLiteral("1")},
        {Keys::WideBoxes, "Program Options", "WideBoxes", QStringLiteral("1")},
        {Keys::StandardDic(), "SpellCheck", "StandardDic", home + QStringLiteral("/american.vtd")},
        {Keys::CustomDic(), "SpellCheck", "CustomDic", home + QStringLiteral("/custom.vtc")},
        {Keys::Web, "Browser Options", "Web", QString()},
        {Keys::FTP, "Browser Options", "FTP", QString()},
        {Keys::LocalPreview, "Browser Options", "LocalPreview", QStringLiteral("True")},
        {Keys::LocalFTP, "Browser Options", "LocalFTP", QStringLiteral("True")},
        {Keys::UseDDE, "Use DDE Value", "UseDDE", QString()},
        {Keys::MenuArray(7), "Menu Array Values", "MenuArray(7)", QString()},
        {Keys::FirstBut(29), "User Tools", "FirstBut(29)", QString()},
        {Keys::SecondBut(0), "User Tools", "SecondBut(0)", QString()},
        {Keys::ButCap(3), "User Tools", "ButCap(3)", QString()},
        {Keys::Server(4), "FTP", "Server(4)", QString()},
        {Keys::UserName(0), "FTP", "UserName(0)", QString()},
        {Keys::Dir(3), "FTP", "Dir(3, 0 Or 2 Or 4 Or 8 Or 16)", QString()},
        {Keys::chkPass, "FTP", "chkPass", QStringLiteral("0")},
        {Keys::Password, "FTP", "Password", QString()},
        {Keys::ProjFile(99), "Projects", "ProjFile99", QString()},
    };
    Settings settings;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.key.application, QStringLiteral("The Tarnwick"));
        EXPECT_EQ(row.key.section, QString::fromLatin1(row.section));
        EXPECT_EQ(row.key.key, QString::fromLatin1(row.name));
        EXPECT_EQ(settings.Read(row.key), row.standard);
    }
    EXPECT_EQ(Keys::DateList.application, QStringLiteral("Web Timer"));
    EXPECT_EQ(Keys::DateList.section, QStringLiteral("Dates"));
    EXPECT_EQ(Keys::DateList.key, QStringLiteral("Date List"));
    EXPECT_EQ(settings.Read(Keys::DateList), QString());
    EXPECT_FALSE(QFileInfo::exists(home + QStringLiteral("/american.vtd")));
}

TEST_F(SettingsTest, AnyTextComesBackFromTheFile) {
    const QString texts[] = {
        QString(),
        QStringLiteral("plain"),
        QStringLiteral("line one\r\nline two\nline three\rend\r\n"),
        QStringLiteral("\\red0\\green128\\blue0"),
        QStringLiteral("C:\\site\\new\\tags\\x.htm"),
        QStringLiteral("C:\\"),
        QStringLiteral("  leading and trailing  "),
        QStringLiteral("\ttab\t"),
        QStringLiteral("one, two, three"),
        QStringLiteral("one,two"),
        QStringLiteral(","),
        QStringLiteral("a;b=c#d"),
        QStringLiteral("@"),
        QStringLiteral("@@x"),
        QStringLiteral("@Variant(\\0\\0)"),
        QStringLiteral("@ByteArray(abc)"),
        QStringLiteral("@Invalid()"),
        QStringLiteral("\"quoted\" and 'single'"),
        QStringLiteral("[Section]\r\nkey=value"),
        QStringLiteral("%20 %1 100%"),
        QStringLiteral("\\x41 \\n not an escape"),
        QStringLiteral("\u0001\u001f\u007f1f"),
        QStringLiteral("\u20ac\u201c\u0081\u009d\u00e9\u00ff\u00a0"),
        QStringLiteral("<BODY BGCOLOR=\"#FFFFFF\">\r\n\r\n</BODY>"),
        QStringLiteral("True"),
        QStringLiteral("007"),
        QStringLiteral("1e5"),
        QStringLiteral("/home/\u0434\u043e\u043c/a.htm"),
    };
    for (const QString& text : texts) {
        Store(Keys::UserTemplate, text);
        EXPECT_EQ(Stored(Keys::UserTemplate), text);
    }
    QString all;
    for (int code = 1; code < 256; ++code)
        all += QChar(code);
    Store(Keys::UserTemplate, all);
    EXPECT_EQ(Stored(Keys::UserTemplate), all);
}

TEST_F(SettingsTest, KeysWithBracketsCommasAndBlanksStayApart) {
    {
        Settings settings;
        for (int n = 0; n < 5; ++n) {
            settings.Write(Keys::Dir(n), QStringLiteral("dir %1").arg(n));
            settings.Write(Keys::Server(n), QStringLiteral("server %1").arg(n));
        }
        settings.Write(Keys::ProjFile(1), QStringLiteral("one"));
        settings.Write(Keys::ProjFile(10), QStringLiteral("ten"));
    }
    Settings settings;
    for (int n = 0; n < 5; ++n) {
        EXPECT_EQ(settings.Read(Keys::Dir(n)), QStringLiteral("dir %1").arg(n));
        EXPECT_EQ(settings.Read(Keys::Server(n)), QStringLiteral("server %1").arg(n));
    }
    EXPECT_EQ(settings.Read(Keys::ProjFile(1)), QStringLiteral("one"));
    EXPECT_EQ(settings.Read(Keys::ProjFile(10)), QStringLiteral("ten"));
}

TEST_F(SettingsTest, ApplicationsHaveAFileEach) {
    Store(Keys::DateList, QStringLiteral("1.1. 10:00\r\n"));
    Store(Keys::UseHTM, QStringLiteral("1"));
    EXPECT_TRUE(QFileInfo::exists(SettingsFolder() + QStringLiteral("/The Tarnwick.ini")));
    EXPECT_TRUE(QFileInfo::exists(SettingsFolder() + QStringLiteral("/Web Timer.ini")));
    EXPECT_FALSE(Content().contains("Date"));
    EXPECT_EQ(Stored(Keys::DateList), QStringLiteral("1.1. 10:00\r\n"));
}

TEST_F(SettingsTest, FileIsPrivateFromItsCreationOn) {
    {
        Settings settings;
        settings.Write(Keys::Password, QStringLiteral("secret"));
        EXPECT_FALSE(QFileInfo::exists(File())) << "before the first write";
    }
    EXPECT_EQ(QFile::permissions(File()), OnlyTheUser);
    Store(Keys::Password, QStringLiteral("other"));
    EXPECT_EQ(QFile::permissions(File()), OnlyTheUser) << "after a rewrite";
    QFile::setPermissions(File(), OnlyTheUser | QFileDevice::ReadGroup | QFileDevice::ReadOther);
    EXPECT_EQ(Stored(Keys::Password), QStringLiteral("other"));
    EXPECT_EQ(QFile::permissions(File()), OnlyTheUser) << "an open file is closed to others";
}

TEST_F(SettingsTest, WritesReachTheDiskAtTheEndOfTheEvent) {
    Settings settings;
    settings.Write(Keys::EditorFont, QStringLiteral("Courier"));
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(Content().contains("Courier"));
    settings.Write(Keys::EditorFont, QStringLiteral("Helvetica"));
    EXPECT_TRUE(settings.Sync());
    EXPECT_TRUE(Content().contains("Helvetica"));
}

TEST_F(SettingsTest, FlagIsOnAtExactlyOne) {
    struct Row {
        QStringView text;
        bool on;
    };
    const Row rows[] = {{u"1", true},   {u" 1 ", true},   {u"1.0", true}, {u"0", false},    {u"2", false},
                        {u"-1", false}, {u"True", false}, {u"", false},   {u"1abc", false}, {u"1.4", false}};
    Settings settings;
    for (const Row& row : rows) {
        settings.Write(Keys::UseMSIE, row.text.toString());
        EXPECT_EQ(settings.ReadFlag(Keys::UseMSIE), row.on) << row.text.toString().toStdString();
    }
    settings.WriteFlag(Keys::UseMSIE, true);
    EXPECT_EQ(settings.Read(Keys::UseMSIE), QStringLiteral("1"));
    settings.WriteFlag(Keys::UseMSIE, false);
    EXPECT_EQ(settings.Read(Keys::UseMSIE), QStringLiteral("0"));
}

TEST_F(SettingsTest, NumbersInTextAndBack) {
    Settings settings;
    settings.Write(Keys::MainFormWidth, QStringLiteral("no number"));
    EXPECT_EQ(settings.ReadNumber(Keys::MainFormWidth), 0);
    settings.Write(Keys::MainFormWidth, QStringLiteral("99999999999"));
    EXPECT_EQ(settings.ReadNumber(Keys::MainFormWidth), 2147483647);
    settings.Write(Keys::MainFormWidth, QStringLiteral("-120"));
    EXPECT_EQ(settings.ReadNumber(Keys::MainFormWidth), -120);
    struct Row {
        double number;
        const char* text;
    };
    const Row rows[] = {
        {0, "0"}, {16777215, "16777215"}, {-15, "-15"}, {12345.5, "12345.5"}, {1.0 / 3, "0.3333333"}};
    for (const Row& row : rows) {
        settings.WriteNumber(Keys::MainFormWidth, row.number);
        EXPECT_EQ(settings.Read(Keys::MainFormWidth), QString::fromLatin1(row.text));
    }
}

TEST_F(SettingsTest, TextWithCommasWrittenByHandIsNoList) {
    WriteFile("[Window%20Options]\nEditorFont=Arial, Helvetica\nUserTemplate=a,b\n");
    Settings settings;
    EXPECT_EQ(settings.Read(Keys::UserTemplate), QStringLiteral("a,b"));
    EXPECT_FALSE(settings.Read(Keys::EditorFont).isEmpty());
}

TEST_F(SettingsTest, DamagedFileKeepsWhatCanBeRead) {
    const QByteArray damages[] = {
        QByteArray("\0\1\2\377\376garbage without a sign\n[[[\n=\n", 33),
        QByteArray("no equals sign here\n"),
        QByteArray("[Unclosed section\n"),
        QByteArray(5000, '\xff') + "\n",
    };
    for (const QByteArray& damage : damages) {
        FreshUser();
        WriteFile("[FTP]\nchkPass=1\n" + damage + "\n[Program%20Options]\nUseHTM=1\n");
        {
            Settings settings;
            EXPECT_EQ(settings.Read(Keys::chkPass), QStringLiteral("1"));
            EXPECT_EQ(settings.Read(Keys::UseHTM), QStringLiteral("1"));
            EXPECT_EQ(settings.Read(Keys::ColoredTags), QStringLiteral("1"));
            settings.Write(Keys::EditorFont, QStringLiteral("Courier"));
        }
        EXPECT_EQ(Stored(Keys::EditorFont), QStringLiteral("Courier")) << "a damaged file takes writes again";
        EXPECT_EQ(Stored(Keys::chkPass), QStringLiteral("1"));
        EXPECT_EQ(Stored(Keys::UseHTM), QStringLiteral("1"));
    }
}

TEST_F(SettingsTest, EveryTruncationIsSurvived) {
    {
        Settings settings;
        settings.Write(Keys::UserTemplate, QStringLiteral("a, \"b\"\r\n\\c\u20ac @"));
        settings.Write(Keys::Dir(3), QStringLiteral("x;y"));
    }
    const QByteArray whole = Content();
    ASSERT_GT(whole.size(), 40);
    for (qsizetype size = 0; size < whole.size(); ++size) {
        WriteFile(whole.left(size));
        Settings settings;
        EXPECT_EQ(settings.Read(Keys::ColoredTags), QStringLiteral("1"));
        settings.Read(Keys::UserTemplate);
        settings.Read(Keys::Dir(3));
    }
}

TEST_F(SettingsTest, UnreadableFileGivesDefaults) {
    QDir(SettingsFolder()).mkdir(QStringLiteral("The Tarnwick.ini"));
    Settings settings;
    EXPECT_EQ(settings.Read(Keys::EditorFont), QStringLiteral("Arial"));
    settings.Write(Keys::EditorFont, QStringLiteral("Courier"));
    settings.Sync();
    EXPECT_TRUE(QFileInfo(File()).isDir());
}

TEST_F(SettingsTest, FileOfAnotherUserIsLeftAlone) {
    if (::getuid() != 0)
        GTEST_SKIP() << "may not give files away";
    // A user who may enter the folder and write into it, and may not read the file.
    QTemporaryDir home;
    ASSERT_EQ(::chmod(QFile::encodeName(home.path()).constData(), 0755), 0);
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    WriteFile("[Window%20Options]\nEditorFont=Courier\n");
    QFile::setPermissions(File(), OnlyTheUser);
    const QByteArray before = Content();
    ASSERT_EQ(::chown(QFile::encodeName(SettingsFolder()).constData(), nobody, nobody), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        if (::setgid(nobody) != 0 || ::setuid(nobody) != 0)
            ::_exit(8);
        Settings settings;
        // Each fault that shows adds a digit of its own to the answer.
        int faults = settings.Read(Keys::EditorFont) == QStringLiteral("Arial") ? 0 : 1;
        settings.Write(Keys::EditorFont, QStringLiteral("Helvetica"));
        faults += settings.Read(Keys::EditorFont) == QStringLiteral("Helvetica") ? 0 : 2;
        faults += settings.Sync() ? 4 : 0;
        ::_exit(faults);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_EQ(Content(), before);
}

TEST_F(SettingsTest, FailedWriteLeavesTheOldFileWhole) {
    Store(Keys::EditorFont, QStringLiteral("Courier"));
    const QByteArray before = Content();
    // Nobody, not even root, can create a file in a folder that is a file.
    const QString folder = SettingsFolder();
    const QString aside = folder + QStringLiteral(".aside");
    {
        Settings settings;
        settings.Read(Keys::EditorFont);
        ASSERT_TRUE(QDir().rename(folder, aside));
        QFile blocker(folder);
        ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
        settings.Write(Keys::EditorFont, QStringLiteral("Helvetica"));
        settings.Sync();
        blocker.remove();
    }
    QDir(folder).removeRecursively();
    ASSERT_TRUE(QDir().rename(aside, folder));
    EXPECT_EQ(Content(), before);
    EXPECT_EQ(Stored(Keys::EditorFont), QStringLiteral("Courier"));
}

/// No file can grow beyond this while it lives: for a larger one that is a disk without room.
class FullDisk {
  public:
    explicit FullDisk(rlim_t room) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        rlimit limit = before_;
        limit.rlim_cur = room;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }

  private:
    void (*signal_)(int);
    rlimit before_ = {};
};

TEST_F(SettingsTest, FullDiskLeavesTheOldFileWhole) {
    for (const int length : {100, 5000, 60000}) {
        FreshUser();
        {
            Settings settings;
            settings.Write(Keys::UserTemplate, QString(length, u'x'));
            settings.Write(Keys::Web, QStringLiteral("/usr/bin/web"));
        }
        const QByteArray before = Content();
        // The new file ends within its last value, within a long one, at its beginning.
        for (const qsizetype room : {before.size() + 3, before.size() / 2, qsizetype(1)}) {
            {
                const FullDisk disk(static_cast<rlim_t>(room));
                Settings settings;
                settings.Write(Keys::FTP, QString(200, u'y'));
                EXPECT_FALSE(settings.Sync()) << length << ' ' << room;
                settings.Write(Keys::FTP, QString(300, u'y'));
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents();
            }
            EXPECT_EQ(Content(), before) << length << ' ' << room;
            EXPECT_EQ(QDir(SettingsFolder()).entryList(QDir::Files).size(), 1)
                << "nothing else is left there";
        }
        Store(Keys::FTP, QStringLiteral("z"));
        EXPECT_EQ(Stored(Keys::FTP), QStringLiteral("z")) << "with room again it takes writes again";
        EXPECT_EQ(Stored(Keys::Web), QStringLiteral("/usr/bin/web"));
    }
}

/// Writes in a process of its own that is killed while it writes its new file.
void WriteAndBeKilled() {
    const pid_t child = ::fork();
    if (child == 0) {
        Settings settings;
        settings.Write(Keys::EditorFont, QStringLiteral("Helvetica"));
        Calls().fsync = [](int) { return ::raise(SIGKILL); };
        settings.Sync();
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status)) << "killed in the middle of its write";
    EXPECT_EQ(FilesOf(SettingsFolder()).size(), 2) << "its new file lay there";
}

TEST_F(SettingsTest, ProgramKilledWhileItWritesLeavesTheOldFileAndNothingElse) {
    Store(Keys::UserTemplate, QString(5000, u'x'));
    Store(Keys::EditorFont, QStringLiteral("Courier"));
    WriteAndBeKilled();
    EXPECT_EQ(Stored(Keys::EditorFont), QStringLiteral("Courier"));
    EXPECT_EQ(FilesOf(SettingsFolder()), QStringList{QStringLiteral("The Tarnwick.ini")});
    Store(Keys::EditorFont, QStringLiteral("Times"));
    EXPECT_EQ(Stored(Keys::EditorFont), QStringLiteral("Times")) << "it takes writes again";
    EXPECT_EQ(QFile::permissions(File()), OnlyTheUser);
}

TEST_F(SettingsTest, WhatAnotherProgramWroteMeanwhileStays) {
    Settings settings;
    settings.Write(Keys::EditorFont, QStringLiteral("Courier"));
    WriteFile("[Program%20Options]\nUseHTM=1\n");
    EXPECT_TRUE(settings.Sync());
    EXPECT_EQ(Content(), "[Program%20Options]\nUseHTM=1\n\n[Window%20Options]\nEditorFont=Courier\n");
    EXPECT_EQ(settings.Read(Keys::UseHTM), QStringLiteral("1"));
}

/// Puts something else than a plain file where the settings lie; true where that can be had here.
using InTheWay = bool (*)(const QByteArray& path);

TEST_F(SettingsTest, WhatIsNoPlainFileIsNeitherOpenedNorReplaced) {
    const struct {
        const char* what;
        InTheWay make;
        mode_t kind;
    } rows[] = {
        {"a pipe", [](const QByteArray& path) { return ::mkfifo(path, 0600) == 0; }, S_IFIFO},
        {"a folder", [](const QByteArray& path) { return ::mkdir(path, 0700) == 0; }, S_IFDIR},
        {"a device", [](const QByteArray& path) { return ::mknod(path, S_IFCHR | 0600, makedev(1, 7)) == 0; },
         S_IFCHR},
        {"a link to a device", [](const QByteArray& path) { return ::symlink("/dev/full", path) == 0; },
         S_IFLNK},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        FreshUser();
        const QByteArray path = QFile::encodeName(File());
        if (!row.make(path))
            continue; // only root may make a device
        {
            Settings settings;
            EXPECT_EQ(settings.Read(Keys::EditorFont), QStringLiteral("Arial"));
            EXPECT_EQ(settings.Unreadable(), QStringList{File()});
            settings.Write(Keys::EditorFont, QStringLiteral("Courier"));
            EXPECT_EQ(settings.Read(Keys::EditorFont), QStringLiteral("Courier")) << "for this run";
            EXPECT_FALSE(settings.Sync());
        }
        struct stat status = {};
        ASSERT_EQ(::lstat(path.constData(), &status), 0);
        EXPECT_EQ(status.st_mode & S_IFMT, row.kind);
        EXPECT_EQ(FilesOf(SettingsFolder()).size(), 1);
    }
    EXPECT_EQ(Settings().Unreadable(), QStringList());
}

TEST_F(SettingsTest, SymbolicLinkIsFollowed) {
    const QString real = TestFolder() + QStringLiteral("/real.ini");
    QFile(real).open(QIODevice::WriteOnly);
    ASSERT_TRUE(QFile::link(real, File()));
    Store(Keys::EditorFont, QStringLiteral("Courier"));
    EXPECT_TRUE(QFileInfo(File()).isSymLink());
    EXPECT_EQ(Stored(Keys::EditorFont), QStringLiteral("Courier"));
}
