// What the two dialogs for applets compute. No value is quoted, not even one that holds a blank.
#include "builders/AppletTags.h"

#include "builders/BuildTag.h"
#include "editor/InsertTag.h"

TagPair AppletTag(Frame& frame, const AppletFields& fields) {
    return {BuildTag(frame, QStringLiteral("<APPLET"),
                     {TagPart::Plain(QStringLiteral("CODEBASE"), fields.codeBase),
                      TagPart::Plain(QStringLiteral("CODE"), fields.code),
                      TagPart::Plain(QStringLiteral("WIDTH"), fields.width),
                      TagPart::Plain(QStringLiteral("HEIGHT"), fields.height),
                      TagPart::Plain(QStringLiteral("ALT"), fields.alt),
                      TagPart::Plain(QStringLiteral("NAME"), fields.name),
                      TagPart::Plain(QStringLiteral("VSPACE"), fields.vSpace),
                      TagPart::Plain(QStringLiteral("HSPACE"), fields.hSpace),
                      TagPart::Plain(QStringLiteral("ALIGN"), fields.align)}),
            QStringLiteral("\r\n") + BuildBare(frame, QStringLiteral("</APPLET>"))};
}

QString ParamTag(Frame& frame, const QString& name, const QString& value) {
    return BuildTag(
        frame, QStringLiteral("<PARAM"),
        {TagPart::Plain(QStringLiteral("NAME"), name), TagPart::Plain(QStringLiteral("VALUE"), value)});
}
