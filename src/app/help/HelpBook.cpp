#include "app/help/HelpBook.h"

#include "platform/store/ProgramFolder.h"

#include <algorithm>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace {

bool IsPage(const QString& path) {
    return path.endsWith(QStringLiteral(".html"));
}

bool HoldsAll(const QString& text, const QStringList& words) {
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace

std::vector<HelpEntry> HelpBook::EntriesIn(QLatin1String ending) const {
    for (const QString& path : file_.Paths())
        if (path.endsWith(ending))
            return HelpEntriesOf(QString::fromUtf8(file_.Read(path).value_or(QByteArray())));
    return {};
}

std::vector<HelpEntry> HelpBook::Contents() const {
    return EntriesIn(QLatin1String(".hhc"));
}

std::vector<HelpEntry> HelpBook::Keywords() const {
    std::vector<HelpEntry> keywords = EntriesIn(QLatin1String(".hhk"));
    std::stable_sort(keywords.begin(), keywords.end(), [](const HelpEntry& a, const HelpEntry& b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return keywords;
}

QString HelpBook::PageOf(const QString& keyword) const {
    for (const HelpEntry& entry : EntriesIn(QLatin1String(".hhk")))
        if (entry.name.compare(keyword, Qt::CaseInsensitive) == 0)
            return entry.page;
    return {};
}

std::vector<HelpHit> HelpBook::Search(const QString& line) const {
    const QStringList words = line.simplified().split(u' ', Qt::SkipEmptyParts);
    std::vector<HelpHit> hits;
    if (words.isEmpty())
        return hits;
    for (const QString& path : file_.Paths()) {
        if (!IsPage(path))
            continue;
        const QString page = QString::fromUtf8(file_.Read(path).value_or(QByteArray()));
        if (HoldsAll(HelpTitleOf(page) + u' ' + HelpTextOf(page), words))
            hits.push_back({path.mid(1), HelpTitleOf(page)});
    }
    std::stable_sort(hits.begin(), hits.end(), [&](const HelpHit& a, const HelpHit& b) {
        return HoldsAll(a.title, words) > HoldsAll(b.title, words);
    });
    return hits;
}

QString HelpTitleOf(const QString& page) {
    static const QRegularExpression title(QStringLiteral("<title>(.*?)</title>"),
                                          QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    return QTextDocumentFragment::fromHtml(title.match(page).captured(1)).toPlainText();
}

QString HelpTextOf(const QString& page) {
    return QTextDocumentFragment::fromHtml(page).toPlainText().simplified();
}

QString FindHelpFile(const QStringList& folders) {
    for (const QString& folder : folders) {
        const QString path = QDir(folder).filePath(QStringLiteral("tarnwick.chm"));
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}

QStringList HelpFolders() {
    const QDir program(QCoreApplication::applicationDirPath());
    return {ProgramFolder(), program.path(),
            QDir::cleanPath(program.filePath(QStringLiteral("../share/tarnwick")))};
}
