// The help as it is built: every page, every link and every picture, and a page for whatever asks for one.
#include "app/help/HelpBook.h"

#include "app/help/HelpFile.h"
#include "app/RealFrame.h"
#include "app/window/KnownForms.h"
#include "support/SourceFolder.h"

#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

class HelpBookTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!book.IsOpen())
            GTEST_SKIP() << "no compiler for the help file here";
    }
    QString Page(const QString& name) { return QString::fromUtf8(book.Read(name).value_or(QByteArray())); }
    static QStringList Sources() {
        return QDir(SourceFolder() + u"/help"_s).entryList({u"*.html"_s}, QDir::Files, QDir::Name);
    }
    HelpBook book{BuiltHelpFile()};
};

/// Every page that a tree of entries names, without places in it.
QStringList PagesOf(const std::vector<HelpEntry>& entries) {
    QStringList pages;
    for (const HelpEntry& entry : entries) {
        if (!entry.page.isEmpty())
            pages << entry.page.section(u'#', 0, 0);
        pages << PagesOf(entry.children);
    }
    return pages;
}

TEST_F(HelpBookTest, HoldsEveryPageByteForByte) {
    for (const QString& name : Sources()) {
        QFile source(SourceFolder() + u"/help/"_s + name);
        ASSERT_TRUE(source.open(QIODevice::ReadOnly));
        EXPECT_EQ(book.Read(name), source.readAll()) << name.toStdString();
    }
    EXPECT_FALSE(book.Read(u"nothing.html"_s));
}

TEST_F(HelpBookTest, ContentsNameEveryPageOnceAndNothingElse) {
    QStringList named = PagesOf(book.Contents());
    named.sort();
    EXPECT_EQ(named, Sources());
}

TEST_F(HelpBookTest, KeywordsLeadToPages) {
    const std::vector<HelpEntry> keywords = book.Keywords();
    EXPECT_FALSE(keywords.empty());
    for (const HelpEntry& keyword : keywords) {
        EXPECT_TRUE(book.Has(keyword.page.section(u'#', 0, 0))) << keyword.name.toStdString();
        EXPECT_EQ(book.PageOf(keyword.name.toUpper()).isEmpty(), false);
    }
    EXPECT_EQ(book.PageOf(u"no such word"_s), QString());
}

TEST_F(HelpBookTest, EveryLinkAndEveryPictureLeadsSomewhere) {
    const QRegularExpression link(u"<(?:a\\s+href|img\\s+src)=\"([^\"]*)\""_s,
                                  QRegularExpression::CaseInsensitiveOption);
    for (const QString& name : Sources()) {
        const QString page = Page(name);
        for (auto links = link.globalMatch(page); links.hasNext();) {
            const QString target = links.next().captured(1);
            const QString to = target.section(u'#', 0, 0).isEmpty() ? name : target.section(u'#', 0, 0);
            EXPECT_TRUE(book.Has(to)) << name.toStdString() << " leads to " << target.toStdString();
            const QString place = target.section(u'#', 1);
            EXPECT_TRUE(place.isEmpty() ||
                        Page(to).contains(u"NAME=\"%1\""_s.arg(place), Qt::CaseInsensitive))
                << name.toStdString() << " leads to " << target.toStdString();
        }
    }
}

TEST_F(HelpBookTest, EveryPageHasATitleThatTheContentsTell) {
    for (const QString& name : Sources())
        EXPECT_FALSE(HelpTitleOf(Page(name)).isEmpty()) << name.toStdString();
}

TEST_F(HelpBookTest, EveryFormHasAPage) {
    for (const FormRow& form : KnownForms())
        EXPECT_TRUE(book.Has(QString::fromLatin1(form.name) + u".html"_s)) << form.name;
}

/// The page of a menu, which is that of the menu around it where it has none of its own.
QString PageOfMenu(const HelpBook& book, const QObject* menu) {
    for (; menu; menu = menu->parent())
        if (const auto page = book.Read(menu->objectName() + u".html"_s))
            return HelpTextOf(QString::fromUtf8(*page));
    return {};
}

TEST_F(HelpBookTest, EveryMenuEntryIsToldOnThePageOfItsMenu) {
    ProgramRun run;
    run.Start();
    int entries = 0;
    for (const QMenu* menu : run.frame->menuBar()->findChildren<QMenu*>()) {
        if (menu->objectName().isEmpty())
            continue;
        const QString page = PageOfMenu(book, menu);
        EXPECT_FALSE(page.isEmpty()) << menu->objectName().toStdString();
        for (const QAction* entry : menu->actions()) {
            // Keys stand behind some captions, in words of their own.
            const QString caption =
                entry->text().remove(u'&').remove(u"..."_s).section(u"  "_s, 0, 0).trimmed();
            if (entry->isSeparator() || caption.isEmpty() || !entry->isVisible() ||
                !entry->property("Caption").isNull())
                continue;
            ++entries;
            EXPECT_TRUE(page.contains(caption))
                << menu->objectName().toStdString() << ": " << caption.toStdString();
        }
    }
    EXPECT_GT(entries, 120);
}

TEST_F(HelpBookTest, SearchFindsPagesThatHoldAllWords) {
    const auto hits = book.Search(u"five  MINUTES page"_s);
    ASSERT_FALSE(hits.empty());
    EXPECT_EQ(hits.front(), (HelpHit{u"index.html"_s, u"A first page in five minutes"_s}))
        << "a title comes first";
    EXPECT_TRUE(book.Search(u" "_s).empty());
    EXPECT_TRUE(book.Search(u"five qwertzuiop"_s).empty());
}

TEST(HelpBook, WhatIsNoHelpFileStaysClosed) {
    EXPECT_FALSE(HelpBook(QString()).IsOpen());
    EXPECT_FALSE(HelpBook(TestFolder()).IsOpen());
    QFile file(TestFolder() + u"/tarnwick.chm"_s);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("ITSF and then nothing of the kind");
    file.close();
    const HelpBook book(file.fileName());
    EXPECT_FALSE(book.IsOpen());
    EXPECT_FALSE(book.Has(u"index.html"_s));
    EXPECT_TRUE(book.Contents().empty());
    EXPECT_TRUE(book.Search(u"a"_s).empty());
}

TEST(HelpBook, TheFileIsLookedForFolderByFolder) {
    QDir(TestFolder()).mkpath(u"one"_s);
    QDir(TestFolder()).mkpath(u"two/tarnwick.chm"_s);
    QDir(TestFolder()).mkpath(u"three"_s);
    const QString path = TestFolder() + u"/three/tarnwick.chm"_s;
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(FindHelpFile({TestFolder() + u"/one"_s, TestFolder() + u"/two"_s, TestFolder() + u"/three"_s}),
              path);
    EXPECT_EQ(FindHelpFile({TestFolder() + u"/one"_s}), QString());
    EXPECT_EQ(HelpFolders().size(), 3);
}

} // namespace
