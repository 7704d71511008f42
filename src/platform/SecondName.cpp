// A file held by a second name while another takes its place.
#include "platform/SecondName.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <system_error>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#endif

namespace {

namespace fs = std::filesystem;

// The number of the process that holds the name stands behind this.
constexpr char ending[] = ".old";

/// A symbolic link stands for its file.
fs::path RealFile(const QString& path) {
    const fs::path given = QFile::encodeName(path).toStdString();
    std::error_code failed;
    const fs::path file = fs::canonical(given, failed);
    return failed ? given : file;
}

/// Whether another process may still need what bears its number.
bool IsAtWork(int process) {
    if (process == QCoreApplication::applicationPid())
        return false;
#ifdef Q_OS_UNIX
    return ::kill(process, 0) == 0 || errno != ESRCH;
#else
    return true;
#endif
}

} // namespace

SecondName::SecondName(const QString& path) : file_(RealFile(path)), name_(file_) {
    name_ += ending + std::to_string(QCoreApplication::applicationPid());
    std::error_code failed;
    fs::remove(name_, failed);
    fs::create_hard_link(file_, name_, failed);
    holds_ = !failed;
}

SecondName::SecondName(fs::path file, fs::path name)
    : file_(std::move(file)), name_(std::move(name)), holds_(true) {}

SecondName::~SecondName() {
    std::error_code ignored;
    if (holds_)
        fs::remove(name_, ignored);
}

std::deque<SecondName> SecondName::LeftFor(const QString& path) {
    std::deque<SecondName> left;
    const fs::path file = RealFile(path);
    const QDir folder(QFile::decodeName(file.parent_path().c_str()));
    const QString begin = QFile::decodeName((file.filename() += ending).c_str());
    for (const QString& name : folder.entryList({begin + u'*'}, QDir::Files | QDir::Hidden)) {
        bool isNumber = false;
        const int process = name.sliced(begin.size()).toInt(&isNumber);
        if (isNumber && process > 0 && !IsAtWork(process))
            left.emplace_back(file, QFile::encodeName(folder.filePath(name)).toStdString());
    }
    return left;
}

QString SecondName::Path() const {
    return QFile::decodeName(name_.c_str());
}

bool SecondName::IsReplaced() const {
    std::error_code failed;
    return holds_ && !fs::equivalent(file_, name_, failed);
}

void SecondName::PutBack() {
    std::error_code failed;
    fs::rename(name_, file_, failed);
    holds_ = static_cast<bool>(failed);
}
