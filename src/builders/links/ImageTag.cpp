#include "builders/links/ImageTag.h"

#include "dialogs/BuildTag.h"
#include "dialogs/TagValue.h"

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

ImageFields ImageFieldsOf(const QString& tag) {
    return {
        // The blank keeps LOWSRC out.
        .url = QuotedValue(tag, u" src=\""),
        .lowSrc = QuotedValue(tag, u"lowsrc=\""),
        .alt = QuotedValue(tag, u"alt=\""),
        .width = PlainValue(tag, u"width="),
        .height = PlainValue(tag, u"height="),
        .hSpace = PlainValue(tag, u"hspace="),
        .vSpace = PlainValue(tag, u"vspace="),
        .border = PlainValue(tag, u"border="),
        .align = PlainValue(tag, u"align="),
        .useMap = QuotedValue(tag, u"usemap=\"#"),
        .isMap = tag.contains(u"ismap", Qt::CaseInsensitive),
    };
}
