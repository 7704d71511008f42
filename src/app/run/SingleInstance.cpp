#include "app/run/SingleInstance.h"

#include "platform/store/ProgramFolder.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#ifdef Q_OS_UNIX
#include <sys/file.h>
#endif

namespace {

constexpr int patienceMilliseconds = 3000;
constexpr int pauseMilliseconds = 20;
// More than any command line holds; what sends more is no copy of ours.
constexpr qint64 longestMessage = 1 << 22;
// A copy that was started without a file sends just this, so that an empty line still says that it was there.
constexpr char greeting[] = "tarnwick 1\n";

// Copies that keep their files in different folders have nothing to do with each other.
QString BaseName() {
    const QByteArray hash = QCryptographicHash::hash(ProgramFolder().toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("tarnwick-") + QString::fromLatin1(hash.toHex().left(12));
}

/// A process's number comes again: in a container, at every start. A lock of this very number is then taken
/// for one that is held, which only the system's own lock on the file tells.
void RemoveLockOfNobody([[maybe_unused]] const QString& path) {
#ifdef Q_OS_UNIX
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) ||
        file.readLine().trimmed().toLongLong() != QCoreApplication::applicationPid())
        return;
    if (::flock(file.handle(), LOCK_EX | LOCK_NB) == 0)
        file.remove();
#endif
}

QString InFolder(const QString& folder, const QString& ending) {
    return QDir(folder).filePath(BaseName() + ending);
}

} // namespace

QString SingleInstance::Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

SingleInstance::SingleInstance(const QString& folder, QObject* parent)
    : QObject(parent), socketPath_(InFolder(folder, QStringLiteral(".socket"))),
      lock_(InFolder(folder, QStringLiteral(".lock"))) {
    // Only the end of the process that holds it makes a lock stale, never its age.
    lock_.setStaleLockTime(0);
    // Where no lock can be made at all, the program runs without the guard rather than not at all.
    RemoveLockOfNobody(lock_.fileName());
    first_ = lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError;
    if (first_)
        Listen();
}

SingleInstance::~SingleInstance() = default;

void SingleInstance::Listen() {
    if (!lock_.isLocked())
        return;
    QLocalServer::removeServer(socketPath_);
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = server_.nextPendingConnection())
            Receive(*socket);
    });
    server_.listen(socketPath_);
}

void SingleInstance::Receive(QLocalSocket& socket) {
    const auto read = [this, &socket] {
        const QByteArray message = socket.readAll();
        if (message.startsWith(greeting))
            Q_EMIT Arrived(QString::fromUtf8(message.mid(qsizetype(sizeof greeting) - 1)));
        socket.deleteLater();
    };
    socket.setReadBufferSize(longestMessage + 1);
    connect(&socket, &QLocalSocket::disconnected, this, read);
    // With its buffer full a socket no longer notices that the other side goes: it would stay for good.
    connect(&socket, &QLocalSocket::readyRead, this, [this, &socket] {
        if (socket.bytesAvailable() <= longestMessage)
            return;
        socket.disconnect(this);
        socket.deleteLater();
    });
    // It may have said all it had to say, and gone, before anyone listened.
    if (socket.state() == QLocalSocket::UnconnectedState)
        read();
}

bool SingleInstance::HandOver(const QString& commandLine) {
    const QDeadlineTimer deadline(patienceMilliseconds);
    QLocalSocket socket;
    // The first copy may hold the lock and not listen yet.
    while (true) {
        socket.connectToServer(socketPath_, QIODevice::WriteOnly);
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime())))
            break;
        if (deadline.hasExpired())
            return false;
        QThread::msleep(pauseMilliseconds);
    }
    socket.write(greeting + commandLine.toUtf8());
    while (socket.bytesToWrite() > 0)
        if (!socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime())))
            return false;
    socket.disconnectFromServer();
    return true;
}
