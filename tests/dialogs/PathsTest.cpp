// From a picked file to a link target.
#include "dialogs/Paths.h"

#include "support/Files.h"
#include "support/FreshUser.h"

#include <gtest/gtest.h>

namespace {

QString T(QStringView text) {
    return text.toString();
}

/// A file system that holds every name, spelled as asked for.
QString AsAsked(const QString&, const QString& name) {
    return name;
}

/// A file system in which every name is in lower case, but for those that are gone.
QString InLowerCase(const QString&, const QString& name) {
    return name.startsWith(u"gone", Qt::CaseInsensitive) ? QString() : name.toLower();
}

} // namespace

TEST(RelativePath, RowsInBothForms) {
    struct Row {
        QStringView document;
        QStringView target;
        QStringView path;
        bool failed = false;
    };
    const Row rows[] = {
        // Down, up and across, with drives.
        {u"C:\\site\\pages\\a.htm", u"C:\\site\\img\\b.gif", u"..\\img\\b.gif"},
        {u"C:\\site\\a.htm", u"C:\\site\\b.gif", u"b.gif"},
        {u"C:\\site\\a.htm", u"C:\\site\\x\\y\\b.gif", u"x\\y\\b.gif"},
        {u"C:\\site\\pages\\a.htm", u"C:\\site\\top.gif", u"..\\top.gif"},
        {u"C:\\a.htm", u"C:\\b.gif", u"b.gif"},
        {u"C:\\a\\b\\c\\d.htm", u"C:\\x.gif", u"..\\..\\..\\x.gif"},
        {u"C:\\a\\b\\c\\d.htm", u"C:\\a\\x\\y.gif", u"..\\..\\x\\y.gif"},
        {u"C:\\site\\a.htm", u"C:\\site\\a.htm", u"a.htm"},
        // The drive does not count.
        {u"C:\\site\\a.htm", u"D:\\site\\b.gif", u"b.gif"},
        {u"C:\\site\\a.htm", u"D:\\other\\b.gif", u"..\\other\\b.gif"},
        // Case does.
        {u"C:\\Site\\a.htm", u"C:\\site\\b.gif", u"..\\site\\b.gif"},
        // A name that begins like another is another.
        {u"C:\\site\\a.htm", u"C:\\site2\\b.gif", u"..\\site2\\b.gif"},
        {u"C:\\a\\a\\b.htm", u"C:\\a\\a.gif", u"..\\a.gif"},
        // A one-letter folder counts, a separator in front of the rest does not.
        {u"C:\\x\\a.htm", u"C:\\y\\b.gif", u"..\\y\\b.gif"},
        {u"C:\\\\x\\a.htm", u"C:\\y\\b.gif", u"..\\y\\b.gif"},
        // The other form.
        {u"/home/u/site/pages/a.htm", u"/home/u/site/img/b.gif", u"../img/b.gif"},
        {u"/home/u/site/a.htm", u"/home/u/site/b.gif", u"b.gif"},
        {u"/home/u/site/a.htm", u"/home/u/site/x/y/b.gif", u"x/y/b.gif"},
        {u"/home/u/site/pages/a.htm", u"/home/u/site/top.gif", u"../top.gif"},
        {u"/a.htm", u"/b.gif", u"b.gif"},
        {u"/x/a.htm", u"/y/b.gif", u"../y/b.gif"},
        {u"/home/u/a.htm", u"/home/u/odd\\name.gif", u"odd\\name.gif"},
        {u"//x/a.htm", u"/y/b.gif", u"../y/b.gif"},
        // One of each: nothing is shared, and the result is in the target's form.
        {u"C:\\site\\a.htm", u"/home/b.gif", u"../home/b.gif"},
        {u"/home/u/a.htm", u"C:\\home\\b.gif", u"..\\..\\home\\b.gif"},
        // A document that was never saved, and what else has no root.
        {u"", u"C:\\site\\b.gif", u"site\\b.gif", true},
        {u"", u"/home/u/b.gif", u"home/u/b.gif", true},
        {u"C:", u"/home/u/b.gif", u"home/u/b.gif", true},
        {u"/home/u/a.htm", u"b.gif", u"../../b.gif", true},
        // A pick that was cancelled: the way to an empty name, which has no root either.
        {u"/home/u/a.htm", u"", u"../../", true},
        {u"/a.htm", u"", u"", true},
        {u"C:\\site\\a.htm", u"", u"../", true},
        {u"", u"", u"", true},
    };
    for (const Row& row : rows) {
        const RelativeResult result = RelativePath(T(row.document), T(row.target), AsAsked);
        SCOPED_TRACE((T(row.document) + T(u" -> ") + T(row.target)).toStdString());
        EXPECT_EQ(result.path, T(row.path));
        EXPECT_EQ(result.failed, row.failed);
    }
}

