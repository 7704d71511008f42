// Reading a tag back: the attributes that a dialog has fields for, by plain search.
#include "builders/TagParser.h"

#include <algorithm>

namespace {

constexpr int ChunkLength = 4096;

/// The nearest angle bracket left of a position, or -1.
int BracketBefore(int position, const TextReader& read, bool& opens) {
    for (int end = position; end > 0; end -= std::min(end, ChunkLength)) {
        const int start = std::max(0, end - ChunkLength);
        const QString chunk = read(start, end - start);
        for (qsizetype i = chunk.size() - 1; i >= 0; --i) {
            if (chunk[i] == u'<' || chunk[i] == u'>') {
                opens = chunk[i] == u'<';
                return start + static_cast<int>(i);
            }
        }
    }
    return -1;
}

/// The first ">" from a position on, or -1.
int CloseFrom(int position, const TextReader& read) {
    for (int start = position;; start += ChunkLength) {
        const QString chunk = read(start, ChunkLength);
        if (const qsizetype found = chunk.indexOf(u'>'); found >= 0)
            return start + static_cast<int>(found);
        if (chunk.size() < ChunkLength)
            return -1;
    }
}

TagKey Row(const char* key, const char* terminator, const char* field) {
    return {QString::fromLatin1(key), QString::fromLatin1(terminator), QString::fromLatin1(field)};
}

bool Holds(const QString& tag, const char* text) {
    return tag.contains(QLatin1String(text), Qt::CaseInsensitive);
}

} // namespace

std::optional<TagPlace> FindTagAround(int caret, const TextReader& read) {
    bool opens = false;
    const int bracket = BracketBefore(caret, read, opens);
    if (bracket < 0)
        return TagPlace{caret, 0};
    if (!opens)
        return std::nullopt;
    const int close = CloseFrom(bracket, read);
    if (close < 0)
        return std::nullopt;
    return TagPlace{bracket, close - bracket + 1};
}

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
