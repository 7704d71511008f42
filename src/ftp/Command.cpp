#include "ftp/Command.h"

#include <optional>
#include <QRegularExpression>

namespace {

QString WithoutPadding(QString text) {
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

QString WithoutQuotes(const QString& text) {
    const bool quoted = text.size() > 1 && text.startsWith(u'"') && text.endsWith(u'"');
    return quoted ? text.mid(1, text.size() - 2) : text;
}

/// A quote ends the local name if a blank or nothing follows it.
bool CanEnd(const QString& rest, qsizetype quote) {
    return quote + 1 == rest.size() || rest[quote + 1] == u' ';
}

PutNames ReadQuoted(const QString& rest) {
    std::optional<PutNames> first;
    for (qsizetype quote = rest.indexOf(u'"', 1); quote > 0; quote = rest.indexOf(u'"', quote + 1)) {
        if (!CanEnd(rest, quote))
            continue;
        const QString local = WithoutPadding(rest.mid(1, quote - 1));
        const QString remote = rest.mid(quote + 1).trimmed();
        if (!remote.isEmpty() && remote == OwnName(local).trimmed())
            return {local, remote};
        if (!first)
            first = {local, WithoutQuotes(remote)};
    }
    return first.value_or(PutNames{WithoutPadding(rest.mid(1)), QString()});
}

PutNames ReadUnquoted(const QString& rest) {
    const qsizetype blank = rest.indexOf(u' ');
    return blank < 0 ? PutNames{rest, QString()}
                     : PutNames{rest.left(blank), WithoutQuotes(rest.mid(blank).trimmed())};
}

} // namespace

Command ReadCommand(const QString& line) {
    const QString text = line.trimmed();
    static const QRegularExpression blank(QStringLiteral("\\s"));
    const qsizetype end = text.indexOf(blank);
    return end < 0 ? Command{text.toLower(), QString()}
                   : Command{text.left(end).toLower(), text.mid(end).trimmed()};
}

QString NameIn(const QString& rest) {
    return WithoutQuotes(rest);
}

QStringList Words(const QString& text) {
    static const QRegularExpression word(QStringLiteral("\"([^\"]*)\"?|(\\S+)"));
    QStringList words;
    for (auto matches = word.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        words << (match.capturedStart(2) >= 0 ? match.captured(2) : match.captured(1));
    }
    return words;
}

PutNames ReadPutNames(const QString& rest) {
    PutNames names = rest.startsWith(u'"') ? ReadQuoted(rest) : ReadUnquoted(rest);
    if (names.remote.isEmpty())
        names.remote = OwnName(names.local);
    return names;
}

QString OwnName(const QString& path) {
    const QChar separator = path.contains(u'/') || !path.contains(u'\\') ? u'/' : u'\\';
    return path.mid(path.lastIndexOf(separator) + 1);
}
