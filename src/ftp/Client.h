// Carries out the commands of a script, and those typed at the prompt.
#pragma once

#include "ftp/FtpSession.h"
#include "ftp/Script.h"

#include <QDir>
#include <QString>
#include <QStringList>
#include <span>

class Client {
  public:
    Client(const ServerAddress& address, Screen& screen, Cancel& cancel);

    void LogIn(const QString& user, const QString& password);
    /// Logs in and works off the commands, each shown as if it were typed. A file that can't be sent is no
    /// reason to leave out the next one; one whose folder could not be reached is not sent anywhere else.
    void Run(const Script& script);
    /// One command; false when it is to be the last.
    bool Run(const QString& line);
    /// Something was to be done that is not counted in files.
    void Fail() { ++failures_; }
    /// Every file that was to be sent was, and so far as one was to log in, that went well.
    bool AllWentUp() const { return failures_ == 0; }

    static inline const QString Prompt = QStringLiteral("ftp> ");

  private:
    struct CommandRow;

    static std::span<const CommandRow> Rows();
    void Put(const QString& rest);
    void Get(const QString& rest);
    void ChangeFolder(const QString& rest);
    void ChangeLocalFolder(const QString& rest);
    void Hash();
    void Help();
    void SetType(FileType type);
    void Rename(const QString& rest);
    /// Counts the files that a script still wanted to send.
    void LeaveOut(const QStringList& commands);
    /// What a command works on; where it is missing, says so.
    bool Needs(const QString& given);

    FtpSession session_;
    Screen& screen_;
    Cancel& cancel_;
    QDir local_;
    bool strayed_ = false; ///< the script's folder could not be reached
    int failures_ = 0;
};
