// What the Font dialog computes: its tag, its list of faces, and the face field as faces are added.
#include "builders/FontTag.h"

#include "builders/BuildTag.h"
#include "editor/InsertTag.h"

#include <algorithm>

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

QStringList FaceNames(const QStringList& families) {
    QStringList names;
    names.reserve(families.size());
    for (const QString& family : families) {
        const qsizetype maker = family.lastIndexOf(QStringLiteral(" ["));
        names << (maker > 0 && family.endsWith(u']') ? family.left(maker) : family);
    }
    std::ranges::sort(names, [](const QString& a, const QString& b) {
        const int order = a.compare(b, Qt::CaseInsensitive);
        return order != 0 ? order < 0 : a < b;
    });
    names.removeDuplicates();
    return names;
}
