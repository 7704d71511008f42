// The help as it is built: every page, every link and every picture, and a page for whatever asks for one.
#include "app/help/HelpBook.h"

#include "app/help/HelpFile.h"
#include "app/RealFrame.h"
#include "app/surface/Toolbar.h"
#include "app/window/KnownForms.h"
#include "platform/store/SettingsKeys.h"
#include "support/SourceFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QXmlStreamReader>

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
    for (const HelpEntry& keyword : keywords)
        EXPECT_TRUE(book.Has(keyword.page.section(u'#', 0, 0))) << keyword.name.toStdString();
    EXPECT_EQ(book.PageOf(keywords.front().name.toUpper()), keywords.front().page);
    EXPECT_EQ(book.PageOf(keywords.back().name.toUpper()), keywords.back().page);
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

TEST_F(HelpBookTest, EveryButtonOfTheToolbarIsToldOnItsPage) {
    const QString page = Page(u"toolbar.html"_s);
    for (const ToolbarRow& button : ToolbarTable())
        EXPECT_TRUE(page.contains(u"<TR><TD>%1</TD>"_s.arg(QLatin1String(button.toolTip)))) << button.toolTip;
}

TEST_F(HelpBookTest, EveryShortcutOfTheMenusIsInTheTableOfKeys) {
    const QString keys = HelpTextOf(Page(u"keys.html"_s));
    ProgramRun run;
    run.Start();
    int shortcuts = 0;
    for (const QAction* entry : run.frame->menuBar()->findChildren<QAction*>())
        if (const QString key = entry->shortcut().toString(QKeySequence::PortableText); !key.isEmpty()) {
            ++shortcuts;
            const QRegularExpression word(u"(?<![+\\w])%1(?!\\w)"_s.arg(QRegularExpression::escape(key)));
            EXPECT_TRUE(keys.contains(word)) << key.toStdString();
        }
    EXPECT_GT(shortcuts, 20);
}

/// The names of the settings as the sources declare them: one for each row of numbered ones.
QStringList DeclaredSettings() {
    QStringList names;
    for (const auto& [file, pattern] :
         {std::pair(u"SettingsKeys.h"_s, u"In\\(\"[^\"]+\",\\s*\"([^\"]+)\""_s),
          std::pair(
              u"SettingsKeys.cpp"_s,
              u"QStringLiteral\\(\"(?!Window Options|SpellCheck)(\\w+(?:\\(%1[^\"]*\\)|%1)?)\"\\)"_s)}) {
        QFile source(SourceFolder() + u"/src/platform/store/"_s + file);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(source.readAll());
        for (auto all = QRegularExpression(pattern).globalMatch(text); all.hasNext();)
            names << all.next().captured(1).replace(u"%1"_s, u"0"_s);
    }
    return names;
}

TEST_F(HelpBookTest, EverySettingIsToldOnThePageOfFiles) {
    const QString page = HelpTextOf(Page(u"files.html"_s));
    const QStringList names = DeclaredSettings();
    EXPECT_GT(names.size(), 50);
    EXPECT_TRUE(names.contains(Keys::Dir(0).key) && names.contains(Keys::CustomDic().key) &&
                names.contains(Keys::ProjFile(0).key));
    const QRegularExpression row(u"^(TextColor|EdTextColor)[1-4]$"_s);
    for (const QString& name : names)
        EXPECT_TRUE(row.match(name).hasMatch() || page.contains(name)) << name.toStdString();
    EXPECT_TRUE(page.contains(Keys::DateList.key));
}

/// The words that a form's design shows: of labels, boxes, buttons and frames.
QStringList CaptionsOf(const QString& form) {
    QDirIterator files(SourceFolder() + u"/src"_s, {form + u".ui"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    if (!files.hasNext())
        return {};
    QFile file(files.next());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader design(&file);
    QStringList captions, within;
    while (!design.atEnd()) {
        design.readNext();
        if (design.isEndElement())
            within.removeLast();
        if (!design.isStartElement())
            continue;
        const auto name = design.attributes().value(u"name"_s);
        // The entries of a list are values, no captions.
        if (design.name() == u"property"_s && (name == u"text"_s || name == u"title"_s) &&
            within.last() != u"item"_s) {
            design.readNextStartElement();
            captions << design.readElementText();
            design.skipCurrentElement();
        } else {
            within << design.name().toString();
        }
    }
    return captions;
}

TEST_F(HelpBookTest, EveryCaptionOfADialogIsToldOnItsPage) {
    const QString paths = HelpTextOf(Page(u"frmBody.html"_s));
    int told = 0;
    for (const FormRow& form : KnownForms()) {
        const QString name = QString::fromLatin1(form.name);
        const QString source = Page(name + u".html"_s);
        const QString page = HelpTextOf(source) + (source.contains(u"#paths"_s) ? paths : QString());
        for (QString caption : CaptionsOf(name)) {
            // What a field is called, without the rest of its label.
            caption = caption.remove(QRegularExpression(u"&|^< | >$"_s))
                          .section(u" ("_s, 0, 0)
                          .section(u":"_s, 0, 0)
                          .trimmed();
            if (QStringList{u""_s, u"OK"_s, u"Cancel"_s, u"Browse..."_s}.contains(caption))
                continue;
            ++told;
            EXPECT_TRUE(page.contains(caption.remove(u"..."_s)))
                << name.toStdString() << ": " << caption.toStdString();
        }
    }
    EXPECT_GT(told, 150);
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
