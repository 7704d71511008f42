// One file of the settings store, which stays whole on a disk that is full.
#include "platform/SettingsFile.h"

#include <filesystem>
#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <system_error>

namespace {

namespace fs = std::filesystem;

/// A second name for the file, for as long as this lives. None where the folder takes no new names: then no
/// new file can replace the old one either.
class SecondName {
  public:
    explicit SecondName(const QString& path) {
        std::error_code failed;
        // A symbolic link stands for its file.
        file_ = fs::canonical(QFile::encodeName(path).toStdString(), failed);
        if (failed)
            return;
        name_ = file_;
        name_ += ".old" + std::to_string(QCoreApplication::applicationPid());
        fs::remove(name_, failed);
        fs::create_hard_link(file_, name_, failed);
        holds_ = !failed;
    }
    ~SecondName() {
        std::error_code ignored;
        if (holds_)
            fs::remove(name_, ignored);
    }
    SecondName(const SecondName&) = delete;
    SecondName& operator=(const SecondName&) = delete;

    /// Whether another file has taken the first name meanwhile.
    bool IsReplaced() const {
        std::error_code failed;
        return holds_ && !fs::equivalent(file_, name_, failed);
    }
    void PutBack() {
        std::error_code failed;
        fs::rename(name_, file_, failed);
        holds_ = static_cast<bool>(failed);
    }

  private:
    fs::path file_, name_;
    bool holds_ = false;
};

} // namespace

bool SettingsFile::Bring() {
    SecondName old(fileName());
    sync();
    if (old.IsReplaced() && !IsWhole()) {
        old.PutBack();
        return false;
    }
    return status() != AccessError;
}

/// Each value has a line of its own, and each line its end.
bool SettingsFile::IsWhole() const {
    QFile file(fileName());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    qsizetype values = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        if (!line.endsWith('\n'))
            return false;
        values += !line.startsWith('[') && line.contains('=');
    }
    return values >= allKeys().size();
}

bool SettingsFile::event(QEvent* event) {
    if (event->type() != QEvent::UpdateRequest)
        return QSettings::event(event);
    Bring();
    return true;
}
