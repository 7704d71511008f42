#include "ftp/ClientThread.h"

#include "ftp/Begin.h"
#include "ftp/Client.h"

ClientThread::ClientThread(const Arguments& arguments, QObject* parent)
    : QThread(parent), arguments_(arguments) {
    qRegisterMetaType<Certificate>();
    qRegisterMetaType<Echo>();
}

ClientThread::~ClientThread() {
    Close();
    wait();
}

void ClientThread::run() {
    Client client(arguments_.server, *this, cancel_);
    Begin(client, *this, arguments_);
    while (!cancel_.IsClosed()) {
        Q_EMIT Asked(Client::Prompt, Echo::Shown);
        const std::optional<QString> line = NextLine();
        if (!line)
            break;
        cancel_.Reset();
        Q_EMIT Working();
        Line(Client::Prompt + *line);
        if (!client.Run(*line))
            break;
    }
    allWentUp_ = client.AllWentUp();
}

/// Nothing when the window was closed.
std::optional<QString> ClientThread::NextLine() {
    std::unique_lock lock(mutex_);
    entered_.wait(lock, [this] { return cancel_.IsClosed() || !lines_.empty(); });
    if (cancel_.IsClosed())
        return std::nullopt;
    QString line = lines_.front();
    lines_.pop_front();
    return line;
}

void ClientThread::Enter(const QString& line) {
    const std::unique_lock lock(mutex_);
    lines_.push_back(line);
    entered_.notify_all();
}

void ClientThread::Answer(bool trusts) {
    const std::unique_lock lock(mutex_);
    trusts_ = trusts;
    entered_.notify_all();
}

void ClientThread::Close() {
    const std::unique_lock lock(mutex_);
    cancel_.Close();
    text_.Close();
    entered_.notify_all();
}

void ClientThread::Line(const QString& text) {
    if (text_.AddLine(text))
        Q_EMIT Shown();
}

void ClientThread::Mark() {
    if (text_.AddMark())
        Q_EMIT Shown();
}

void ClientThread::Show(const Progress& progress) {
    if (text_.Set(progress))
        Q_EMIT Shown();
}

bool ClientThread::Trusts(const Certificate& certificate) {
    Q_EMIT AskedForTrust(certificate);
    std::unique_lock lock(mutex_);
    entered_.wait(lock, [this] { return cancel_.IsClosed() || trusts_.has_value(); });
    return !cancel_.IsClosed() && trusts_.value_or(false);
}

QString ClientThread::Ask(const QString& prompt, Echo echo) {
    Q_EMIT Asked(prompt, echo);
    const QString answer = NextLine().value_or(QString());
    Line(echo == Echo::Shown ? prompt + answer : prompt);
    Q_EMIT Working();
    return answer;
}
