// One copy of the program at a time for each user.
#pragma once

#include <memory>
#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

class QLocalSocket;

/// The first copy holds a lock and listens on a local socket that only its user can reach. A later copy hands
/// its command line over and ends. A lock or socket that a dead copy left behind holds nobody up; neither
/// does a first copy that hangs: it finds the command line when it comes back to life.
class SingleInstance final : public QObject {
    Q_OBJECT

  public:
    /// folder is where lock and socket lie.
    explicit SingleInstance(const QString& folder = Folder(), QObject* parent = nullptr);
    ~SingleInstance() override;

    /// The place for the user's lock and socket: short, on this machine, and closed to others.
    static QString Folder();

    /// Whether this is the first copy.
    bool IsFirst() const { return first_; }
    /// Gives the running copy a command line, which may be empty. False if it could not be reached in a few
    /// seconds.
    bool HandOver(const QString& commandLine);

  Q_SIGNALS:
    /// A later copy of the program handed over its command line.
    void Arrived(const QString& commandLine);

  private:
    void Listen();
    void Receive(QLocalSocket& socket);

    QString socketPath_;
    QLockFile lock_;
    QLocalServer server_;
    bool first_ = false;
};
