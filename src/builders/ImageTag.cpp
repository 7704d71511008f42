#include "builders/ImageTag.h"

#include "builders/BuildTag.h"

QString ImageTag(const ImageFields& fields, TagCase tagCase) {
    const QString tag = BuildTag(QStringLiteral("<IMG"),
                                 {TagPart::Quoted(QStringLiteral("ALT"), fields.alt),
                                  TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                                  TagPart::Plain(QStringLiteral("HEIGHT"), fields.height),
                                  TagPart::Plain(QStringLiteral("HSPACE"), fields.hSpace),
                                  TagPart::Plain(QStringLiteral("VSPACE"), fields.vSpace),
                                  TagPart::Plain(QStringLiteral("BORDER"), fields.border),
                                  TagPart::Quoted(QStringLiteral("LOWSRC"), fields.lowSrc),
                                  TagPart::Quoted(QStringLiteral("SRC"), fields.url),
                                  TagPart::Quoted(QStringLiteral("USEMAP"), u'#' + fields.useMap),
                                  TagPart::Word(QStringLiteral(" ISMAP"), fields.isMap)},
                                 tagCase);
    if (fields.linkMe.isEmpty())
        return tag;
    // The "=" belongs to the name here, and a second one comes with the value.
    return BuildAttribute(TagPart::Quoted(QStringLiteral("<A HREF="), fields.linkMe), tagCase).text + u'>' +
           tag + InCase(QStringLiteral("</A>"), tagCase);
}
