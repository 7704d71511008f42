// Program-wide values of the application shell, named after their settings keys. Until they are read they
// have the keys' defaults.
#pragma once

#include "platform/store/SettingsKeys.h"

#include <array>
#include <QString>

struct ProgramState {
    /// Number of open document windows.
    int DocumentCount = 0;
    /// Place and size of the frame when it was last closed in the normal state, in twips; a width of 0 tells
    /// that none is stored.
    double MainFormHeight = Keys::MainFormHeight.StandardNumber();
    double MainFormWidth = Keys::MainFormWidth.StandardNumber();
    double MainFormLeft = Keys::MainFormLeft.StandardNumber();
    double MainFormTop = Keys::MainFormTop.StandardNumber();
    /// The frame's window state: "0" normal, "1" minimised, "2" maximised.
    QString MainWindowState = Keys::MainWindowState.standard;
    /// Number of finished runs; 0 on the very first.
    int FirstTimeAgain = Keys::FirstTimeAgain.StandardNumber();
    /// The whole text of the user's template, empty for none.
    QString UserTemplate;
    /// Carried only: read at start, written at stop.
    QString LinkColor = Keys::LinkColor.standard;
    QString TheOpenFile;
    bool ReloadFlag = Keys::ReloadFlag.StandardFlag();
    /// The window state that a new document takes: "0" normal, "1" minimised, "2" maximised.
    QString TemplateWindowState = Keys::TemplateWindowState.standard;
    QString WebPath;
    QString FtpPath;
    bool LocalPreview = Keys::LocalPreview.StandardFlag();
    bool LocalFTP = Keys::LocalFTP.StandardFlag();
    /// Recent files, index 0 the newest.
    std::array<QString, 8> MenuArray;
    /// The find dialog's start tab: 1 find, 2 replace, 3 many files.
    int FindMode = 1;
};
