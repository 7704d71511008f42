#include "app/events/EventLog.h"

#include <csignal>
#include <cstring>
#include <ctime>
#include <execinfo.h>
#include <QByteArray>
#include <QFile>
#include <QStringList>
#include <unistd.h>

// The sanitizers' own end of the process; not there without them.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace {

using namespace std::chrono_literals;

constexpr auto lookEvery = 100ms;
constexpr auto longWait = 30s;
constexpr double slowSeconds = 1;
constexpr int deepest = 100;
constexpr int told = 60;

const EventLog* theLog = nullptr;

void Write(const char* text) {
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, text, std::strlen(text));
}

void PrintStack() {
    void* frames[deepest];
    ::backtrace_symbols_fd(frames, ::backtrace(frames, deepest), STDERR_FILENO);
}

void PrintLog() {
    if (theLog)
        theLog->Print();
}

void Crashed(int signal) {
    std::signal(signal, SIG_DFL);
    Write("--- crashed; the stack:\n");
    PrintStack();
    PrintLog();
    ::raise(signal);
}

void Slow(int) {
    Write("--- an event takes long; the stack:\n");
    PrintStack();
    PrintLog();
}

double SecondsOf(clockid_t clock) {
    timespec spent{};
    ::clock_gettime(clock, &spent);
    return double(spent.tv_sec) + double(spent.tv_nsec) / 1e9;
}

void SetHandlers(bool set) {
    std::signal(SIGUSR1, set ? Slow : SIG_DFL);
    std::signal(SIGABRT, set ? Crashed : SIG_DFL);
    if (__sanitizer_set_death_callback) {
        // They tell a crash by themselves.
        __sanitizer_set_death_callback(set ? PrintLog : nullptr);
        return;
    }
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(signal, set ? Crashed : SIG_DFL);
}

} // namespace

EventLog::EventLog(quint64 seed) : seed_(seed), watched_(::pthread_self()) {
    theLog = this;
    // The first call loads a library, which a signal's handler may not.
    void* frame = nullptr;
    ::backtrace(&frame, 1);
    SetHandlers(true);
    watch_ = std::thread([this] { Watch(); });
}

EventLog::~EventLog() {
    ends_ = true;
    watch_.join();
    SetHandlers(false);
    theLog = nullptr;
}

void EventLog::Note(const QString& event) {
    static const QString path = qEnvironmentVariable("TARNWICK_EVENT_LOG");
    const int count = count_;
    auto& line = ring_[static_cast<size_t>(count % lines)];
    const QByteArray text = QByteArray::number(count) + ' ' + event.toUtf8();
    qstrncpy(line.data(), text.constData(), line.size());
    count_ = count + 1;
    if (path.isEmpty())
        return;
    static QFile file(path);
    if (file.isOpen() || file.open(QIODevice::Append | QIODevice::Unbuffered))
        file.write(QByteArray::number(seed_) + ' ' + text + '\n');
}

QString EventLog::Last(int count) const {
    QStringList last;
    for (int i = std::max(0, count_ - std::min(count, lines)); i < count_; ++i)
        last << QString::fromUtf8(ring_[static_cast<size_t>(i % lines)].data());
    return last.join(u'\n');
}

void EventLog::Print() const {
    char head[80];
    qsnprintf(head, sizeof head, "--- seed %llu, event %d; the last ones:\n",
              static_cast<unsigned long long>(seed_), count_.load());
    Write(head);
    for (int i = std::max(0, count_ - told); i < count_; ++i) {
        Write(ring_[static_cast<size_t>(i % lines)].data());
        Write("\n");
    }
}

// A stack is worth telling where the thread itself worked for long, or waits in vain; not where others have
// the machine.
void EventLog::Watch() {
    clockid_t clock = CLOCK_MONOTONIC;
    ::pthread_getcpuclockid(watched_, &clock);
    int seen = -1;
    auto stood = 0ms;
    double workedBefore = 0;
    bool told = false;
    while (!ends_) {
        std::this_thread::sleep_for(lookEvery);
        const bool moved = seen != count_;
        seen = count_;
        stood = moved ? 0ms : stood + std::chrono::milliseconds(lookEvery);
        if (moved) {
            workedBefore = SecondsOf(clock);
            told = false;
        }
        if (!told && seen > 0 && (SecondsOf(clock) - workedBefore > slowSeconds || stood >= longWait)) {
            told = true;
            ::pthread_kill(watched_, SIGUSR1);
        }
        if (stood >= std::chrono::seconds(hangSeconds))
            ::pthread_kill(watched_, SIGABRT);
    }
}
