#include "tools/links/LinkScan.h"

#include <optional>
#include <QSet>

namespace {

/// Behind the scheme and the two slashes of an address that has them.
constexpr qsizetype behindScheme = 8;

/// The ends of ".htm" and of ".html".
bool EndsInFileName(QStringView text) {
    const auto isPeriod = [&](qsizetype fromEnd) {
        return text.size() >= fromEnd && text[text.size() - fromEnd] == u'.';
    };
    return isPeriod(4) || isPeriod(5);
}

/// Only these schemes are shown.
std::optional<LinkImage> ImageOf(QStringView scheme) {
    if (scheme == u"http" || scheme == u"file")
        return LinkImage::Web;
    if (scheme == u"mailto")
        return LinkImage::Mail;
    if (scheme == u"ftp")
        return LinkImage::Ftp;
    return std::nullopt;
}

std::optional<PageLink> LinkOf(const QString& link, const LinkBase& base) {
    const qsizetype colon = link.indexOf(u':');
    if (colon < 0)
        return PageLink{base.Address(link), link, LinkImage::Page};
    const auto image = ImageOf(QStringView(link).first(colon));
    return image ? std::optional(PageLink{link, link, *image}) : std::nullopt;
}

} // namespace

AttributeValue FindAttributeValue(QStringView name, QStringView text, qsizetype position) {
    const qsizetype word = text.indexOf(name, position - 1);
    if (word < 0)
        return {};
    const qsizetype quote = text.indexOf(u'"', word);
    if (quote < 0)
        return {.position = 1};
    const qsizetype first = quote + 1;
    const qsizetype behind = text.indexOf(u'"', first);
    if (behind < 0)
        return {.position = first + 1, .end = -1};
    QString value = text.sliced(first, behind - first).toString();
    if (!value.endsWith(u'/') && !EndsInFileName(value))
        value += u'/';
    return {.found = true, .position = first + 1, .end = behind, .value = value};
}

LinkBase::LinkBase(const QString& page) : base(page.toLower()) {
    if (EndsInFileName(base))
        base.truncate(base.lastIndexOf(u'/') + 1);
    root = base.left(base.indexOf(u'/', behindScheme - 1));
}

QString LinkBase::Address(const QString& link) const {
    return (link.startsWith(u'/') ? root : base) + link;
}

std::vector<PageLink> ExtractLinks(const QString& page, const QString& text) {
    const LinkBase base(page);
    const QString lower = text.toLower();
    QSet<QString> keys{page};
    std::vector<PageLink> links;
    for (qsizetype position = 1; position >= 1;) {
        const AttributeValue value = FindAttributeValue(u"href", lower, position);
        if (!value.found)
            break;
        position = value.position;
        auto link = LinkOf(value.value, base);
        if (!link || keys.contains(link->key))
            continue;
        keys.insert(link->key);
        links.push_back(std::move(*link));
    }
    return links;
}
