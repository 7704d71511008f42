#include "dialogs/TagValue.h"

namespace {

QString ValueUpTo(QChar terminator, const QString& tag, QStringView key) {
    const qsizetype found = tag.indexOf(key, 0, Qt::CaseInsensitive);
    if (found < 0)
        return {};
    const qsizetype start = found + key.size();
    const qsizetype next = tag.indexOf(terminator, start);
    const qsizetype end = next < 0 ? tag.size() - 1 : next;
    return tag.mid(start, qMax<qsizetype>(0, end - start));
}

} // namespace

QString QuotedValue(const QString& tag, QStringView key) {
    return ValueUpTo(u'"', tag, key);
}

QString PlainValue(const QString& tag, QStringView key) {
    return ValueUpTo(u' ', tag, key);
}