TEST(RelativePath, ComparesTheCaseOnDisk) {
    EXPECT_EQ(RelativePath(T(u"C:\\SITE\\A.HTM"), T(u"c:\\Site\\Img\\B.gif"), InLowerCase).path,
              T(u"img\\b.gif"));
    EXPECT_EQ(RelativePath(T(u"/HOME/a.htm"), T(u"/Home/B.gif"), InLowerCase).path, T(u"b.gif"));
}

TEST(ExactCasePath, RowsInBothForms) {
    struct Row {
        QStringView path;
        QStringView exact;
    };
    const Row rows[] = {
        {u"c:\\Site\\IMG\\B.gif", u"C:\\site\\img\\b.gif"},
        {u"/Home/U/A.HTM", u"/home/u/a.htm"},
        {u"c:\\A.HTM", u"C:\\a.htm"},
        {u"c:\\", u"C:\\"},
        {u"/", u"/"},
        // A missing folder leaves its separator, and hides all that would lie in it; a missing file nothing.
        {u"c:\\Site\\gone\\B.gif", u"C:\\site\\\\"},
        {u"c:\\Site\\gone\\Sub\\B.gif", u"C:\\site\\\\\\"},
        {u"c:\\Site\\gone.gif", u"C:\\site\\"},
        {u"/Home/gone.gif", u"/home/"},
        {u"/Home/", u"/home/"},
        {u"", u""},
        {u"c:", u"c:"},
        {u"A.HTM", u"A.HTM"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(ExactCasePath(T(row.path), InLowerCase), T(row.exact)) << T(row.path).toStdString();
}

TEST(ExactCasePath, AsksForEachComponentInTheFolderFound) {
    QStringList asked;
    ExactCasePath(T(u"c:\\Site\\Img\\B.gif"), [&](const QString& folder, const QString& name) {
        asked << folder + u'|' + name;
        return name.toLower();
    });
    EXPECT_EQ(asked, (QStringList{T(u"C:\\|Site"), T(u"C:\\site\\|Img"), T(u"C:\\site\\img\\|B.gif")}));
}

TEST(ExactCasePath, LooksAtTheDisk) {
    FreshUser();
    const QString folder = TestFolder();
    WriteFile(folder + QStringLiteral("/Site/Img/Logo.GIF"));
    EXPECT_EQ(ExactCasePath(folder + QStringLiteral("/site/IMG/logo.gif")),
              folder + QStringLiteral("/Site/Img/Logo.GIF"));
    WriteFile(folder + QStringLiteral("/Site/Img/logo.gif"));
    EXPECT_EQ(ExactCasePath(folder + QStringLiteral("/site/IMG/logo.gif")),
              folder + QStringLiteral("/Site/Img/logo.gif"))
        << "the name that is there exactly wins";
    EXPECT_EQ(ExactCasePath(folder + QStringLiteral("/Site/none.gif")), folder + QStringLiteral("/Site/"));
}

TEST(ExactCasePath, PathOfAnotherKindOfComputerStays) {
    EXPECT_EQ(ExactCasePath(T(u"c:\\Site\\B.gif")), T(u"c:\\Site\\B.gif"));
    EXPECT_EQ(ExactCasePath(T(u"b.gif")), T(u"b.gif"));
    EXPECT_EQ(ExactCasePath(QString()), QString());
}

TEST(ReplaceChar, OverwritesEveryOccurrence) {
    struct Row {
        QStringView text;
        char16_t find;
        char16_t replacement;
        QStringView result;
    };
    const Row rows[] = {
        {u"a\\b\\c", u'\\', u'/', u"a/b/c"}, {u"http://x", u'/', u'\\', u"http:\\\\x"},
        {u"aAa", u'a', u'b', u"bAb"},        {u"abc", u'x', u'y', u"abc"},
        {u"aaa", u'a', u'a', u"aaa"},        {u"", u'a', u'b', u""},
    };
    for (const Row& row : rows) {
        QString text = T(row.text);
        ReplaceChar(text, row.find, row.replacement);
        EXPECT_EQ(text, T(row.result)) << T(row.text).toStdString();
    }
}
