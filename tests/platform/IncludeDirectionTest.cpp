// The arrows between the folders of src/ point one way only.
#include "support/SourceFolder.h"

#include <gtest/gtest.h>
#include <map>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <set>

namespace {

const std::map<QString, std::set<QString>> mayInclude = {
    {QStringLiteral("platform"), {}},
    {QStringLiteral("editor"), {QStringLiteral("platform")}},
    {QStringLiteral("dialogs"), {QStringLiteral("platform"), QStringLiteral("editor")}},
    {QStringLiteral("builders"),
     {QStringLiteral("platform"), QStringLiteral("editor"), QStringLiteral("dialogs")}},
    {QStringLiteral("styles"),
     {QStringLiteral("platform"), QStringLiteral("editor"), QStringLiteral("dialogs")}},
    {QStringLiteral("tools"),
     {QStringLiteral("platform"), QStringLiteral("editor"), QStringLiteral("dialogs")}},
    {QStringLiteral("app"),
     {QStringLiteral("platform"), QStringLiteral("editor"), QStringLiteral("dialogs"),
      QStringLiteral("builders"), QStringLiteral("styles"), QStringLiteral("tools")}},
    {QStringLiteral("web"), {QStringLiteral("platform"), QStringLiteral("editor")}},
    {QStringLiteral("ftp"), {}},
};

/// The folders that a source text includes from.
std::set<QString> IncludedFolders(const QString& source) {
    static const QRegularExpression line(QStringLiteral("^\\s*#\\s*include\\s+\"(?:\\.\\./)*(\\w+)/"),
                                         QRegularExpression::MultilineOption);
    std::set<QString> folders;
    for (auto matches = line.globalMatch(source); matches.hasNext();)
        folders.insert(matches.next().captured(1));
    return folders;
}

bool Allowed(const QString& from, const QString& to) {
    return from == to || !mayInclude.contains(to) || mayInclude.at(from).contains(to);
}

TEST(IncludeDirection, TheRuleTellsUpFromDown) {
    EXPECT_TRUE(Allowed(QStringLiteral("app"), QStringLiteral("platform")));
    EXPECT_FALSE(Allowed(QStringLiteral("platform"), QStringLiteral("editor")));
    EXPECT_FALSE(Allowed(QStringLiteral("tools"), QStringLiteral("builders")));
    EXPECT_TRUE(Allowed(QStringLiteral("tools"), QStringLiteral("dialogs")));
    EXPECT_FALSE(Allowed(QStringLiteral("dialogs"), QStringLiteral("builders")));
    EXPECT_EQ(IncludedFolders(QStringLiteral("#include \"app/frmTarnwick.h\"\n#include <QString>\n")),
              std::set<QString>{QStringLiteral("app")});
}

TEST(IncludeDirection, NoArrowPointsUp) {
    const QDir root(SourceFolder() + QStringLiteral("/src"));
    int files = 0;
    QDirIterator sources(root.path(), {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString path = sources.next();
        const QString folder = root.relativeFilePath(path).section(QLatin1Char('/'), 0, 0);
        ASSERT_TRUE(mayInclude.contains(folder)) << path.toStdString() << " lies in no folder of the house";
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        for (const QString& to : IncludedFolders(QString::fromUtf8(file.readAll())))
            EXPECT_TRUE(Allowed(folder, to)) << path.toStdString() << " includes from " << to.toStdString();
        ++files;
    }
    EXPECT_GT(files, 20);
}

} // namespace
