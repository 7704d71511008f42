// Real pages, opened, coloured, saved and opened again: every byte comes back. TARNWICK_PAGES names the
// folders of more pages, colon-separated.
#include "app/documents/FilesFrame.h"
#include "platform/values/TextEncoding.h"
#include "platform/values/Utf8.h"
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

/// What of a file is no part of its text.
QByteArrayView MarkOf(const QByteArray& file) {
    return EncodingOf(file) == TextEncoding::Utf8WithMark ? Utf8::Mark : QByteArrayView();
}

/// What the window shows of a file's text: nothing from an end-of-text byte on, and the whole once more
/// behind the last tag where a "<" behind it is never closed.
QByteArray ShownText(const QByteArray& text) {
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

QByteArray Shown(const QByteArray& file) {
    const qsizetype end = file.indexOf(endOfText);
    const QByteArray taken = end < 0 ? file : file.left(end);
    const QByteArrayView mark = MarkOf(taken);
    return mark.toByteArray() + ShownText(taken.mid(mark.size()));
}

QByteArray Trimmed(const QByteArray& shown) {
    const QByteArrayView mark = MarkOf(shown);
    QByteArray text = shown.mid(mark.size());
    while (text.startsWith(' '))
        text.remove(0, 1);
    while (text.endsWith(' '))
        text.chop(1);
    return mark.toByteArray() + text;
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

/// The text of the active document as its bytes.
QByteArray Bytes(FilesFrame& frame) {
    return Encode(frame.Box().Text(), frame.active->Encoding());
}

/// Returns the encoding it had.
TextEncoding ComesBack(FilesFrame& frame, const QString& page) {
    const QByteArray original = FilesFrame::Content(page);
    const QString copy = FilesFrame::Make(QFileInfo(page).fileName(), original);
    OpenDocumentFile(frame, copy);
    const QByteArray shown = Shown(original);
    EXPECT_TRUE(Same(Bytes(frame), shown)) << page.toStdString();
    frame.Run("mnuSave");
    const QByteArray saved = Trimmed(shown) + "\r\n";
    EXPECT_TRUE(Same(FilesFrame::Content(copy), saved)) << page.toStdString();
    frame.CloseDocument();
    OpenDocumentFile(frame, copy);
    EXPECT_TRUE(Same(Bytes(frame), Shown(saved))) << page.toStdString();
    const TextEncoding encoding = frame.active->Encoding();
    EXPECT_EQ(encoding, EncodingOf(saved)) << page.toStdString();
    frame.CloseDocument();
    QFile::remove(copy);
    return encoding;
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
    qsizetype utf8 = 0;
    const QString folders = qEnvironmentVariable("TARNWICK_PAGES");
    for (const QString& folder : folders.split(u':', Qt::SkipEmptyParts)) {
        const QStringList pages = PagesBelow(folder);
        for (const QString& page : pages)
            utf8 += IsUtf8(ComesBack(frame, page));
        count += pages.size();
    }
    if (count == 0)
        GTEST_SKIP() << "no pages in TARNWICK_PAGES (\"" << folders.toStdString() << "\")";
    std::cout << count << " pages, " << utf8 << " of them in UTF-8\n";
}

/// Every character there is, page by page, a tag beside each stretch; every other page behind a mark.
TEST(DocumentPagesTest, AllOfUnicodeComesBack) {
    constexpr char32_t step = 0x4000;
    FilesFrame frame;
    // Nobody looks: to find a font for each would take a minute.
    frame.window->hide();
    for (char32_t first = 0; first <= QChar::LastValidCodePoint; first += step) {
        QByteArray page;
        for (char32_t c = first; c < first + step; ++c) {
            if (c != endOfText && c != U'<' && !QChar::isSurrogate(c))
                page += QStringView(QChar::fromUcs4(c)).toUtf8();
            if (c % 0x100 == 0)
                page += "<b>";
        }
        if (first / step % 2 == 1)
            page.prepend(Utf8::Mark.toByteArray());
        ComesBack(frame, FilesFrame::Make(QStringLiteral("plane.html"), page));
    }
}

} // namespace
