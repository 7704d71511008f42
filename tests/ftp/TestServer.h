// An FTP server of a kind that server.py has, in a process of its own.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

class TestServer {
  public:
    explicit TestServer(const char* kind);
    ~TestServer();

    int Port() const { return port_; }
    /// The folder that it serves.
    QString Folder() const { return folder_.filePath(QStringLiteral("root")); }
    QByteArray File(const QString& name) const;
    /// All it has told so far.
    QByteArray Told();
    /// Waits until it has told something.
    bool Tells(const QByteArray& text);

  private:
    QTemporaryDir folder_;
    QProcess process_;
    QByteArray told_;
    int port_ = 0;
};
