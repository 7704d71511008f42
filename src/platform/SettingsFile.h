// One file of the settings store, which stays whole on a disk that is full.
#pragma once

#include <QSettings>

/// Qt takes a write for done once it stands in a buffer of its own, and on a full disk replaces the whole
/// file by the part that fitted. So the old file is held by a second name until the new one is seen to be
/// whole.
class SettingsFile final : public QSettings {
  public:
    explicit SettingsFile(const QString& path) : QSettings(path, QSettings::IniFormat) {}
    ~SettingsFile() override { Bring(); }

    /// Settles what a program that was killed while it wrote has left, before the file is read. No value is
    /// ever taken out of the settings: a file with fewer than the old one is a part of one.
    static void TidyUp(const QString& path);

    /// Brings what was written to the disk; false where that failed: the old file then stands as it was.
    bool Bring();

  protected:
    /// Qt's own reminder, at the end of the event that wrote.
    bool event(QEvent* event) override;

  private:
    bool IsWhole() const;
};
