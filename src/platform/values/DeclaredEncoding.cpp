#include "platform/values/DeclaredEncoding.h"

#include <algorithm>
#include <array>
#include <QRegularExpression>

namespace {

/// The names by which the web knows it.
constexpr std::array<QLatin1String, 6> names{
    QLatin1String("utf-8"),         QLatin1String("utf8"),          QLatin1String("unicode-1-1-utf-8"),
    QLatin1String("unicode11utf8"), QLatin1String("unicode20utf8"), QLatin1String("x-unicode20utf8"),
};

QString FirstWord(const QRegularExpression& pattern, const QString& text) {
    return pattern.match(text).captured(1).toLower();
}

} // namespace

QString CharsetOfMetaTag(QByteArrayView head) {
    static const QRegularExpression comment(QStringLiteral("<!--.*?(-->|$)"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression declaration(
        QStringLiteral("<meta\\s[^>]*charset\\s*=\\s*[\"']?\\s*([\\w:.-]+)"),
        QRegularExpression::CaseInsensitiveOption);
    QString text = QString::fromLatin1(head);
    text.remove(comment);
    return FirstWord(declaration, text);
}

bool DeclaresUtf8(QByteArrayView head) {
    static const QRegularExpression xml(
        QStringLiteral("^<\\?xml\\s[^>]*encoding\\s*=\\s*[\"']([\\w:.-]+)[\"']"));
    static const QRegularExpression sheet(QStringLiteral("^@charset \"([\\w:.-]+)\";"));
    const QString text = QString::fromLatin1(head);
    const QString found[] = {CharsetOfMetaTag(head), FirstWord(xml, text), FirstWord(sheet, text)};
    return std::any_of(std::begin(found), std::end(found), [](const QString& name) {
        return std::find(names.begin(), names.end(), name) != names.end();
    });
}
