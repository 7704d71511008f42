#include "dialogs/PictureFolder.h"

#include "support/Files.h"
#include "support/NoPlainFile.h"
#include "support/Text.h"

namespace {

QStringList NamesOf(const QString& folder) {
    QStringList names;
    for (const PictureEntry& entry : PicturesOf(folder))
        names << (entry.isFolder ? entry.name + u'/' : entry.name);
    return names;
}

TEST(PicturesOf, AreTheWayUpTheFoldersAndThePicturesByName) {
    FreshUser();
    const QString folder = TestFolder() + QStringLiteral("/pictures");
    for (const char* name : {"b.gif", "A.JPG", "c.png", "d.bmp", "e.txt", ".hidden.gif", "f.jpeg",
                             "zoo/x.gif", "Art/y.gif", ".secret/z.gif", "gif"})
        WriteFile(folder + u'/' + QString::fromLatin1(name));
    const QStringList expected = QString::fromLatin1("../ Art/ zoo/ A.JPG b.gif c.png d.bmp").split(u' ');
    EXPECT_EQ(NamesOf(folder), expected);
}

TEST(PicturesOf, LeaveOutWhatIsNoPlainFile) {
    FreshUser();
    ASSERT_FALSE(NoPlainFiles().isEmpty());
    for (const PictureEntry& entry : PicturesOf(TestFolder()))
        EXPECT_TRUE(entry.isFolder) << entry.name.toStdString();
}

TEST(PicturesOf, AFolderThatIsNotThereIsTheWayUp) {
    EXPECT_EQ(NamesOf(TestFolder() + QStringLiteral("/none")), QStringList(QStringLiteral("../")));
    EXPECT_FALSE(NamesOf(QStringLiteral("/")).contains(QStringLiteral("../")));
}

} // namespace
