#include "builders/applets/AppletTags.h"

#include "dialogs/BuildTag.h"

TagPair AppletTag(const AppletFields& fields, TagCase tagCase) {
    return {BuildTag(QStringLiteral("<APPLET"),
                     {TagPart::Plain(QStringLiteral("CODEBASE"), fields.codeBase),
                      TagPart::Plain(QStringLiteral("CODE"), fields.code),
                      TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                      TagPart::Plain(QStringLiteral("HEIGHT"), fields.height),
                      TagPart::Plain(QStringLiteral("ALT"), fields.alt),
                      TagPart::Plain(QStringLiteral("NAME"), fields.name),
                      TagPart::Plain(QStringLiteral("VSPACE"), fields.vSpace),
                      TagPart::Plain(QStringLiteral("HSPACE"), fields.hSpace),
                      TagPart::Plain(QStringLiteral("ALIGN"), fields.align)},
                     tagCase),
            QStringLiteral("\r\n") + InCase(QStringLiteral("</APPLET>"), tagCase)};
}

QString ParamTag(const ParamFields& fields, TagCase tagCase) {
    return BuildTag(QStringLiteral("<PARAM"),
                    {TagPart::Plain(QStringLiteral("NAME"), fields.name),
                     TagPart::Plain(QStringLiteral("VALUE"), fields.value)},
                    tagCase);
}
