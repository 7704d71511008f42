#include "builders/page/BodyTag.h"

#include "dialogs/BuildTag.h"

namespace {

QString ColorAfter(const QString& document, const QString& word) {
    const qsizetype at = document.indexOf(word, 0, Qt::CaseInsensitive);
    const qsizetype hash = at < 0 ? -1 : document.indexOf(u'#', at);
    return hash < 0 ? QString() : document.mid(hash, 7);
}

} // namespace

QString BodyTag(const BodyFields& fields, TagCase tagCase) {
    return BuildTag(QStringLiteral("<BODY"),
                    {TagPart::Quoted(QStringLiteral("BGCOLOR"), fields.bg),
                     TagPart::Quoted(QStringLiteral("TEXT"), fields.text),
                     TagPart::Quoted(QStringLiteral("LINK"), fields.link),
                     TagPart::Quoted(QStringLiteral("VLINK"), fields.vlink),
                     TagPart::Quoted(QStringLiteral("ALINK"), fields.alink),
                     TagPart::Quoted(QStringLiteral("BACKGROUND"), fields.background)},
                    tagCase);
}

BodyFields BodyColorsOf(const QString& document) {
    return {ColorAfter(document, QStringLiteral("BGCOLOR")), ColorAfter(document, QStringLiteral("TEXT")),
            // The blank keeps VLINK and ALINK out.
            ColorAfter(document, QStringLiteral(" LINK")), ColorAfter(document, QStringLiteral("VLINK")),
            ColorAfter(document, QStringLiteral("ALINK")), QString()};
}
