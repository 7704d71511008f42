// What the Image dialog computes: an image tag, bare or wrapped in a link.
#include "builders/ImageTag.h"

#include "builders/BuildTag.h"
#include "editor/InsertTag.h"

QString ImageTag(Frame& frame, const ImageFields& fields) {
    const QString tag = BuildTag(frame, QStringLiteral("<IMG"),
                                 {TagPart::Quoted(QStringLiteral("ALT"), fields.alt),
                                  TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                                  TagPart::Plain(QStringLiteral("HEIGHT"), fields.height),
                                  TagPart::Plain(QStringLiteral("HSPACE"), fields.hSpace),
                                  TagPart::Plain(QStringLiteral("VSPACE"), fields.vSpace),
                                  TagPart::Plain(QStringLiteral("BORDER"), fields.border),
                                  TagPart::Quoted(QStringLiteral("LOWSRC"), fields.lowSrc),
                                  TagPart::Quoted(QStringLiteral("SRC"), fields.url),
                                  TagPart::Quoted(QStringLiteral("USEMAP"), u'#' + fields.useMap),
                                  TagPart::Word(QStringLiteral(" ISMAP"), fields.isMap)});
    if (fields.linkMe.isEmpty())
        return tag;
    // The "=" belongs to the name here, and a second one comes with the value.
    return BuildAttribute(frame, QStringLiteral("<A HREF="), fields.linkMe, true) + u'>' + tag +
           BuildBare(frame, QStringLiteral("</A>"));
}
