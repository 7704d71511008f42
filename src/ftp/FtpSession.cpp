#include "ftp/FtpSession.h"

#include "ftp/Answers.h"
#include "ftp/Marks.h"
#include "ftp/TextBytes.h"

#include <QSaveFile>

namespace {

/// Nothing more can be had of the server after these.
bool EndsSession(CURLcode code) {
    switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_LOGIN_DENIED:
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_PINNEDPUBKEYNOTMATCH:
    case CURLE_USE_SSL_FAILED:
        return true;
    default:
        return false;
    }
}

} // namespace

FtpSession::FtpSession(const ServerAddress& address, Screen& screen, const Cancel& cancel)
    : handle_(address, cancel), screen_(screen), address_(address) {
    handle_.answered = [this](const QByteArray& line) { Answered(line); };
    handle_.loggingIn = [this](bool encrypted) {
        loggingIn_ = true;
        screen_.Line(encrypted ? QStringLiteral("The connection is encrypted.")
                               : QStringLiteral("The server offers no encryption: "
                                                "the password goes in the clear."));
    };
}

/// A server that repeats what it was told must not bring the password to the screen.
void FtpSession::Answered(const QByteArray& line) {
    QString text = FromServer(line);
    if (loggingIn_ && !password_.isEmpty())
        text.replace(FromServer(password_.toUtf8()), QStringLiteral("********"));
    if (line.startsWith("230 "))
        loggingIn_ = false;
    screen_.Line(text);
}

bool FtpSession::LogIn(const QString& user, const QString& password) {
    if (!CanSend(user) || !CanSend(password))
        return false;
    if (address_.host.isEmpty())
        return Refuse(QStringLiteral("Not connected"), QStringLiteral("no server is named"));
    password_ = password;
    handle_.SetLogin(user, password);
    screen_.Line(QStringLiteral("Connecting to %1...").arg(address_.Text()));
    CURLcode code = handle_.Run({});
    if (code == CURLE_PEER_FAILED_VERIFICATION)
        code = LogInAnew();
    connected_ = Succeeded(code, QStringLiteral("Not connected"));
    folder_ = handle_.EntryFolder();
    return connected_;
}

/// With the certificate that a person has looked at.
CURLcode FtpSession::LogInAnew() {
    screen_.Line(QStringLiteral("The server's certificate does not check out."));
    const Certificate certificate = handle_.AskCertificate();
    for (const QString& line : certificate.lines)
        screen_.Line(line);
    if (certificate.pin.isEmpty() || !screen_.Trusts(certificate)) {
        screen_.Line(QStringLiteral("The server is not trusted; no name and no password was sent."));
        return CURLE_PEER_FAILED_VERIFICATION;
    }
    handle_.TrustOnly(certificate);
    return handle_.Run({});
}

bool FtpSession::CanSend(const QString& text) {
    return CanBeSent(text) || Refuse(QStringLiteral("Failed"), QStringLiteral("it holds control characters"));
}

bool FtpSession::Refuse(const QString& failure, const QString& reason) {
    screen_.Line(failure + QStringLiteral(": ") + reason + u'.');
    return false;
}

QByteArray FtpSession::PathOf(const QString& name) const {
    if (folder_.isEmpty() || name.startsWith(u'/'))
        return name.toUtf8();
    if (name.isEmpty())
        return folder_;
    return folder_ + (folder_.endsWith('/') ? "" : "/") + name.toUtf8();
}

bool FtpSession::Succeeded(CURLcode code, const QString& failure) {
    loggingIn_ = false;
    if (EndsSession(code) || (code == CURLE_COULDNT_CONNECT && handle_.Answers().isEmpty()))
        connected_ = false;
    return code == CURLE_OK || Refuse(failure, handle_.Problem(code));
}

bool FtpSession::Run(const QList<QByteArray>& commands) {
    return Succeeded(handle_.Run(commands), QStringLiteral("Failed"));
}

bool FtpSession::ChangeFolder(const QString& name) {
    const QByteArray path = PathOf(name);
    // A server that does not tell where it is has changed all the same.
    if (!CanSend(name) || !Run({"CWD " + path, "*PWD"}))
        return false;
    const QByteArray told = FolderIn(handle_.Answers());
    folder_ = !told.isEmpty() || !path.startsWith('/') ? told : path;
    return true;
}

