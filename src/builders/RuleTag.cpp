// What the Horizontal Rule dialog computes.
#include "builders/RuleTag.h"

#include "builders/BuildTag.h"

QString RuleTag(Frame& frame, const RuleFields& fields) {
    return BuildTag(frame, QStringLiteral("<HR"),
                    {TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                     TagPart::Word(QStringLiteral("%"), fields.percent),
                     TagPart::Plain(QStringLiteral("SIZE"), fields.thickness),
                     TagPart::Plain(QStringLiteral("ALIGN"), fields.align),
                     TagPart::Word(QStringLiteral(" NOSHADE"), fields.noShade)});
}
