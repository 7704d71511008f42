#include "app/recovery/RecoverQuestion.h"

using namespace Qt::StringLiterals;

namespace {

// So many lines a small screen has room for, and so many characters a line of the box.
constexpr qsizetype mostLines = 6;
constexpr qsizetype longestPath = 56;
constexpr qsizetype headOfPath = 16;

/// The name stands at the end, and the folders that tell pages of one name apart are mostly next to it.
QString Shortened(const QString& path) {
    if (path.size() <= longestPath)
        return path;
    return path.left(headOfPath) + u'\u2026' + path.right(longestPath - headOfPath - 1);
}

QString Line(const QString& path) {
    return path.isEmpty() ? u"a page without a file"_s : Shortened(path);
}

} // namespace

QString RecoverQuestion(const QStringList& paths) {
    const bool isOne = paths.size() == 1;
    QStringList lines{isOne ? u"Recover a page that was not saved?"_s
                            : u"Recover %1 pages that were not saved?"_s.arg(paths.size()),
                      QString()};
    const qsizetype named = paths.size() <= mostLines ? paths.size() : mostLines - 1;
    for (const QString& path : paths.first(named))
        lines << Line(path);
    if (named < paths.size())
        lines << u"and %1 more"_s.arg(paths.size() - named);
    lines << QString() << u"No gives %1 changes up for good."_s.arg(isOne ? u"its"_s : u"their"_s);
    return lines.join(u"\r\n"_s);
}
