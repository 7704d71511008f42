// One file of the settings store: its values in memory, and the way to and from the disk.
#pragma once

#include "platform/store/IniText.h"

#include <memory>
#include <optional>
#include <QObject>

/// What is no plain file (a folder, a device, a pipe, which could block for ever), or can't be read, is never
/// opened for writing nor replaced: its values are the defaults, and what is written lives as long as the
/// program.
class SettingsFile final : public QObject {
  public:
    /// The file of a path as everybody in this process sees it, with what others wrote into it meanwhile.
    static std::shared_ptr<SettingsFile> At(const QString& path);
    explicit SettingsFile(QString path) : path_(std::move(path)) {}
    ~SettingsFile() override { Bring(); }

    std::optional<QString> Value(const QString& section, const QString& key) const;
    void SetValue(const QString& section, const QString& key, const QString& text);

    /// Brings what was written to the disk; false where that failed: the old file then stands as it was. Runs
    /// by itself at the end of the event that wrote.
    bool Bring();

    /// Whether there is something of this path that can't be read.
    bool IsUnreadable() const { return isUnreadable_; }
    const QString& Path() const { return path_; }

  private:
    void Load();

    QString path_;
    IniValues values_;
    IniValues changes_; ///< those of the values that are not on the disk yet
    bool isUnreadable_ = false;
    bool isBringing_ = false;
};
