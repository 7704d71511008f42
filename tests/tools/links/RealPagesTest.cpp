// The links of real pages against a plain scan, one character at a time. TARNWICK_PAGES names the folders of
// pages, colon-separated.
#include "platform/values/Cp1252.h"
#include "support/Files.h"
#include "support/SourceFolder.h"
#include "support/Text.h"
#include "tools/links/LinkScan.h"

#include <QDirIterator>
#include <QRegularExpression>

namespace {

QStringList PagesBelow(const QString& folder) {
    QStringList pages;
    QDirIterator files(folder, {QStringLiteral("*.html"), QStringLiteral("*.htm")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        pages << files.next();
    pages.sort();
    return pages;
}

/// The values behind each "href", which go on at the first character of the value before.
QStringList PlainValues(const QString& text) {
    QStringList values;
    for (qsizetype i = 0; i + 4 <= text.size(); ++i) {
        if (text.mid(i, 4) != QStringLiteral("href"))
            continue;
        qsizetype open = i;
        while (open < text.size() && text[open] != u'"')
            ++open;
        qsizetype close = open + 1;
        while (close < text.size() && text[close] != u'"')
            ++close;
        if (close >= text.size())
            break;
        values << text.mid(open + 1, close - open - 1);
        i = open;
    }
    return values;
}

/// What the tree shows of a value: nothing for a scheme that it leaves out.
QString PlainName(QString value) {
    static const QRegularExpression ending(QStringLiteral("(/|\\..{3}|\\..{4})\\z"),
                                           QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression shown(QStringLiteral("\\A(http|file|ftp|mailto):|\\A[^:]*\\z"));
    if (!ending.match(value).hasMatch())
        value += u'/';
    return shown.match(value).hasMatch() ? value : QString();
}

QStringList PlainLinks(const QString& text) {
    QStringList names;
    for (const QString& value : PlainValues(text.toLower())) {
        const QString name = PlainName(value);
        if (!name.isEmpty() && !names.contains(name))
            names << name;
    }
    return names;
}

int Compare(const QString& page) {
    const QString text = Cp1252::FromBytes(ReadFile(page));
    QStringList names;
    // A page without a name: there a link's key is the link.
    for (const PageLink& link : ExtractLinks(QString(), text))
        names << link.text;
    EXPECT_EQ(names, PlainLinks(text)) << page.toStdString();
    return static_cast<int>(names.size());
}

TEST(RealPages, OfTheExampleSite) {
    int links = 0;
    for (const QString& page : PagesBelow(SourceFolder() + QStringLiteral("/examples/site")))
        links += Compare(page);
    EXPECT_GT(links, 10);
}

TEST(RealPages, OfThePackages) {
    int pages = 0;
    int links = 0;
    for (const QString& folder : qEnvironmentVariable("TARNWICK_PAGES").split(u':', Qt::SkipEmptyParts))
        for (const QString& page : PagesBelow(folder)) {
            ++pages;
            links += Compare(page);
        }
    if (pages == 0)
        GTEST_SKIP() << "no pages in TARNWICK_PAGES";
    EXPECT_GT(links, pages);
    std::cout << links << " links in " << pages << " pages\n";
}

} // namespace
