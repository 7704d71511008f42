#include "platform/store/Settings.h"

#include "platform/store/ProgramFolder.h"
#include "platform/store/SettingsFile.h"
#include "platform/values/Path.h"
#include "platform/values/Values.h"

#include <algorithm>
#include <cmath>
#include <limits>

Settings::Settings() = default;
Settings::~Settings() {
    Sync();
}

SettingsFile& Settings::Store(const QString& application) const {
    auto& store = stores_[application];
    if (!store)
        store = SettingsFile::At(Path::Join(SettingsFolder(), application + QStringLiteral(".ini")));
    return *store;
}

QString Settings::Read(const SettingsKey& key) const {
    return Store(key.application).Value(key.section, key.key).value_or(key.standard);
}

void Settings::Write(const SettingsKey& key, const QString& text) {
    Store(key.application).SetValue(key.section, key.key, text);
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

QStringList Settings::Unreadable() const {
    QStringList paths;
    for (const auto& store : std::as_const(stores_))
        if (store->IsUnreadable())
            paths << store->Path();
    return paths;
}
