#include "platform/store/SettingsFile.h"

#include "platform/store/WholeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>

namespace {

constexpr auto OnlyTheUser = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

/// The file can hold a password, so nobody else may read it: a rewrite keeps the mode.
void KeepPrivate(const QString& path) {
    if ((QFile::permissions(path) & ~(QFileDevice::ReadUser | QFileDevice::WriteUser)) != OnlyTheUser)
        QFile::setPermissions(path, OnlyTheUser);
}

void Merge(IniValues& values, const IniValues& changes) {
    for (auto section = changes.begin(); section != changes.end(); ++section)
        values[section.key()].insert(*section);
}

} // namespace

std::shared_ptr<SettingsFile> SettingsFile::At(const QString& path) {
    static QHash<QString, std::weak_ptr<SettingsFile>> files;
    std::shared_ptr<SettingsFile> file = files.value(path).lock();
    if (!file)
        files[path] = file = std::make_shared<SettingsFile>(path);
    WholeFile::SettleInterrupted();
    file->Load();
    return file;
}

void SettingsFile::Load() {
    // A symbolic link that leads nowhere is as good as no file.
    const std::optional<QByteArray> bytes = WholeFile::Read(path_);
    isUnreadable_ = !bytes && QFileInfo::exists(path_);
    if (bytes)
        KeepPrivate(path_);
    values_ = bytes ? IniText::Read(*bytes) : IniValues();
    Merge(values_, changes_);
}

std::optional<QString> SettingsFile::Value(const QString& section, const QString& key) const {
    const auto values = values_.constFind(section);
    if (values == values_.constEnd() || !values->contains(key))
        return std::nullopt;
    return values->value(key);
}

void SettingsFile::SetValue(const QString& section, const QString& key, const QString& text) {
    if (Value(section, key) == text)
        return;
    values_[section][key] = text;
    changes_[section][key] = text;
    if (isBringing_)
        return;
    isBringing_ = true;
    QMetaObject::invokeMethod(this, &SettingsFile::Bring, Qt::QueuedConnection);
}

bool SettingsFile::Bring() {
    isBringing_ = false;
    if (changes_.isEmpty())
        return true;
    // Another program may have written meanwhile.
    Load();
    if (isUnreadable_ || !WholeFile::Write(path_, IniText::Write(values_), WholeFile::Readers::TheUserAlone))
        return false;
    changes_.clear();
    return true;
}
