// The per-user settings store: text by application, section and key.
#pragma once

#include "platform/store/SettingsKeys.h"

#include <memory>
#include <QHash>
#include <QStringList>

class SettingsFile;

/// Reads at the moment of use, writes through. One INI file per application name in SettingsFolder(), mode
/// 0600. Reading an absent key, or one of a file that can't be read or parsed, gives its default. A write
/// that fails (full disk, read-only folder) is dropped silently; the old file stays whole.
class Settings {
  public:
    Settings();
    ~Settings();
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    QString Read(const SettingsKey& key) const;
    void Write(const SettingsKey& key, const QString& text);

    /// True when the stored text has exactly the numeric value 1: the flag of a check box.
    bool ReadFlag(const SettingsKey& key) const;
    /// The numeric value of the stored text, 0 where it is no number.
    int ReadNumber(const SettingsKey& key) const;
    void WriteFlag(const SettingsKey& key, bool on);
    void WriteNumber(const SettingsKey& key, double number);

    /// Brings what was written to the disk now; false where that failed. Runs by itself at the end of the
    /// event and on destruction.
    bool Sync();

    /// The paths of those files read so far that are there and can't be read, or are no plain files: their
    /// values are the defaults, and nothing is written to them.
    QStringList Unreadable() const;

  private:
    SettingsFile& Store(const QString& application) const;

    mutable QHash<QString, std::shared_ptr<SettingsFile>> stores_;
};
