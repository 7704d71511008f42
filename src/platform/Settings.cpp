// The per-user settings store: text by application, section and key.
#include "platform/Settings.h"

#include "platform/Path.h"
#include "platform/ProgramFolder.h"
#include "platform/SettingsFile.h"
#include "platform/Values.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <QFile>
#include <QStringList>

namespace {

constexpr auto OnlyTheUser = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

/// The file can hold a password, so nobody else may read it, from its first byte on: a rewrite takes over the
/// mode of the file that it replaces.
void KeepPrivate(const QString& path) {
    if (!QFile::exists(path)) {
        QFile created(path);
        [[maybe_unused]] const bool made =
            created.open(QIODevice::WriteOnly | QIODevice::NewOnly, OnlyTheUser);
    } else if ((QFile::permissions(path) & ~(QFileDevice::ReadUser | QFileDevice::WriteUser)) !=
               OnlyTheUser) {
        QFile::setPermissions(path, OnlyTheUser);
    }
}

QString PathOf(const SettingsKey& key) {
    return key.section + u'/' + key.key;
}

} // namespace

Settings::Settings() = default;
Settings::~Settings() {
    Sync();
}

SettingsFile& Settings::Store(const QString& application) const {
    auto& store = stores_[application];
    if (!store) {
        const QString path = Path::Join(SettingsFolder(), application + QStringLiteral(".ini"));
        SettingsFile::TidyUp(path);
        KeepPrivate(path);
        store = std::make_shared<SettingsFile>(path);
    }
    return *store;
}

QString Settings::Read(const SettingsKey& key) const {
    const QVariant value = Store(key.application).value(PathOf(key));
    if (!value.isValid())
        return key.standard;
    // A text with commas that somebody wrote into the file without quotes is taken for a list.
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(u',');
    return value.toString();
}

void Settings::Write(const SettingsKey& key, const QString& text) {
    Store(key.application).setValue(PathOf(key), text);
}

bool Settings::ReadFlag(const SettingsKey& key) const {
    return Values::ToNumber(Read(key)).value_or(0) == 1;
}

int Settings::ReadNumber(const SettingsKey& key) const {
    constexpr double Lowest = std::numeric_limits<int>::min();
    constexpr double Highest = std::numeric_limits<int>::max();
    const double number = Values::ToNumber(Read(key)).value_or(0);
    return static_cast<int>(std::clamp(number, Lowest, Highest));
}

void Settings::WriteFlag(const SettingsKey& key, bool on) {
    Write(key, on ? QStringLiteral("1") : QStringLiteral("0"));
}

void Settings::WriteNumber(const SettingsKey& key, double number) {
    constexpr double ExactUpTo = 9007199254740992.0;
    if (number == std::trunc(number) && std::abs(number) < ExactUpTo)
        Write(key, QString::number(static_cast<qint64>(number)));
    else
        Write(key, QString::number(static_cast<double>(static_cast<float>(number)), 'g', 7));
}

bool Settings::Sync() {
    bool written = true;
    for (const auto& store : std::as_const(stores_)) {
        const bool brought = store->Bring();
        written = written && brought;
    }
    return written;
}
