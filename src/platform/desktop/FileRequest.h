// What is asked of a file dialog, and what it answers.
#pragma once

#include <functional>
#include <QString>
#include <QStringList>

class QWidget;

struct FileRequest {
    QString filter = {};           ///< "Name|pattern;pattern|Name|pattern|"; empty shows all files
    int filterIndex = 1;           ///< 1-based, the filter selected at first
    QString folder = {};           ///< where the dialog opens; empty leaves it to the desktop
    QString fileName = {};         ///< what stands in the name field
    QString defaultExtension = {}; ///< added to a name without one when saving, without the dot
    bool multiSelect = false;
    bool mustExist = false;
    /// A panel shown at the file list's right side, 200 by 200 pixels; null for none. The dialog borrows it
    /// for as long as it is up and gives it back to the parent it had.
    QWidget* panel = nullptr;
    /// Told the full path each time another file is selected in the list.
    std::function<void(const QString&)> selectionChanged = {};
};

struct FileAnswer {
    QString folder = {};    ///< ends in a separator; empty when cancelled
    QStringList names = {}; ///< in it, or below it where several folders were typed; empty when cancelled

    /// Nothing was picked: Cancel, or OK with no name.
    bool Cancelled() const { return names.isEmpty() || names.first().isEmpty(); }
    /// The full path of each file; none when cancelled.
    QStringList Paths() const;
    /// The full path of the first file; empty when cancelled.
    QString Path() const;
};
