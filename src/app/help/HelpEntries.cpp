#include "app/help/HelpEntries.h"

#include <QRegularExpression>

namespace {

QString Plain(QString value) {
    value.replace(QStringLiteral("&lt;"), QStringLiteral("<"))
        .replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    value.replace(QStringLiteral("&quot;"), QStringLiteral("\""));
    return value.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
}

/// The value that an object gives a name; empty where it gives none.
QString ParamOf(const QString& object, const QString& name) {
    const QRegularExpression param(QStringLiteral("<param\\s+name=\"%1\"\\s+value=\"([^\"]*)\"").arg(name),
                                   QRegularExpression::CaseInsensitiveOption);
    return Plain(param.match(object).captured(1));
}

} // namespace

std::vector<HelpEntry> HelpEntriesOf(const QString& sitemap) {
    static const QRegularExpression part(QStringLiteral("<ul>|</ul>|<object\\b.*?</object>"),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::DotMatchesEverythingOption);
    // The lists that are open, the innermost last: an entry of one takes the list behind it for its children.
    HelpEntry root;
    std::vector<HelpEntry*> open;
    for (auto parts = part.globalMatch(sitemap); parts.hasNext();) {
        const QString text = parts.next().captured();
        if (text.startsWith(u"<ul", Qt::CaseInsensitive)) {
            HelpEntry* outer = open.empty() ? nullptr : open.back();
            const bool isTop = !outer || outer->children.empty();
            open.push_back(isTop ? (outer ? outer : &root) : &outer->children.back());
        } else if (text.startsWith(u"</ul", Qt::CaseInsensitive)) {
            if (!open.empty())
                open.pop_back();
        } else if (!open.empty()) {
            const HelpEntry entry{ParamOf(text, QStringLiteral("Name")),
                                  ParamOf(text, QStringLiteral("Local"))};
            if (!entry.name.isEmpty())
                open.back()->children.push_back(entry);
        }
    }
    return root.children;
}
