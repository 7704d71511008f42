// Which server: as it is given on the command line.
#pragma once

#include <QString>
#include <QStringList>

struct ServerAddress {
    static constexpr int StandardPort = 21;

    QString host; ///< a name or a number, an IPv6 number without its brackets; empty for none
    int port = StandardPort;

    /// As a person reads it: "ftp.example.org", with the port where it is another one.
    QString Text() const;
};

/// Reads "host", "host:port", "[::1]:port", "ftp://host/" or two words, host and port. A port that is none is
/// left out.
ServerAddress ReadAddress(const QStringList& words);
