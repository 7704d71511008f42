#include "editor/spelling/Address.h"

#include <algorithm>

namespace {

bool IsNameCharacter(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'-';
}

QStringView WithoutPunctuation(QStringView stretch) {
    static const auto counts = [](QChar c) { return IsNameCharacter(c) || c == u'/' || c == u'~'; };
    qsizetype start = 0;
    while (start < stretch.size() && !counts(stretch[start]) && stretch[start] != u'.')
        ++start;
    qsizetype end = stretch.size();
    while (end > start && !counts(stretch[end - 1]))
        --end;
    return stretch.mid(start, end - start);
}

bool IsPath(QStringView name) {
    for (const QStringView root : {u"/", u"~/", u"./", u"../"})
        if (name.startsWith(root) && name.size() > root.size() && IsNameCharacter(name[root.size()]))
            return true;
    return name.startsWith(u"~/.") || name.contains(u'\\');
}

bool IsMail(QStringView name) {
    const qsizetype at = name.indexOf(u'@');
    return at > 0 && at + 1 < name.size() && IsNameCharacter(name[at - 1]) && IsNameCharacter(name[at + 1]);
}

/// A dot that belongs to a name: between its characters, and no sentence ends there.
bool HasInnerDot(QStringView name) {
    bool dot = false;
    for (qsizetype i = 1; i + 1 < name.size(); ++i) {
        if (name[i] != u'.' || !IsNameCharacter(name[i - 1]) || !IsNameCharacter(name[i + 1]))
            continue;
        if (!name[i + 1].isUpper())
            return true;
        dot = true;
    }
    return dot && std::ranges::none_of(name, [](QChar c) { return c.isLower(); });
}

} // namespace

bool IsAddress(QStringView stretch) {
    const QStringView name = WithoutPunctuation(stretch);
    return name.contains(u"://") || name.startsWith(u"www.", Qt::CaseInsensitive) || IsPath(name) ||
           IsMail(name) || HasInnerDot(name);
}
