#include "builders/page/FontTag.h"

#include "dialogs/BuildTag.h"

TagPair FontTag(const FontFields& fields, TagCase tagCase) {
    return {BuildTag(QStringLiteral("<FONT"),
                     {TagPart::Plain(QStringLiteral("SIZE"), fields.size),
                      TagPart::Plain(QStringLiteral("COLOR"), fields.color),
                      TagPart::Quoted(QStringLiteral("FACE"), fields.face)},
                     tagCase),
            InCase(QStringLiteral("</FONT>"), tagCase)};
}

QString WithFace(const QString& faces, const QString& name) {
    return faces.isEmpty() ? name : faces + QStringLiteral(", ") + name;
}
