// The first page that a visitor reads: its pictures, commands, menus and folders are there.
#include "app/RealFrame.h"
#include "support/SourceFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString Readme() {
    QFile file(SourceFolder() + u"/README.md"_s);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

/// What a pattern captures, wherever it matches.
QStringList All(const QString& pattern, const QString& text) {
    QStringList found;
    for (auto all = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
         all.hasNext();)
        found << all.next().captured(1);
    return found;
}

QStringList FoldersIn(const QString& path) {
    return QDir(SourceFolder() + u'/' + path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

/// The words in code marks of the table's row that begins with a folder.
QStringList RoomsOf(const QString& folder, const QString& readme) {
    const QStringList rows = All(u"^\\| `src/%1` \\| (.*) \\|$"_s.arg(folder), readme);
    QStringList rooms = rows.isEmpty() ? QStringList() : All(u"`(\\w+)`"_s, rows.first());
    rooms.sort();
    return rooms;
}

QString Plain(const QString& caption) {
    return QString(caption).remove(u'&').section(u"  "_s, 0, 0).trimmed();
}

/// The entry or menu of captions from the menu bar down; null where there is none.
const QAction* EntryAt(const QStringList& way, const QList<QAction*>& entries) {
    for (const QAction* entry : entries)
        if (Plain(entry->text()) == way.first()) {
            if (way.size() == 1)
                return entry;
            return entry->menu() ? EntryAt(way.mid(1), entry->menu()->actions()) : nullptr;
        }
    return nullptr;
}

TEST(Readme, PicturesAndLinksLeadToFiles) {
    const QStringList targets = All(u"\\]\\(([^)]+)\\)"_s, Readme());
    EXPECT_EQ(targets.filter(u"images/"_s).size(), 2);
    for (const QString& target : targets)
        EXPECT_TRUE(QFileInfo(SourceFolder() + u'/' + target).isFile()) << target.toStdString();
}

TEST(Readme, CommandsCanBeRun) {
    const QStringList commands = All(u"^    \\./(\\w+)"_s, Readme());
    EXPECT_EQ(commands, (QStringList{u"run"_s, u"test"_s, u"package"_s}));
    for (const QString& command : commands)
        EXPECT_TRUE(QFileInfo(SourceFolder() + u'/' + command).isExecutable()) << command.toStdString();
}

TEST(Readme, EveryFolderIsToldWithAllItsRooms) {
    const QString readme = Readme();
    for (const QString& folder : FoldersIn(u"src"_s))
        EXPECT_EQ(RoomsOf(folder, readme), FoldersIn(u"src/"_s + folder)) << folder.toStdString();
    const QString told = All(u"^(\\| `.*)$"_s, readme).join(u'\n');
    QStringList folders = FoldersIn(u"."_s);
    folders.removeAll(u"build"_s);
    for (const QString& folder : folders)
        EXPECT_TRUE(told.contains(u'`' + folder)) << folder.toStdString();
    EXPECT_EQ(All(u"^\\| `src/(\\w+)`"_s, readme).size(), FoldersIn(u"src"_s).size());
}

class ReadmeMenus : public FrameTest {};

TEST_F(ReadmeMenus, EntriesAndTheirKeysAreThere) {
    ProgramRun run;
    run.Start();
    int told = 0;
    const QRegularExpression entry(u"\\*(\\w+ > [^*]+)\\*(?: \\(([^)]+)\\))?"_s);
    for (auto all = entry.globalMatch(Readme()); all.hasNext();) {
        const auto match = all.next();
        const QAction* action = EntryAt(match.captured(1).split(u" > "_s), run.frame->menuBar()->actions());
        ASSERT_TRUE(action) << match.captured(1).toStdString();
        EXPECT_EQ(action->shortcut().toString(QKeySequence::PortableText), match.captured(2))
            << match.captured(1).toStdString();
        ++told;
    }
    EXPECT_GE(told, 12);
}

} // namespace
