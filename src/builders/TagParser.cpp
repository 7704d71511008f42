// Reading a tag back: the attributes that a dialog has fields for, by plain search.
#include "builders/TagParser.h"

namespace {

TagKey Row(const char* key, const char* terminator, const char* field) {
    return {QString::fromLatin1(key), QString::fromLatin1(terminator), QString::fromLatin1(field)};
}

bool Holds(const QString& tag, const char* text) {
    return tag.contains(QLatin1String(text), Qt::CaseInsensitive);
}

} // namespace

TagKind KindOfTag(const QString& tag) {
    if (Holds(tag, "img "))
        return TagKind::Image;
    if (Holds(tag, "body"))
        return TagKind::Body;
    return Holds(tag, "embed") ? TagKind::Embed : TagKind::None;
}

const QVector<TagKey>& ImageKeys() {
    static const QVector<TagKey> keys{
        Row("alt=\"", "\"", "txtALT"),       Row("width=", " ", "txtWidth"),
        Row("height=", " ", "txtHeight"),    Row("hspace=", " ", "txtHSpace"),
        Row("vspace=", " ", "txtVSpace"),    Row("border=", " ", "txtBorder"),
        Row("lowsrc=\"", "\"", "txtLowSRC"), Row("align=", " ", "cboAlign"),
        Row(" src=\"", "\"", "txtURL"),      Row("usemap=\"#", "\"", "txtUseMap"),
    };
    return keys;
}

const QVector<TagKey>& EmbedKeys() {
    static const QVector<TagKey> keys{
        Row("width=", " ", "txtWidth"),
        Row("height=", " ", "txtHeight"),
        Row("palette=", " ", "cboPalette"),
        Row(" src=\"", "\"", "txtURL"),
    };
    return keys;
}

QString TagValue(const QString& tag, const TagKey& key) {
    const qsizetype found = tag.indexOf(key.key, 0, Qt::CaseInsensitive);
    if (found < 0)
        return {};
    const qsizetype start = found + key.key.size();
    const qsizetype terminator = tag.indexOf(key.terminator, start, Qt::CaseInsensitive);
    const qsizetype end = terminator < 0 ? tag.size() - 1 : terminator;
    return tag.mid(start, qMax<qsizetype>(0, end - start));
}

bool HasIsMap(const QString& tag) {
    return Holds(tag, "ismap");
}
