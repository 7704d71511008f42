// What the Font dialog computes: its tag, and the face field as faces are added.
#include "builders/FontTag.h"

#include "builders/BuildTag.h"
#include "editor/InsertTag.h"

TagPair FontTag(Frame& frame, const FontFields& fields) {
    return {BuildTag(frame, QStringLiteral("<FONT"),
                     {TagPart::Plain(QStringLiteral("SIZE"), fields.size),
                      TagPart::Plain(QStringLiteral("COLOR"), fields.color),
                      TagPart::Quoted(QStringLiteral("FACE"), fields.face)}),
            BuildBare(frame, QStringLiteral("</FONT>"))};
}

QString WithFace(const QString& faces, const QString& name) {
    return faces.isEmpty() ? name : faces + QStringLiteral(", ") + name;
}
