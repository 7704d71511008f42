// What the Spacer and MultiColumn dialogs compute.
#include "builders/ColumnTags.h"

#include "builders/BuildTag.h"
#include "editor/InsertTag.h"

QString SpacerTag(Frame& frame, const SpacerFields& fields) {
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
    return BuildTag(frame, QStringLiteral("<SPACER TYPE="), parts);
}

TagPair MultiColumnTag(Frame& frame, const QString& cols, const QString& gutter, const QString& width) {
    return {BuildTag(frame, QStringLiteral("<MULTICOL"),
                     {TagPart::Plain(QStringLiteral("COLS"), cols),
                      TagPart::Plain(QStringLiteral("GUTTER"), gutter),
                      TagPart::Plain(QStringLiteral("WIDTH"), width)}),
            BuildBare(frame, QStringLiteral("</MULTICOL>"))};
}
