// A server's certificate, as it is read.
#include "ftp/Certificate.h"

#include <gtest/gtest.h>

namespace {

QByteArray Element(char tag, const QByteArray& content) {
    const auto size = content.size();
    QByteArray length;
    if (size < 0x80) {
        length += static_cast<char>(size);
    } else {
        length += '\x82';
        length += static_cast<char>(size >> 8);
        length += static_cast<char>(size & 0xFF);
    }
    return tag + length + content;
}

QByteArray Sequence(const QByteArray& content) {
    return Element('\x30', content);
}

const QByteArray key = Sequence(Sequence("how") + QByteArray(300, 'k'));

/// A certificate of the parts that stand ahead of the key.
QByteArray Der(const QByteArray& version) {
    const QByteArray parts =
        version + Element(2, "1") + Sequence("how") + Sequence("who") + Sequence("when") + Sequence("whom");
    return Sequence(Sequence(parts + key + "more") + Sequence("how") + Element(3, "sign"));
}

QByteArray Pem(const QByteArray& der) {
    return "Cert:-----BEGIN CERTIFICATE-----\n" + der.toBase64() + "\n-----END CERTIFICATE-----\n";
}

TEST(Certificate, TheKeyStandsBehindFiveOrSixParts) {
    EXPECT_EQ(PublicKeyOf(Der(Element('\xA0', "2"))), key);
    EXPECT_EQ(PublicKeyOf(Der(QByteArray())), key);
}

TEST(Certificate, ADamagedOneHasNoKey) {
    const QByteArray der = Der(QByteArray());
    for (qsizetype length = 0; length < der.size(); ++length)
        EXPECT_EQ(PublicKeyOf(der.first(length)), QByteArray()) << length;
    EXPECT_EQ(PublicKeyOf("\x30\x80"), QByteArray());
    EXPECT_EQ(PublicKeyOf("\x30\x85\x01\x01\x01\x01\x01"), QByteArray());
    EXPECT_EQ(PublicKeyOf("\x30\x84\xFF\xFF\xFF\xFF"), QByteArray());
}

TEST(Certificate, IsToldByItsNamesItsTimesAndItsFingerprint) {
    const Certificate read = ReadCertificate(
        {"Issuer:CN = me\x1b[2J", "Subject:CN = you", "Start date:then", "Version:2", Pem(Der({}))});
    ASSERT_EQ(read.lines.size(), 4);
    EXPECT_EQ(read.lines[0], QStringLiteral("Issued to: CN = you"));
    EXPECT_EQ(read.lines[1], QStringLiteral("Issued by: CN = me\uFFFD[2J"));
    EXPECT_EQ(read.lines[2], QStringLiteral("Valid from: then"));
    EXPECT_EQ(read.lines[3], QStringLiteral("SHA-256 fingerprint: ") + read.fingerprint);
    EXPECT_TRUE(read.pin.startsWith("sha256//"));
    EXPECT_EQ(read.pin.size(), 8 + 44);
}

TEST(Certificate, WithoutAKeyThereIsNoPin) {
    for (const QByteArray& cert : {QByteArray(), QByteArray("Cert:"),
                                   QByteArray("Cert:-----END CERTIFICATE-----"), Pem("nonsense"), Pem({})})
        EXPECT_EQ(ReadCertificate({"Subject:x", cert}).pin, QByteArray());
    EXPECT_TRUE(ReadCertificate({}).lines.isEmpty());
}

} // namespace
