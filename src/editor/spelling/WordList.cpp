#include "editor/spelling/WordList.h"

#include "platform/store/WholeFile.h"
#include "platform/values/Cp1252.h"

#include <algorithm>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

namespace {

bool IsText(const QByteArray& bytes) {
    return !bytes.contains('\0');
}

QString Decoded(const QByteArray& bytes) {
    // Stateless, or a letter cut off at the end would count for none at all.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    return decoder.hasError() ? Cp1252::FromBytes(bytes) : text;
}

QString WordOf(const QString& line) {
    static const QRegularExpression tail(QStringLiteral("[/\t].*"));
    const QString word = QString(line).remove(tail).trimmed();
    const bool any = std::ranges::any_of(word, [](QChar c) { return c.isLetter() || c.isSurrogate(); });
    return any ? word : QString();
}

} // namespace

QStringList WordList::FromBytes(const QByteArray& bytes) {
    static const QRegularExpression lineEnd(QStringLiteral("[\r\n]+"));
    QStringList words;
    for (const QString& line : Decoded(bytes).split(lineEnd, Qt::SkipEmptyParts))
        if (const QString word = WordOf(line); !word.isEmpty())
            words << word;
    return words;
}

std::optional<QStringList> WordList::Read(const QString& path) {
    const std::optional<QByteArray> bytes = WholeFile::Read(path);
    if (!bytes || !IsText(*bytes))
        return std::nullopt;
    return FromBytes(*bytes);
}

bool WordList::Add(const QString& path, const QString& word) {
    QString text;
    if (QFileInfo::exists(path)) {
        const std::optional<QByteArray> bytes = WholeFile::Read(path);
        if (!bytes || !IsText(*bytes))
            return false;
        text = Decoded(*bytes);
    }
    if (!text.isEmpty() && !text.endsWith(u'\n') && !text.endsWith(u'\r'))
        text += u'\n';
    return WholeFile::Write(path, (text + word + u'\n').toUtf8(), WholeFile::Readers::TheUserAlone);
}
