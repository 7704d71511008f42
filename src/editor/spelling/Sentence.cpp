#include "editor/spelling/Sentence.h"

#include <algorithm>

namespace {

/// How far a sentence is followed to either side.
constexpr qsizetype farthest = 160;

bool EndsSentence(QStringView text, qsizetype at) {
    static constexpr QStringView marks = u".?!";
    return marks.contains(text[at]) && (at + 1 == text.size() || text[at + 1].isSpace());
}

bool IsEmptyLine(QStringView text, qsizetype at) {
    return text.mid(at).startsWith(u"\r\n\r\n") || text.mid(at).startsWith(u"\n\n") ||
           text.mid(at).startsWith(u"\r\r");
}

qsizetype SentenceStart(QStringView text, qsizetype word) {
    qsizetype at = word;
    while (at > 0 && !EndsSentence(text, at - 1) && !IsEmptyLine(text, at - 1)) {
        if (word - at >= farthest && text[at - 1].isSpace())
            break;
        if (word - at >= 2 * farthest)
            break;
        --at;
    }
    return at;
}

qsizetype SentenceEnd(QStringView text, qsizetype wordEnd) {
    qsizetype at = wordEnd;
    while (at < text.size() && !IsEmptyLine(text, at)) {
        if (EndsSentence(text, at))
            return at + 1;
        if ((at - wordEnd >= farthest && text[at].isSpace()) || at - wordEnd >= 2 * farthest)
            break;
        ++at;
    }
    return at;
}

/// Blanks and line ends as one blank each; none at the start.
QString OnOneLine(QStringView text) {
    QString line;
    for (const QChar c : text) {
        if (!c.isSpace())
            line += c;
        else if (!line.isEmpty() && !line.endsWith(u' '))
            line += u' ';
    }
    return line;
}

} // namespace

Sentence SentenceAround(QStringView text, qsizetype start, qsizetype length) {
    const qsizetype from = SentenceStart(text, start);
    const qsizetype end = start + length;
    const QString before = OnOneLine(text.mid(from, start - from));
    QString behind = OnOneLine(text.mid(end, SentenceEnd(text, end) - end)).trimmed();
    if (end < text.size() && text[end].isSpace() && !behind.isEmpty())
        behind.prepend(u' ');
    return {before + text.mid(start, length).toString() + behind, before.size(), length};
}
