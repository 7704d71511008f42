#include "builders/applets/EmbedTag.h"

#include "dialogs/BuildTag.h"
#include "dialogs/TagValue.h"

QString EmbedTag(const EmbedFields& fields, TagCase tagCase) {
    return BuildTag(QStringLiteral("<EMBED"),
                    {TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                     TagPart::Plain(QStringLiteral("HEIGHT"), fields.height),
                     TagPart::Plain(QStringLiteral("PALETTE"), fields.palette),
                     TagPart::Quoted(QStringLiteral("SRC"), fields.url)},
                    tagCase);
}

EmbedFields EmbedFieldsOf(const QString& tag) {
    return {.width = PlainValue(tag, u"width="),
            .height = PlainValue(tag, u"height="),
            .palette = PlainValue(tag, u"palette="),
            .url = QuotedValue(tag, u" src=\"")};
}
