#include "ftp/Terminal.h"

#include "ftp/Begin.h"
#include "ftp/Client.h"

#include <cstdio>
#include <iostream>
#include <string>
#include <utility>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>
#endif

namespace {

#ifdef Q_OS_UNIX

bool LeadsSomewhere(int descriptor) {
    struct stat file = {};
    struct stat nowhere = {};
    if (fstat(descriptor, &file) != 0)
        return false;
    const bool isNull =
        stat("/dev/null", &nowhere) == 0 && S_ISCHR(file.st_mode) && file.st_rdev == nowhere.st_rdev;
    return !isNull;
}

/// What is typed is not shown while this lives.
class NoEcho {
  public:
    NoEcho() : changed_(tcgetattr(STDIN_FILENO, &before_) == 0) {
        termios hidden = before_;
        hidden.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        if (changed_)
            tcsetattr(STDIN_FILENO, TCSAFLUSH, &hidden);
    }
    ~NoEcho() {
        if (!changed_)
            return;
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &before_);
        std::fputs("\n", stdout);
    }
    NoEcho(const NoEcho&) = delete;
    NoEcho& operator=(const NoEcho&) = delete;

  private:
    termios before_ = {};
    bool changed_;
};

Cancel& Stopped() {
    static Cancel cancel;
    return cancel;
}

/// Ctrl+C ends what is under way; at the prompt the reading of a line, and with it the session.
void StopOnInterrupt() {
    struct sigaction stop = {};
    stop.sa_handler = [](int) { Stopped().Stop(); };
    sigaction(SIGINT, &stop, nullptr);
}

std::optional<std::string> ReadBytes() {
    std::string line;
    for (char byte = 0;;) {
        const ssize_t length = read(STDIN_FILENO, &byte, 1);
        if (length <= 0)
            return length == 0 && !line.empty() ? std::optional(line) : std::nullopt;
        if (byte == '\n')
            return line;
        line += byte;
    }
}

#else

bool LeadsSomewhere(int descriptor) {
    return descriptor == 0 ? std::cin.good() : std::cout.good();
}

class NoEcho {};

Cancel& Stopped() {
    static Cancel cancel;
    return cancel;
}

void StopOnInterrupt() {}

std::optional<std::string> ReadBytes() {
    std::string line;
    return std::getline(std::cin, line) ? std::optional(line) : std::nullopt;
}

#endif

} // namespace

bool HasTerminal() {
    return LeadsSomewhere(0) || LeadsSomewhere(1);
}

void Terminal::EndMarks() {
    if (std::exchange(marks_, false))
        std::fputs("\n", stdout);
}

void Terminal::Line(const QString& text) {
    EndMarks();
    std::fputs((text + u'\n').toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
}

void Terminal::Mark() {
    marks_ = true;
    std::fputs("#", stdout);
    std::fflush(stdout);
}

std::optional<QString> Terminal::ReadLine(const QString& prompt) {
    EndMarks();
    std::fputs(prompt.toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
    const std::optional<std::string> line = ReadBytes();
    if (!line) {
        std::fputs("\n", stdout);
        return std::nullopt;
    }
    return QString::fromLocal8Bit(QByteArray::fromStdString(*line));
}

QString Terminal::Ask(const QString& prompt, Echo echo) {
    std::optional<NoEcho> hidden;
    if (echo == Echo::Hidden)
        hidden.emplace();
    return ReadLine(prompt).value_or(QString());
}

bool Terminal::Trusts(const Certificate&) {
    const QString answer = Ask(QStringLiteral("Trust this server all the same? [y/N] "), Echo::Shown);
    return answer.startsWith(u'y', Qt::CaseInsensitive);
}

int RunInTerminal(const Arguments& arguments) {
    StopOnInterrupt();
    Terminal terminal;
    Client client(arguments.server, terminal, Stopped());
    Begin(client, terminal, arguments);
    for (;;) {
        Stopped().Reset();
        const std::optional<QString> line = terminal.ReadLine(Client::Prompt);
        if (!line || !client.Run(*line))
            return client.AllWentUp() ? 0 : 1;
    }
}
