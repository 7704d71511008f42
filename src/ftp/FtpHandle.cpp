#include "ftp/FtpHandle.h"

#include "ftp/TextBytes.h"

#include <memory>
#include <QScopeGuard>
#include <utility>

#ifdef Q_OS_LINUX
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#endif

namespace {

// Seconds without a word from the server, or without a byte moved, after which a request is given up.
constexpr long connectPatience = 30;
constexpr long answerPatience = 60;
constexpr long goodbyePatience = 2;
constexpr long stallPatience = 60;

const QString noEnd = QStringLiteral("the server's answer does not end");

/// A hash that no key has: a connection that asks for it comes as far as the certificate and no farther.
constexpr const char* pinOfNoKey = "sha256//AAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAAA=";

} // namespace

FtpHandle::FtpHandle(const ServerAddress& address, const Cancel& cancel)
    : address_(address), cancel_(cancel), curl_(curl_easy_init()) {}

FtpHandle::~FtpHandle() {
    SayGoodbye();
    curl_easy_cleanup(curl_);
}

void FtpHandle::SetLogin(const QString& user, const QString& password) {
    user_ = user.isEmpty() ? QByteArray("anonymous") : user.toUtf8();
    password_ = password.toUtf8();
}

void FtpHandle::TrustOnly(const Certificate& certificate) {
    pin_ = certificate.pin;
}

QByteArray FtpHandle::Url(const QByteArray& path) const {
    const std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> url(curl_url(), curl_url_cleanup);
    const QString host = address_.host.contains(u':') ? u'[' + address_.host + u']' : address_.host;
    curl_url_set(url.get(), CURLUPART_SCHEME, "ftp", 0);
    if (curl_url_set(url.get(), CURLUPART_HOST, host.toUtf8().constData(), 0) != CURLUE_OK)
        return {};
    curl_url_set(url.get(), CURLUPART_PORT, QByteArray::number(address_.port).constData(), 0);
    // Each separator too: a name is one part of the path, whatever is in it.
    const QByteArray escaped = '/' + path.toPercentEncoding();
    curl_url_set(url.get(), CURLUPART_PATH, escaped.constData(), 0);
    char* whole = nullptr;
    if (curl_url_get(url.get(), CURLUPART_URL, &whole, 0) != CURLUE_OK)
        return {};
    const auto release = qScopeGuard([whole] { curl_free(whole); });
    return QByteArray(whole);
}

void FtpHandle::Reset() {
    curl_easy_reset(curl_);
    answers_.clear();
    answerSize_ = takenSize_ = 0;
    fault_.clear();
    form_ = {};
    error_[0] = '\0';
    SetCommon();
}

