#include "app/documents/DialogFolders.h"

#include "app/documents/FilesFrame.h"
#include "app/documents/RecentFiles.h"

TEST(DialogFolders, AreThoseOfOpenAndThenOfRecentFilesEachOnce) {
    FilesFrame frame;
    EXPECT_EQ(DialogFolders(frame), QStringList());
    frame.active->SetCaption(QStringLiteral("/site/b/x.htm"));
    frame.NewDocument(); // it has no file
    frame.NewDocument();
    frame.active->SetCaption(QStringLiteral("/site/a/y.htm"));
    RecentFiles::SetCaption(frame, 0, QStringLiteral("/old/z.htm"));
    RecentFiles::SetCaption(frame, 1, QStringLiteral("/site/b/z.htm"));
    RecentFiles::SetCaption(frame, 7, QStringLiteral("/older/z.htm"));
    EXPECT_EQ(DialogFolders(frame), QStringList({QStringLiteral("/site/b/"), QStringLiteral("/site/a/"),
                                                 QStringLiteral("/old/"), QStringLiteral("/older/")}));
    frame.Store().WriteFlag(Keys::FileDialogFolders, false);
    EXPECT_EQ(DialogFolders(frame), QStringList());
}
