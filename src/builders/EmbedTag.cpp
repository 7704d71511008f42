// What the Embed dialog computes.
#include "builders/EmbedTag.h"

#include "builders/BuildTag.h"

QString EmbedTag(Frame& frame, const EmbedFields& fields) {
    return BuildTag(frame, QStringLiteral("<EMBED"),
                    {TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                     TagPart::Plain(QStringLiteral("HEIGHT"), fields.height),
                     TagPart::Plain(QStringLiteral("PALETTE"), fields.palette),
                     TagPart::Quoted(QStringLiteral("SRC"), fields.url)});
}
