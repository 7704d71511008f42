#include "builders/page/RuleTag.h"

#include "dialogs/BuildTag.h"

QString RuleTag(const RuleFields& fields, TagCase tagCase) {
    return BuildTag(QStringLiteral("<HR"),
                    {TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                     TagPart::Word(QStringLiteral("%"), fields.percent),
                     TagPart::Plain(QStringLiteral("SIZE"), fields.thickness),
                     TagPart::Plain(QStringLiteral("ALIGN"), fields.align),
                     TagPart::Word(QStringLiteral(" NOSHADE"), fields.noShade)},
                    tagCase);
}
