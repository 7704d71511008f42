// What a person can do at an FTP server.
#pragma once

#include "ftp/FtpHandle.h"
#include "ftp/Screen.h"

#include <QString>

/// Shows what the server says, and tells by its return values what came of it. Everything waits for its end,
/// or until it is cancelled.
class FtpSession {
  public:
    FtpSession(const ServerAddress& address, Screen& screen, const Cancel& cancel);

    /// Connects and logs in; an empty user is "anonymous". Asks about a certificate that doesn't check out
    /// before the name and the password go.
    bool LogIn(const QString& user, const QString& password);
    /// False too when the server can no longer be reached, or refused the login.
    bool IsConnected() const { return connected_; }

    void SetType(FileType type) { type_ = type; }
    void SetMarks(bool on) { marks_ = on; }
    bool Marked() const { return marks_; }

    bool ChangeFolder(const QString& name);
    bool TellFolder();
    bool Put(const QString& path, const QString& remote);
    /// Replaces the local file once all has come.
    bool Get(const QString& remote, const QString& path);
    /// The files of a folder, the one that the session is in for an empty name.
    bool List(const QString& name);
    bool MakeFolder(const QString& name);
    bool Delete(const QString& name);
    bool Rename(const QString& name, const QString& newName);

  private:
    /// One try of a transfer, from the start.
    using Transfer = std::function<CURLcode()>;

    bool Run(const QList<QByteArray>& commands);
    CURLcode Try(const Transfer& transfer);
    bool Succeeded(CURLcode code, const QString& failure);
    bool Refuse(const QString& failure, const QString& reason);
    bool CanSend(const QString& text);
    QByteArray PathOf(const QString& name) const;
    CURLcode LogInAnew();
    void Answered(const QByteArray& line);
    void Listed(QByteArrayView block, QByteArray& rest);

    FtpHandle handle_;
    Screen& screen_;
    ServerAddress address_;
    QString password_;
    QByteArray folder_; ///< where relative names count from; empty where the server does not tell
    FileType type_ = FileType::Binary;
    bool marks_ = false;
    bool connected_ = false;
    bool loggingIn_ = false;
};
