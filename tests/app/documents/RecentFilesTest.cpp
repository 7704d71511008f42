// The list of recent files: its order, its length, and how its entries read.
#include "app/documents/RecentFiles.h"

#include "app/documents/FilesFrame.h"

namespace {

/// Makes path the active document's and adds it.
void Add(FilesFrame& frame, const QString& path) {
    frame.active->SetCaption(path);
    AddToRecentFiles(frame);
}

QString Numbered(int n) {
    return QStringLiteral("/site/%1.htm").arg(n);
}

TEST(RecentFiles, StartsHidden) {
    FilesFrame frame;
    EXPECT_TRUE(frame.Recent().isEmpty());
    EXPECT_FALSE(MenuEntry(frame, QStringLiteral("mnuSep10"))->isVisible());
}

TEST(RecentFiles, TheNewestIsFirstAndTheNinthPushesTheOldestOut) {
    FilesFrame frame;
    QStringList expected;
    for (int n = 1; n <= 9; ++n) {
        Add(frame, Numbered(n));
        expected.prepend(Numbered(n));
        expected = expected.mid(0, 8);
        EXPECT_EQ(frame.Recent(), expected);
    }
    EXPECT_EQ(frame.Recent().last(), Numbered(2));
    EXPECT_TRUE(MenuEntry(frame, QStringLiteral("mnuSep10"))->isVisible());
}

TEST(RecentFiles, AnotherSpellingOfAPathIsAnotherEntry) {
    FilesFrame frame;
    Add(frame, QStringLiteral("/site/a.htm"));
    Add(frame, QStringLiteral("/site/A.htm"));
    Add(frame, QStringLiteral("/site/./a.htm"));
    EXPECT_EQ(frame.Recent(), (QStringList{QStringLiteral("/site/./a.htm"), QStringLiteral("/site/A.htm"),
                                           QStringLiteral("/site/a.htm")}));
}

TEST(RecentFiles, AnEntryKeepsItsPlace) {
    FilesFrame frame;
    for (int n = 1; n <= 8; ++n)
        Add(frame, Numbered(n));
    const QStringList before = frame.Recent();
    for (int n = 1; n <= 8; ++n) {
        Add(frame, Numbered(n));
        EXPECT_EQ(frame.Recent(), before);
    }
}

TEST(RecentFiles, ADocumentWithoutAFileIsTakenForAFreeEntry) {
    FilesFrame frame;
    Add(frame, QString());
    EXPECT_TRUE(frame.Recent().isEmpty());
    EXPECT_FALSE(MenuEntry(frame, QStringLiteral("mnuSep10"))->isVisible());
}

TEST(RecentFiles, NoDocumentAddsNothing) {
    FilesFrame frame;
    frame.CloseDocument();
    AddToRecentFiles(frame);
    EXPECT_TRUE(frame.Recent().isEmpty());
}

TEST(RecentFiles, ASettingsEntryIsShownIfItHoldsAPath) {
    FilesFrame frame;
    RecentFiles::SetCaption(frame, 2, Numbered(2));
    EXPECT_EQ(frame.Recent(), QStringList{Numbered(2)});
    EXPECT_FALSE(MenuEntry(frame, QStringLiteral("mnuSep10"))->isVisible());
    RecentFiles::SetCaption(frame, 2, QString());
    EXPECT_TRUE(frame.Recent().isEmpty());
    RecentFiles::SetCaption(frame, 0, Numbered(0));
    EXPECT_TRUE(MenuEntry(frame, QStringLiteral("mnuSep10"))->isVisible());
}

TEST(RecentFiles, AnAmpersandIsShownAndKept) {
    FilesFrame frame;
    const QString path = QStringLiteral("/site/a&b/c&&d.htm");
    Add(frame, path);
    EXPECT_EQ(RecentFiles::Caption(frame, 0), path);
    EXPECT_EQ(frame.Recent(), QStringList{QStringLiteral("/site/a&&b/c&&&&d.htm")});
    Add(frame, Numbered(1));
    EXPECT_EQ(RecentFiles::Caption(frame, 1), path);
}

TEST(RecentFiles, AFrameWithoutTheMenuHasNone) {
    TestFrame frame;
    RecentFiles::SetCaption(frame, 0, Numbered(0));
    EXPECT_EQ(RecentFiles::Caption(frame, 0), QString());
}

} // namespace
