// Real pages, opened, coloured, saved and opened again: every byte comes back. TARNWICK_PAGES names the
// folders of more pages, colon-separated.
#include "app/documents/FilesFrame.h"
#include "platform/values/Cp1252.h"
#include "support/SourceFolder.h"

#include <iostream>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

namespace {

constexpr char endOfText = 26;

QStringList PagesBelow(const QString& folder) {
    QStringList pages;
    QSet<QString> seen;
    QDirIterator files(folder, {QStringLiteral("*.html"), QStringLiteral("*.htm")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString page = QFileInfo(files.next()).canonicalFilePath();
        if (!page.isEmpty() && !seen.contains(page))
            pages << page;
        seen << page;
    }
    return pages;
}

/// What the window shows of a file: nothing from an end-of-text byte on, and the whole once more behind the
/// last tag where a "<" behind it is never closed.
QByteArray Shown(const QByteArray& file) {
    const qsizetype end = file.indexOf(endOfText);
    const QByteArray text = end < 0 ? file : file.left(end);
    qsizetype behindTag = 0;
    while (true) {
        const qsizetype open = text.indexOf('<', behindTag);
        if (open < 0)
            return text;
        const qsizetype close = text.indexOf('>', open);
        if (close < 0)
            return text.left(behindTag) + text;
        behindTag = close + 1;
    }
}

QByteArray Trimmed(QByteArray text) {
    while (text.startsWith(' '))
        text.remove(0, 1);
    while (text.endsWith(' '))
        text.chop(1);
    return text;
}

/// Texts of a whole page are no use in a failure: tells where they part.
testing::AssertionResult Same(const QByteArray& is, const QByteArray& expected) {
    if (is == expected)
        return testing::AssertionSuccess();
    const auto [here, there] = std::mismatch(is.begin(), is.end(), expected.begin(), expected.end());
    const qsizetype at = here - is.begin();
    return testing::AssertionFailure()
           << is.size() << " bytes, not " << expected.size() << "; from byte " << at << " on \""
           << is.mid(at, 20).toPercentEncoding().constData() << "\", not \""
           << expected.mid(at, 20).toPercentEncoding().constData() << "\"";
}

void ComesBack(FilesFrame& frame, const QString& page) {
    const QByteArray original = FilesFrame::Content(page);
    const QString copy = FilesFrame::Make(QFileInfo(page).fileName(), original);
    OpenDocumentFile(frame, copy);
    const QByteArray shown = Shown(original);
    EXPECT_TRUE(Same(Cp1252::ToBytes(frame.Box().Text()), shown)) << page.toStdString();
    frame.Run("mnuSave");
    const QByteArray saved = Trimmed(shown) + "\r\n";
    EXPECT_TRUE(Same(FilesFrame::Content(copy), saved)) << page.toStdString();
    frame.CloseDocument();
    OpenDocumentFile(frame, copy);
    EXPECT_TRUE(Same(Cp1252::ToBytes(frame.Box().Text()), Shown(saved))) << page.toStdString();
    frame.CloseDocument();
    QFile::remove(copy);
}

TEST(DocumentPagesTest, TheExampleSiteComesBack) {
    const QStringList pages = PagesBelow(SourceFolder() + QStringLiteral("/examples/site"));
    ASSERT_GE(pages.size(), 5);
    FilesFrame frame;
    for (const QString& page : pages)
        ComesBack(frame, page);
}

TEST(DocumentPagesTest, InstalledPagesComeBack) {
    FilesFrame frame;
    qsizetype count = 0;
    const QString folders = qEnvironmentVariable("TARNWICK_PAGES");
    for (const QString& folder : folders.split(u':', Qt::SkipEmptyParts)) {
        const QStringList pages = PagesBelow(folder);
        for (const QString& page : pages)
            ComesBack(frame, page);
        count += pages.size();
    }
    if (count == 0)
        GTEST_SKIP() << "no pages in TARNWICK_PAGES (\"" << folders.toStdString() << "\")";
    std::cout << count << " pages\n";
}

} // namespace
