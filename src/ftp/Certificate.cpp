#include "ftp/Certificate.h"

#include "ftp/TextBytes.h"

#include <QCryptographicHash>

namespace {

struct FieldRow {
    const char* name;
    const char* shown;
};

const FieldRow fieldRows[] = {
    {"Subject:", "Issued to: "},       {"X509v3 Subject Alternative Name:", "Names: "},
    {"Issuer:", "Issued by: "},        {"Start date:", "Valid from: "},
    {"Expire date:", "Valid until: "},
};

/// Reads DER one element after the other; a damaged length ends it.
class DerReader {
  public:
    explicit DerReader(QByteArrayView bytes) : rest_(bytes) {}

    struct Element {
        unsigned char tag = 0;
        QByteArrayView whole;
        QByteArrayView content;
    };

    /// An element with nothing in it at the end.
    Element Next() {
        if (rest_.size() < 2)
            return {};
        const auto tag = static_cast<unsigned char>(rest_[0]);
        qsizetype head = 2;
        qsizetype length = static_cast<unsigned char>(rest_[1]);
        if (length >= 0x80) {
            const qsizetype digits = length & 0x7F;
            if (digits == 0 || digits > 4 || rest_.size() < head + digits)
                return {};
            length = 0;
            for (qsizetype i = 0; i < digits; ++i)
                length = length * 0x100 + static_cast<unsigned char>(rest_[head + i]);
            head += digits;
        }
        if (length > rest_.size() - head)
            return {};
        const Element element{tag, rest_.first(head + length), rest_.sliced(head, length)};
        rest_ = rest_.sliced(head + length);
        return element;
    }

  private:
    QByteArrayView rest_;
};

QByteArray DerOf(const QByteArray& pem) {
    const qsizetype begin = pem.indexOf("-----BEGIN CERTIFICATE-----");
    const qsizetype end = pem.indexOf("-----END CERTIFICATE-----");
    if (begin < 0 || end < begin)
        return {};
    const qsizetype body = begin + static_cast<qsizetype>(qstrlen("-----BEGIN CERTIFICATE-----"));
    return QByteArray::fromBase64(pem.mid(body, end - body));
}

} // namespace

QByteArray PublicKeyOf(const QByteArray& der) {
    constexpr unsigned char versionTag = 0xA0;
    constexpr unsigned char sequence = 0x30;
    const auto certificate = DerReader(der).Next();
    DerReader parts(DerReader(certificate.content).Next().content);
    // An optional version, then number, algorithm, issuer, validity, subject; behind them comes the key.
    auto part = parts.Next();
    if (part.tag == versionTag)
        part = parts.Next();
    for (int i = 0; i < 5; ++i)
        part = parts.Next();
    return part.tag == sequence ? part.whole.toByteArray() : QByteArray();
}

Certificate ReadCertificate(const QList<QByteArray>& fields) {
    Certificate certificate;
    for (const FieldRow& row : fieldRows)
        for (const QByteArray& field : fields)
            if (field.startsWith(row.name))
                certificate.lines << QString::fromLatin1(row.shown) +
                                         FromServer(field.mid(static_cast<qsizetype>(qstrlen(row.name))));
    for (const QByteArray& field : fields) {
        const QByteArray der = field.startsWith("Cert:") ? DerOf(field) : QByteArray();
        const QByteArray key = PublicKeyOf(der);
        if (key.isEmpty())
            continue;
        const auto hash = [](const QByteArray& of) {
            return QCryptographicHash::hash(of, QCryptographicHash::Sha256);
        };
        certificate.pin = "sha256//" + hash(key).toBase64();
        certificate.fingerprint = QString::fromLatin1(hash(der).toHex(':').toUpper());
    }
    if (!certificate.fingerprint.isEmpty())
        certificate.lines << QStringLiteral("SHA-256 fingerprint: ") + certificate.fingerprint;
    return certificate;
}
