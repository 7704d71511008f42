#include "platform/desktop/SideBar.h"

#include "support/Files.h"
#include "support/FreshUser.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QHeaderView>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>

namespace {

QList<QUrl> Urls(const QStringList& texts) {
    QList<QUrl> urls;
    for (const QString& text : texts)
        urls << QUrl(text);
    return urls;
}

class SideBarTest : public testing::Test {
  protected:
    void SetUp() override {
        FreshUser();
        QDir(TestFolder()).mkpath(QStringLiteral("one"));
        QDir(TestFolder()).mkpath(QStringLiteral("two"));
    }
    static QString Folder(const char* name) { return TestFolder() + u'/' + QString::fromLatin1(name); }
    static QUrl Url(const char* name) { return QUrl::fromLocalFile(Folder(name)); }
};

} // namespace

TEST(SideBarUrls, FoldersComeBehindWhatIsThereEachOnce) {
    const QList<QUrl> before = Urls({QStringLiteral("file:"), QStringLiteral("file:///home/u")});
    struct Row {
        QStringList folders;
        QStringList urls;
    };
    const Row rows[] = {
        {{}, {QStringLiteral("file:"), QStringLiteral("file:///home/u")}},
        {{QStringLiteral("/a/b/")},
         {QStringLiteral("file:"), QStringLiteral("file:///home/u"), QStringLiteral("file:///a/b")}},
        {{QStringLiteral("/home/u/"), QStringLiteral("/a"), QStringLiteral("/a/"), QStringLiteral("/x/../a")},
         {QStringLiteral("file:"), QStringLiteral("file:///home/u"), QStringLiteral("file:///a")}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(SideBarUrls(before, row.folders), Urls(row.urls));
}

TEST_F(SideBarTest, OnlyFoldersThatAreThere) {
    WriteFile(Folder("file"));
    EXPECT_EQ(ExistingFolders({Folder("two"), Folder("none"), Folder("file"), Folder("one")},
                              std::chrono::seconds(30)),
              QStringList({Folder("two"), Folder("one")}));
    EXPECT_EQ(ExistingFolders({}, std::chrono::seconds(30)), QStringList());
}

TEST_F(SideBarTest, WhatIsNotKnownInTimeIsNotThere) {
    // No thread is as fast as no time at all; and if one were, the answer would be the right one.
    const QStringList folders = ExistingFolders({Folder("one")}, std::chrono::milliseconds(0));
    EXPECT_TRUE(folders.isEmpty() || folders == QStringList(Folder("one")));
}

TEST_F(SideBarTest, IsLentAndComesBack) {
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setSidebarUrls({Url("one")});
    {
        const LentSideBar lent(dialog, {Folder("two"), Folder("one")});
        EXPECT_EQ(dialog.sidebarUrls(), QList({Url("one"), Url("two")}));
        // The user takes one out and puts one in.
        dialog.setSidebarUrls({Url("two"), QUrl::fromLocalFile(TestFolder())});
    }
    EXPECT_EQ(dialog.sidebarUrls(), QList({QUrl::fromLocalFile(TestFolder())}));
}

TEST_F(SideBarTest, ColumnsAreWideAndComeBack) {
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setViewMode(QFileDialog::Detail);
    QHeaderView& header = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    header.resizeSection(0, 90);
    const QByteArray before = header.saveState();
    {
        const WideColumns wide(dialog);
        EXPECT_GE(header.sectionSize(0), dialog.fontMetrics().averageCharWidth() * 40);
        EXPECT_GT(header.sectionSize(3),
                  dialog.fontMetrics().horizontalAdvance(QStringLiteral("12/31/2026 11:59 PM")));
        EXPECT_LE(dialog.width(), dialog.screen()->availableSize().width());
    }
    EXPECT_EQ(header.saveState(), before);
    {
        const WideColumns wide(dialog);
        header.resizeSection(0, 333);
    }
    EXPECT_EQ(header.sectionSize(0), 333) << "the user's own width stays";
}

TEST_F(SideBarTest, DialogLeavesRoomAndShowsTheNamesOfFolders) {
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setViewMode(QFileDialog::Detail);
    const WideColumns wide(dialog, 200);
    dialog.show();
    QApplication::processEvents();
    EXPECT_LE(dialog.width() + 200, dialog.screen()->availableSize().width());
    const auto& splitter = *dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
    EXPECT_GE(splitter.sizes().constFirst(), dialog.fontMetrics().averageCharWidth() * 20);
}

TEST_F(SideBarTest, WidthOfTheSideBarComesBack) {
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.show();
    auto& splitter = *dialog.findChild<QSplitter*>(QStringLiteral("splitter"));
    splitter.setSizes({100, 400});
    const int before = splitter.sizes().constFirst();
    {
        const WideColumns wide(dialog);
        EXPECT_GT(splitter.sizes().constFirst(), before);
    }
    EXPECT_NEAR(splitter.sizes().constFirst(), before, 3);
}
