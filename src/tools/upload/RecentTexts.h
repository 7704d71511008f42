// A combo box that gathers what is left in it, and keeps its first five entries in the settings.
#pragma once

#include "platform/store/SettingsKeys.h"

#include <QObject>

class QComboBox;
class Settings;

class RecentTexts final : public QObject {
    Q_OBJECT

  public:
    static constexpr int Kept = 5;
    /// The key of entry n.
    using Key = SettingsKey (*)(int n);

    /// Belongs to the box.
    RecentTexts(QComboBox& box, Key key);

    /// Puts each stored text at its own place: one behind a gap has none and is left out. The first is the
    /// box's text.
    void Load(const Settings& store);
    /// Stores the first five entries; an empty one leaves what is stored.
    void Save(Settings& store) const;

  private:
    void FocusChanged(const QWidget* from, const QWidget* to);
    void LostFocus();
    bool Holds(const QWidget* widget) const;

    QComboBox& box_;
    Key key_;
};