void FtpHandle::SetCommon() {
    curl_easy_setopt(curl_, CURLOPT_PROTOCOLS_STR, "ftp");
    curl_easy_setopt(curl_, CURLOPT_NOPROXY, "*");
    curl_easy_setopt(curl_, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl_, CURLOPT_ERRORBUFFER, error_.data());
    curl_easy_setopt(curl_, CURLOPT_USERNAME, user_.constData());
    curl_easy_setopt(curl_, CURLOPT_PASSWORD, password_.constData());
    // One that is out of step is not kept beside the one made anew.
    curl_easy_setopt(curl_, CURLOPT_MAXCONNECTS, 1L);
    curl_easy_setopt(curl_, CURLOPT_TCP_KEEPALIVE, 1L);
    // Paths are whole: after a lost connection they are right all the same.
    curl_easy_setopt(curl_, CURLOPT_FTP_FILEMETHOD, static_cast<long>(CURLFTPMETHOD_NOCWD));
    if (holdsBack_) {
        curl_easy_setopt(curl_, CURLOPT_SOCKOPTFUNCTION, OnSocket);
        curl_easy_setopt(curl_, CURLOPT_SOCKOPTDATA, this);
    }
    curl_easy_setopt(curl_, CURLOPT_FRESH_CONNECT, std::exchange(anew_, false) ? 1L : 0L);
    if (active_)
        curl_easy_setopt(curl_, CURLOPT_FTPPORT, "-");

    curl_easy_setopt(curl_, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_TRY));
    // Servers that want each data connection to carry on the session of the first know it by this version's
    // session; a ticket of the next version is good for one connection only.
    curl_easy_setopt(curl_, CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_MAX_TLSv1_2));
    curl_easy_setopt(curl_, CURLOPT_FTPSSLAUTH, static_cast<long>(CURLFTPAUTH_TLS));
    if (!pin_.isEmpty()) {
        curl_easy_setopt(curl_, CURLOPT_SSL_VERIFYPEER, 0L);
        curl_easy_setopt(curl_, CURLOPT_SSL_VERIFYHOST, 0L);
        curl_easy_setopt(curl_, CURLOPT_PINNEDPUBLICKEY, pin_.constData());
    }

    curl_easy_setopt(curl_, CURLOPT_CONNECTTIMEOUT, connectPatience);
    curl_easy_setopt(curl_, CURLOPT_SERVER_RESPONSE_TIMEOUT, answerPatience);
    curl_easy_setopt(curl_, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(curl_, CURLOPT_LOW_SPEED_TIME, stallPatience);

    curl_easy_setopt(curl_, CURLOPT_HEADERFUNCTION, OnAnswer);
    curl_easy_setopt(curl_, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(curl_, CURLOPT_READFUNCTION, OnRead);
    curl_easy_setopt(curl_, CURLOPT_READDATA, this);
    curl_easy_setopt(curl_, CURLOPT_WRITEFUNCTION, OnWrite);
    curl_easy_setopt(curl_, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(curl_, CURLOPT_XFERINFOFUNCTION, OnProgress);
    curl_easy_setopt(curl_, CURLOPT_XFERINFODATA, this);
    curl_easy_setopt(curl_, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(curl_, CURLOPT_DEBUGFUNCTION, OnDebug);
    curl_easy_setopt(curl_, CURLOPT_DEBUGDATA, this);
    curl_easy_setopt(curl_, CURLOPT_VERBOSE, 1L);
}

CURLcode FtpHandle::Perform(const QByteArray& path) {
    const QByteArray url = Url(path);
    if (url.isEmpty())
        return CURLE_URL_MALFORMAT;
    curl_easy_setopt(curl_, CURLOPT_URL, url.constData());
    const CURLcode code = curl_easy_perform(curl_);
    return fault_.isEmpty() ? code : CURLE_ABORTED_BY_CALLBACK;
}

CURLcode FtpHandle::Run(const QList<QByteArray>& commands) {
    Reset();
    curl_easy_setopt(curl_, CURLOPT_NOBODY, 1L);
    curl_slist* list = nullptr;
    const auto release = qScopeGuard([&list] { curl_slist_free_all(list); });
    for (const QByteArray& command : commands)
        list = curl_slist_append(list, command.constData());
    curl_easy_setopt(curl_, CURLOPT_QUOTE, list);
    return Perform("/");
}

CURLcode FtpHandle::Put(PutSource& source, FileType type, const QByteArray& path) {
    const bool ascii = type == FileType::Ascii;
    Reset();
    curl_easy_setopt(curl_, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(curl_, CURLOPT_TRANSFERTEXT, ascii ? 1L : 0L);
    curl_easy_setopt(curl_, CURLOPT_CRLF, ascii ? 1L : 0L);
    source_ = &source;
    const CURLcode code = Perform(path);
    source_ = nullptr;
    return code;
}

CURLcode FtpHandle::Get(const QByteArray& path, FileType type, Taker take) {
    Reset();
    curl_easy_setopt(curl_, CURLOPT_TRANSFERTEXT, type == FileType::Ascii ? 1L : 0L);
    take_ = std::move(take);
    const CURLcode code = Perform(path);
    take_ = {};
    return code;
}

CURLcode FtpHandle::List(const QByteArray& folder, Taker take) {
    const auto upToAnEnd = [this, take = std::move(take)](QByteArrayView block) {
        if (takenSize_ > MostListing)
            fault_ = noEnd;
        return fault_.isEmpty() && take(block);
    };
    // A folder is known by the separator at its end.
    return Get(folder.isEmpty() || folder.endsWith('/') ? folder : folder + '/', FileType::Ascii, upToAnEnd);
}

Certificate FtpHandle::AskCertificate() {
    Reset();
    curl_easy_setopt(curl_, CURLOPT_NOBODY, 1L);
    curl_easy_setopt(curl_, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
    curl_easy_setopt(curl_, CURLOPT_SSL_VERIFYPEER, 0L);
    curl_easy_setopt(curl_, CURLOPT_SSL_VERIFYHOST, 0L);
    curl_easy_setopt(curl_, CURLOPT_PINNEDPUBLICKEY, pinOfNoKey);
    curl_easy_setopt(curl_, CURLOPT_CERTINFO, 1L);
    // Should the library let the connection through all the same, nothing is given away.
    curl_easy_setopt(curl_, CURLOPT_USERNAME, "anonymous");
    curl_easy_setopt(curl_, CURLOPT_PASSWORD, "");
    quiet_ = true;
    const CURLcode code = Perform("/");
    quiet_ = false;
    if (code != CURLE_SSL_PINNEDPUBKEYNOTMATCH)
        return {};
    curl_certinfo* info = nullptr;
    QList<QByteArray> fields;
    if (curl_easy_getinfo(curl_, CURLINFO_CERTINFO, &info) == CURLE_OK && info && info->num_of_certs > 0)
        for (const curl_slist* field = info->certinfo[0]; field; field = field->next)
            fields << QByteArray(field->data);
    return ReadCertificate(fields);
}

QString FtpHandle::Problem(CURLcode code) const {
    if (!fault_.isEmpty())
        return fault_;
    if (cancel_.IsAsked())
        return QStringLiteral("stopped");
    return FromServer(error_[0] ? error_.data() : curl_easy_strerror(code));
}

QByteArray FtpHandle::EntryFolder() const {
    const char* folder = nullptr;
    curl_easy_getinfo(curl_, CURLINFO_FTP_ENTRY_PATH, &folder);
    return folder;
}

/// The library by itself would wait long for the answer of a server that hangs.
void FtpHandle::SayGoodbye() {
    curl_socket_t socket = CURL_SOCKET_BAD;
    curl_easy_getinfo(curl_, CURLINFO_ACTIVESOCKET, &socket);
    if (socket == CURL_SOCKET_BAD)
        return;
    Reset();
    quiet_ = true;
    // A connection that is gone is not made again to be closed.
    curl_easy_setopt(curl_, CURLOPT_OPENSOCKETFUNCTION, OnOpenSocket);
    curl_easy_setopt(curl_, CURLOPT_NOBODY, 1L);
    curl_easy_setopt(curl_, CURLOPT_SERVER_RESPONSE_TIMEOUT, goodbyePatience);
    curl_easy_setopt(curl_, CURLOPT_FORBID_REUSE, 1L);
    Perform("/");
}

/// Only a connection for files is held back: the command that it is for has to come first.
int FtpHandle::OnSocket(void* self, curl_socket_t socket, curlsocktype) {
    const auto& answers = static_cast<FtpHandle*>(self)->answers_;
    if (answers.isEmpty() || !(answers.last().startsWith("229") || answers.last().startsWith("227")))
        return CURL_SOCKOPT_OK;
#ifdef Q_OS_LINUX
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_CORK, &on, sizeof on);
#else
    Q_UNUSED(socket);
#endif
    return CURL_SOCKOPT_OK;
}

curl_socket_t FtpHandle::OnOpenSocket(void*, curlsocktype, curl_sockaddr*) {
    return CURL_SOCKET_BAD;
}

size_t FtpHandle::OnAnswer(char* data, size_t size, size_t count, void* self) {
    auto& handle = *static_cast<FtpHandle*>(self);
    const QByteArray line(data, static_cast<qsizetype>(size * count));
    handle.answerSize_ += line.size();
    if (handle.answerSize_ > MostAnswer)
        handle.fault_ = noEnd;
    else if (!handle.form_.Takes(line))
        handle.fault_ = QStringLiteral("this is no FTP server");
    handle.answers_ << line;
    if (handle.answered && !handle.quiet_)
        handle.answered(line);
    return handle.fault_.isEmpty() ? size * count : 0;
}

size_t FtpHandle::OnRead(char* buffer, size_t size, size_t count, void* self) {
    PutSource* source = static_cast<FtpHandle*>(self)->source_;
    const qint64 length = source ? source->Read(buffer, static_cast<qint64>(size * count)) : 0;
    return length < 0 ? CURL_READFUNC_ABORT : static_cast<size_t>(length);
}

size_t FtpHandle::OnWrite(char* data, size_t size, size_t count, void* self) {
    auto& handle = *static_cast<FtpHandle*>(self);
    const QByteArrayView block(data, static_cast<qsizetype>(size * count));
    handle.takenSize_ += block.size();
    return !handle.take_ || handle.take_(block) ? size * count : 0;
}

int FtpHandle::OnProgress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    return static_cast<FtpHandle*>(self)->cancel_.IsAsked() ? 1 : 0;
}

/// Of all that the library has to say only the login counts: what follows on AUTH tells whether it is
/// encrypted, and the name goes ahead of the password.
int FtpHandle::OnDebug(CURL*, curl_infotype type, char* data, size_t size, void* self) {
    auto& handle = *static_cast<FtpHandle*>(self);
    const QByteArrayView text(data, static_cast<qsizetype>(size));
    if (type == CURLINFO_HEADER_OUT && text.startsWith("AUTH "))
        handle.offersTls_ = false;
    else if (type == CURLINFO_HEADER_IN && (text.startsWith("234") || text.startsWith("334")))
        handle.offersTls_ = true;
    else if (type == CURLINFO_HEADER_OUT && text.startsWith("USER ")) {
        // The answer to the name is taken for a fault before the library can send the password.
        if (handle.encrypted_ && !handle.offersTls_)
            handle.fault_ = QStringLiteral("the server no longer offers encryption");
        handle.encrypted_ = handle.offersTls_;
        if (handle.loggingIn)
            handle.loggingIn(handle.encrypted_);
    }
    return 0;
}
