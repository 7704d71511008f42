#include "web/PageEncoding.h"

#include "platform/values/Cp1252.h"
#include "platform/values/DeclaredEncoding.h"
#include "platform/values/Utf8.h"

#include <QHash>
#include <QStringConverter>

namespace {

const QString windows1252 = QStringLiteral("windows-1252");
const QString utf8 = QStringLiteral("utf-8");

struct Mark {
    const char* bytes;
    const char* name;
};
constexpr Mark marks[] = {{"\xEF\xBB\xBF", "utf-8"}, {"\xFF\xFE", "utf-16le"}, {"\xFE\xFF", "utf-16be"}};

/// The name in the first meta tag that has one, as browsers look for it; empty where there is none.
QString DeclaredName(const QByteArray& bytes) {
    constexpr qsizetype browsersLookAt = 4096;
    return CharsetOfMetaTag(bytes.first(std::min(bytes.size(), browsersLookAt)));
}

/// What the web takes a name for: the small Latin sets are code page 1252, and a page whose meta tag could be
/// read is not in UTF-16, whatever the tag says.
QString KnownName(const QString& name) {
    static const QStringList latin = {QStringLiteral("iso-8859-1"), QStringLiteral("iso8859-1"),
                                      QStringLiteral("latin1"),     QStringLiteral("latin-1"),
                                      QStringLiteral("us-ascii"),   QStringLiteral("ascii"),
                                      QStringLiteral("cp1252"),     QStringLiteral("x-cp1252")};
    if (name.isEmpty() || latin.contains(name))
        return windows1252;
    if (name == QStringLiteral("utf8") || name.startsWith(QStringLiteral("utf-16")))
        return utf8;
    return name;
}

QString Reference(char32_t character) {
    return QStringLiteral("&#%1;").arg(static_cast<uint>(character));
}

} // namespace

PageEncoding PageEncoding::Of(const QByteArray& bytes, TextEncoding document) {
    if (IsUtf8(document) && bytes.isValidUtf8())
        return PageEncoding(utf8, bytes.startsWith(Utf8::Mark) ? Utf8::Mark.toByteArray() : QByteArray());
    for (const Mark& mark : marks) {
        if (!bytes.startsWith(mark.bytes))
            continue;
        const PageEncoding marked(QString::fromLatin1(mark.name), mark.bytes);
        if (marked.Fits(bytes))
            return marked;
    }
    const PageEncoding declared(KnownName(DeclaredName(bytes)), {});
    return declared.Fits(bytes) ? declared : PageEncoding(windows1252, {});
}

bool PageEncoding::Fits(const QByteArray& bytes) const {
    return name_ == windows1252 || mark_ + EncodePlain(Decode(bytes)) == bytes;
}

QString PageEncoding::Decode(const QByteArray& bytes) const {
    return DecodePlain(bytes.mid(mark_.size()));
}

QByteArray PageEncoding::Encode(const QString& text) const {
    if (name_ == windows1252)
        return mark_ + Cp1252::ToBytes(Cp1252::Accept(text));
    QByteArray bytes = EncodePlain(text);
    if (DecodePlain(bytes) != text)
        bytes = EncodePlain(WithReferences(text));
    return mark_ + bytes;
}

QString PageEncoding::DecodePlain(const QByteArray& bytes) const {
    if (name_ == windows1252)
        return Cp1252::FromBytes(bytes);
    if (name_ == utf8)
        return Utf8::ToText(bytes);
    QStringDecoder decoder(name_.toLatin1().constData(), QStringConverter::Flag::Stateless);
    return decoder.isValid() ? QString(decoder.decode(bytes)) : QString();
}

QByteArray PageEncoding::EncodePlain(const QString& text) const {
    if (name_ == windows1252)
        return Cp1252::ToBytes(text);
    QStringEncoder encoder(name_.toLatin1().constData(), QStringConverter::Flag::Stateless);
    return encoder.isValid() ? QByteArray(encoder.encode(text)) : QByteArray();
}

QString PageEncoding::WithReferences(const QString& text) const {
    constexpr char32_t firstBeyondAscii = 0x80;
    QHash<char32_t, bool> known;
    QString result;
    for (const char32_t character : text.toUcs4()) {
        const QString one = QString::fromUcs4(&character, 1);
        if (character >= firstBeyondAscii && !known.contains(character))
            known.insert(character, DecodePlain(EncodePlain(one)) == one);
        result += known.value(character, true) ? one : Reference(character);
    }
    return result;
}
