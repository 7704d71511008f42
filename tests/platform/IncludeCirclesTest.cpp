// No two files of src/ include each other, by whatever road: each can be read, and tested, without the other.
#include "support/SourceFolder.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <set>
#include <vector>

namespace {

using Unit = QString; ///< a header and its source together: the path below src/, without the ending
using Units = std::set<Unit>;
using Graph = std::map<Unit, Units>;

Unit UnitOf(const QString& path) {
    return path.left(path.lastIndexOf(QLatin1Char('.')));
}

/// The files of the project that a source text includes.
Units Included(const QString& source) {
    static const QRegularExpression line(QStringLiteral("^\\s*#\\s*include\\s+\"([^\"]+)\""),
                                         QRegularExpression::MultilineOption);
    Units units;
    for (auto matches = line.globalMatch(source); matches.hasNext();)
        units.insert(UnitOf(matches.next().captured(1)));
    return units;
}

Graph ReadGraph(const QDir& root) {
    Graph graph;
    QDirIterator sources(root.path(), {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext()) {
        const QString path = sources.next();
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::ReadOnly)) << path.toStdString();
        graph[UnitOf(root.relativeFilePath(path))].merge(Included(QString::fromUtf8(file.readAll())));
    }
    return graph;
}

/// What a unit reaches through one include or more; itself, where a road leads back.
Units Reached(const Graph& graph, const Unit& from) {
    Units reached;
    std::vector<Unit> open = {from};
    while (!open.empty()) {
        const auto found = graph.find(open.back());
        open.pop_back();
        if (found == graph.end())
            continue;
        for (const Unit& next : found->second)
            if (next != found->first && reached.insert(next).second)
                open.push_back(next);
    }
    return reached;
}

/// The sets of units each of which reaches all others of its set.
std::set<Units> Circles(const Graph& graph) {
    std::map<Unit, Units> reached;
    for (const auto& [unit, included] : graph)
        reached[unit] = Reached(graph, unit);
    std::set<Units> circles;
    for (const auto& [unit, others] : reached) {
        Units circle;
        for (const Unit& other : others)
            if (reached[other].contains(unit))
                circle.insert(other);
        if (!circle.empty())
            circles.insert(circle);
    }
    return circles;
}

Units Names(const char* names) {
    const QStringList list = QString::fromLatin1(names).split(QLatin1Char(' '));
    return {list.begin(), list.end()};
}

TEST(IncludeCircles, AreFoundBySearch) {
    const struct {
        const char* what;
        Graph graph;
        std::set<Units> circles;
    } rows[] = {
        {"a source and its header", {{"a/A", Names("a/A")}}, {}},
        {"a line", {{"a/A", Names("a/B a/C")}, {"a/B", Names("a/C")}, {"a/C", Names("QString")}}, {}},
        {"two", {{"a/A", Names("a/B")}, {"a/B", Names("a/A")}}, {Names("a/A a/B")}},
        {"three and one that looks in",
         {{"a/A", Names("a/B")}, {"a/B", Names("b/C")}, {"b/C", Names("a/A")}, {"b/D", Names("a/A")}},
         {Names("a/A a/B b/C")}},
        {"two circles, one above the other",
         {{"a/A", Names("a/B")}, {"a/B", Names("a/A b/C")}, {"b/C", Names("b/D")}, {"b/D", Names("b/C")}},
         {Names("a/A a/B"), Names("b/C b/D")}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Circles(row.graph), row.circles) << row.what;
}

TEST(IncludeCircles, IncludesOfTheProjectCountAndOthersDont) {
    EXPECT_EQ(Included(QStringLiteral("#include \"app/Preview.h\"\n  # include \"ui_frmBody.h\"\n"
                                      "#include <QString>\n// #include \"app/Icons.h\"\n")),
              Names("app/Preview ui_frmBody"));
}

TEST(IncludeCircles, ThereAreNone) {
    const Graph graph = ReadGraph(SourceFolder() + QStringLiteral("/src"));
    EXPECT_GT(graph.size(), 20u);
    for (const Units& circle : Circles(graph))
        ADD_FAILURE() << QStringList(circle.begin(), circle.end()).join(QStringLiteral(", ")).toStdString();
}

} // namespace
