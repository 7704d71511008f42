// One connection to an FTP server, by the library: a request at a time, each waits for its end.
#pragma once

#include "ftp/Answers.h"
#include "ftp/Cancel.h"
#include "ftp/Certificate.h"
#include "ftp/PutSource.h"
#include "ftp/ServerAddress.h"

#include <array>
#include <curl/curl.h>
#include <functional>
#include <QByteArray>
#include <QList>

/// The connection is made at the first request and again when it was lost. TLS is asked for and used where
/// the server offers it.
class FtpHandle {
  public:
    FtpHandle(const ServerAddress& address, const Cancel& cancel);
    ~FtpHandle();
    FtpHandle(const FtpHandle&) = delete;
    FtpHandle& operator=(const FtpHandle&) = delete;

    /// What a server may say at most in answer to one request.
    static constexpr qsizetype MostAnswer = 1 << 18;
    /// And what it may send of a listing.
    static constexpr qsizetype MostListing = 1 << 26;

    void SetLogin(const QString& user, const QString& password);
    /// From now on no other certificate than this one's is let in, and this one whatever is wrong with it.
    void TrustOnly(const Certificate& certificate);
    /// From now on what a connection has to say waits a moment for more: some servers cut off whoever begins
    /// the encryption of a data connection ahead of the command that it is for.
    void HoldBack() { holdsBack_ = true; }
    bool IsEncrypted() const { return encrypted_; }
    /// The next request makes a connection of its own: answers to the last one may still be under way.
    void ConnectAnew() { anew_ = true; }
    /// Opens data connections from the server's side. They are opened from this side else.
    void UseActive() { active_ = true; }
    bool IsActive() const { return active_; }

    /// Paths are bytes, as the server has them; one is absolute where it begins with a "/", else counted from
    /// the folder that the server is in.

    /// Each command in turn, until one fails; with none, logs in and no more.
    CURLcode Run(const QList<QByteArray>& commands);
    CURLcode Put(PutSource& source, FileType type, const QByteArray& path);
    /// Hands over what comes, block by block, until the taker returns false.
    using Taker = std::function<bool(QByteArrayView)>;
    CURLcode Get(const QByteArray& path, FileType type, Taker take);
    CURLcode List(const QByteArray& folder, Taker take);
    /// The certificate that the server shows, which nobody checks: no name and no password goes out.
    Certificate AskCertificate();

    /// What went wrong with the last request, for a person.
    QString Problem(CURLcode code) const;
    /// The server's answers to the last request.
    const QList<QByteArray>& Answers() const { return answers_; }
    /// The folder of the login, as the server named it; empty where it did not.
    QByteArray EntryFolder() const;

    /// A line that the server said.
    std::function<void(const QByteArray&)> answered;
    /// The user's name goes out, and then the password.
    std::function<void(bool encrypted)> loggingIn;

  private:
    CURLcode Perform(const QByteArray& path);
    void SetCommon();
    void Reset();
    QByteArray Url(const QByteArray& path) const;
    void SayGoodbye();

    static size_t OnAnswer(char* data, size_t size, size_t count, void* self);
    static size_t OnRead(char* buffer, size_t size, size_t count, void* self);
    static size_t OnWrite(char* data, size_t size, size_t count, void* self);
    static int OnProgress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t);
    static int OnSocket(void* self, curl_socket_t socket, curlsocktype);
    static curl_socket_t OnOpenSocket(void*, curlsocktype, curl_sockaddr*);
    static int OnDebug(CURL*, curl_infotype type, char* data, size_t size, void* self);

    ServerAddress address_;
    const Cancel& cancel_;
    CURL* curl_;
    QByteArray user_, password_, pin_;
    bool active_ = false;
    /// A connection that was encrypted once is never made again in the clear.
    bool encrypted_ = false;
    bool offersTls_ = false;
    bool quiet_ = false;
    bool holdsBack_ = false;
    bool anew_ = false;

    // Of the request under way.
    QList<QByteArray> answers_;
    qsizetype answerSize_ = 0;
    qsizetype takenSize_ = 0;
    QString fault_; ///< of the server, found here and not by the library
    AnswerForm form_;
    PutSource* source_ = nullptr;
    Taker take_;
    std::array<char, CURL_ERROR_SIZE> error_{};
};
