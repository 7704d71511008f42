#include "builders/page/ColumnTags.h"

#include "dialogs/BuildTag.h"

QString SpacerTag(const SpacerFields& fields, TagCase tagCase) {
    QVector<TagPart> parts;
    switch (fields.kind) {
    case SpacerKind::None:
        break;
    case SpacerKind::Horizontal:
        parts = {TagPart::Word(QStringLiteral("HORIZONTAL")),
                 TagPart::Plain(QStringLiteral("SIZE"), fields.size)};
        break;
    case SpacerKind::Vertical:
        parts = {TagPart::Word(QStringLiteral("VERTICAL")),
                 TagPart::Plain(QStringLiteral("SIZE"), fields.size)};
        break;
    case SpacerKind::Block:
        parts = {TagPart::Word(QStringLiteral("BLOCK")),
                 TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                 TagPart::Plain(QStringLiteral("HEIGHT"), fields.height),
                 TagPart::Plain(QStringLiteral("ALIGN"), fields.align)};
        break;
    }
    return BuildTag(QStringLiteral("<SPACER TYPE="), parts, tagCase);
}

TagPair MultiColumnTag(const MultiColumnFields& fields, TagCase tagCase) {
    return {BuildTag(QStringLiteral("<MULTICOL"),
                     {TagPart::Plain(QStringLiteral("COLS"), fields.cols),
                      TagPart::Plain(QStringLiteral("GUTTER"), fields.gutter),
                      TagPart::Plain(QStringLiteral("WIDTH"), fields.width)},
                     tagCase),
            InCase(QStringLiteral("</MULTICOL>"), tagCase)};
}
