#include "platform/values/ReplaceAll.h"

#include <algorithm>
#include <QStringMatcher>
#include <vector>

namespace {

/// Where the matches are that do not overlap.
std::vector<qsizetype> Matches(const QString& text, const QString& find, Qt::CaseSensitivity sensitivity) {
    std::vector<qsizetype> matches;
    const auto collect = [&](const auto& next) {
        for (qsizetype at = next(0); at >= 0; at = next(at + find.size()))
            matches.push_back(at);
    };
    if (find.size() == 1 && sensitivity == Qt::CaseSensitive) {
        collect([&](qsizetype from) { return text.indexOf(find.front(), from); });
    } else {
        const QStringMatcher matcher(find, sensitivity);
        collect([&](qsizetype from) { return matcher.indexIn(text, from); });
    }
    return matches;
}

} // namespace

QString ReplaceAll(const QString& text, const QString& find, const QString& replacement,
                   Qt::CaseSensitivity sensitivity) {
    if (find.isEmpty())
        return text;
    const std::vector<qsizetype> matches = Matches(text, find, sensitivity);
    if (matches.empty())
        return text;
    const auto count = static_cast<qsizetype>(matches.size());
    // QString's own replace moves the rest of the text once for every thousand matches.
    QString result(text.size() + count * (replacement.size() - find.size()), Qt::Uninitialized);
    QChar* to = result.data();
    const QChar* from = text.constData();
    for (const qsizetype match : matches) {
        to = std::copy(from, text.constData() + match, to);
        to = std::copy(replacement.cbegin(), replacement.cend(), to);
        from = text.constData() + match + find.size();
    }
    std::copy(from, text.constData() + text.size(), to);
    return result;
}
