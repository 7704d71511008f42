// A server's certificate that a person is asked about.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

struct Certificate {
    QStringList lines;   ///< what a person needs to know it by, a line each
    QString fingerprint; ///< SHA-256 of the whole, "AB:CD:..."
    /// The server's key as the library wants it named to let no other one in; empty where the certificate
    /// can't be read: then nobody can be asked about it.
    QByteArray pin;
};

/// Reads the fields that the library has of a certificate, "Subject:...", "Issuer:..." and so on; "Cert:" is
/// the whole.
Certificate ReadCertificate(const QList<QByteArray>& fields);

/// The part of a certificate in DER that holds the public key; empty where it is damaged.
QByteArray PublicKeyOf(const QByteArray& der);
