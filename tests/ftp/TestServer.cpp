#include "ftp/TestServer.h"

#include "support/Files.h"
#include "support/SourceFolder.h"

TestServer::TestServer(const char* kind) {
    QDir(folder_.path()).mkdir(QStringLiteral("root"));
    // Debian's own Python: the servers belong to it.
    process_.setProgram(QStringLiteral("/usr/bin/python3"));
    process_.setArguments({QStringLiteral("-B"), SourceFolder() + QStringLiteral("/tests/ftp/server.py"),
                           QString::fromLatin1(kind), Folder()});
    process_.setProcessChannelMode(QProcess::SeparateChannels);
    process_.start();
    if (!Tells("port ")) {
        qFatal("the server did not start (python3-pyftpdlib, python3-openssl, vsftpd): %s",
               process_.readAllStandardError().constData());
    }
    const qsizetype at = told_.indexOf("port ") + 5;
    port_ = told_.mid(at, told_.indexOf('\n', at) - at).toInt();
}

TestServer::~TestServer() {
    process_.closeWriteChannel();
    if (!process_.waitForFinished(200))
        process_.kill();
    process_.waitForFinished();
}

QByteArray TestServer::File(const QString& name) const {
    return ReadFile(Folder() + u'/' + name);
}

QByteArray TestServer::Told() {
    process_.waitForReadyRead(0);
    told_ += process_.readAllStandardOutput();
    return told_;
}

bool TestServer::Tells(const QByteArray& text) {
    const auto whole = [&] {
        const qsizetype at = told_.indexOf(text);
        return at >= 0 && told_.indexOf('\n', at) >= 0;
    };
    while (!whole()) {
        if (!process_.waitForReadyRead())
            return false;
        told_ += process_.readAllStandardOutput();
    }
    return true;
}
