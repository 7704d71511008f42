// Program-wide values of the application shell, named after their settings keys.
#pragma once

#include <array>
#include <QString>

struct ProgramState {
    /// Number of open document windows.
    int DocumentCount = 0;
    /// Number of finished runs; 0 on the very first.
    int FirstTimeAgain = 0;
    /// The whole text of the user's template, empty for none.
    QString UserTemplate;
    /// Carried only: read at start, written at stop.
    QString LinkColor;
    QString TheOpenFile;
    bool ReloadFlag = false;
    /// The window state that a new document takes: "0" normal, "1" minimised, "2" maximised.
    QString TemplateWindowState = QStringLiteral("2");
    QString WebPath;
    QString FtpPath;
    bool LocalPreview = true;
    bool LocalFTP = true;
    /// Recent files, index 0 the newest.
    std::array<QString, 8> MenuArray;
    /// The find dialog's start tab: 1 find, 2 replace, 3 many files.
    int FindMode = 1;
};