bool FtpSession::TellFolder() {
    return Run({"PWD"});
}

bool FtpSession::MakeFolder(const QString& name) {
    return CanSend(name) && Run({"MKD " + PathOf(name)});
}

bool FtpSession::Delete(const QString& name) {
    return CanSend(name) && Run({"DELE " + PathOf(name)});
}

bool FtpSession::Rename(const QString& name, const QString& newName) {
    return CanSend(name) && CanSend(newName) && Run({"RNFR " + PathOf(name), "RNTO " + PathOf(newName)});
}

/// Again where the server does not let a data connection come about: with the encryption begun later, some
/// times since on a busy machine that too can come at a bad moment, and then with the connection made from
/// the other side.
CURLcode FtpSession::Try(const Transfer& transfer) {
    constexpr int mostEncryptedTries = 4;
    CURLcode code = transfer();
    for (int tries = 1;
         tries < mostEncryptedTries && handle_.IsEncrypted() && RefusesPassive(code, handle_.Answers());
         ++tries) {
        handle_.HoldBack();
        handle_.ConnectAnew();
        code = transfer();
    }
    // The library sends in the clear what goes over an encrypted session's connection from the other side.
    if (handle_.IsActive() || handle_.IsEncrypted() || !RefusesPassive(code, handle_.Answers()))
        return code;
    screen_.Line(QStringLiteral("The server takes no connection for files; it is asked to make one."));
    handle_.UseActive();
    handle_.ConnectAnew();
    return transfer();
}

bool FtpSession::Put(const QString& path, const QString& remote) {
    const QString failure = QStringLiteral("Not sent");
    PutSource source(path, type_);
    if (!source.Open())
        return Refuse(failure, source.Problem());
    if (!CanSend(remote))
        return false;
    Marks marks(screen_, marks_);
    source.advanced = [&] {
        marks.Reach(source.Done());
        screen_.Show({remote, source.Done(), source.Total()});
    };
    const CURLcode code = Try([&] {
        source.Rewind();
        marks.Rewind();
        screen_.Show({remote, 0, source.Total()});
        return handle_.Put(source, type_, PathOf(remote));
    });
    screen_.Show({});
    if (!Succeeded(code, failure))
        return false;
    screen_.Line(QStringLiteral("%1 bytes sent.").arg(source.Done()));
    return true;
}

bool FtpSession::Get(const QString& remote, const QString& path) {
    const QString failure = QStringLiteral("Not received");
    if (!CanSend(remote))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Refuse(failure, file.errorString());
    Marks marks(screen_, marks_);
    qint64 done = 0;
    const CURLcode code = Try([&] {
        return handle_.Get(PathOf(remote), type_, [&](QByteArrayView block) {
            done += block.size();
            marks.Reach(done);
            screen_.Show({remote, done, 0});
            return file.write(block.data(), block.size()) == block.size();
        });
    });
    screen_.Show({});
    if (!Succeeded(code, failure))
        return false;
    if (!file.commit())
        return Refuse(failure, file.errorString());
    screen_.Line(QStringLiteral("%1 bytes received.").arg(done));
    return true;
}

/// Shows the whole lines of a listing, and keeps what is left.
void FtpSession::Listed(QByteArrayView block, QByteArray& rest) {
    rest += block;
    qsizetype from = 0;
    for (qsizetype end; (end = rest.indexOf('\n', from)) >= 0; from = end + 1)
        screen_.Line(FromServer(QByteArrayView(rest).sliced(from, end - from)));
    rest.remove(0, from);
}

bool FtpSession::List(const QString& name) {
    if (!CanSend(name))
        return false;
    QByteArray rest;
    const CURLcode code = Try([&] {
        return handle_.List(PathOf(name), [&](QByteArrayView block) {
            Listed(block, rest);
            return true;
        });
    });
    if (!rest.isEmpty())
        screen_.Line(FromServer(rest));
    return Succeeded(code, QStringLiteral("Not listed"));
}
