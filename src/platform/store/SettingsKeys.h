// Every key of the settings store, once, with its section and its default. Nothing else spells a key.
#pragma once

#include "platform/desktop/ProgramTitle.h"

#include <QString>

struct SettingsKey {
    QString application;
    QString section;
    QString key;
    QString standard; ///< the text that reading gives when the key is absent

    /// The default as the flag or the number that it stands for.
    bool StandardFlag() const;
    int StandardNumber() const;
};

namespace Keys {

inline const QString Tarnwick = ProgramTitle;
inline const QString WebTimerApplication = QStringLiteral("Web Timer");

inline SettingsKey In(const char* section, const char* key, const char* standard) {
    return {Tarnwick, QString::fromLatin1(section), QString::fromLatin1(key), QString::fromLatin1(standard)};
}

// Window Options
inline const SettingsKey MainFormHeight = In("Window Options", "MainFormHeight", "0");
inline const SettingsKey MainFormWidth = In("Window Options", "MainFormWidth", "0");
inline const SettingsKey MainFormLeft = In("Window Options", "MainFormLeft", "0");
inline const SettingsKey MainFormTop = In("Window Options", "MainFormTop", "0");
inline const SettingsKey MainWindowState = In("Window Options", "MainWindowState", "0");
inline const SettingsKey TemplateWindowState = In("Window Options", "TemplateWindowState", "2");
inline const SettingsKey FirstTimeAgain = In("Window Options", "FirstTimeAgain", "0");
inline const SettingsKey UseMSIE = In("Window Options", "UseMSIE", "0");
inline const SettingsKey ShowUserButtons = In("Window Options", "ShowUserButtons", "0");
inline const SettingsKey ColoredTags = In("Window Options", "ColoredTags", "1");
inline const SettingsKey ConvertChar = In("Window Options", "ConvertChar", "1");
inline const SettingsKey EditorFont = In("Window Options", "EditorFont", "Arial");
inline const SettingsKey EditorFontSize = In("Window Options", "EditorFontSize", "10");
inline const SettingsKey Background2 = In("Window Options", "Background2", "16777215");
inline const SettingsKey LinkColor = In("Window Options", "LinkColor", "8421376");
inline const SettingsKey UserTemplate = In("Window Options", "UserTemplate", "");
inline const SettingsKey ReloadFlag = In("Window Options", "ReloadFlag", "False");
inline const SettingsKey TheOpenFile = In("Window Options", "TheOpenFile", "");
inline const SettingsKey TabOption = In("Window Options", "TabOption", "False");
/// The six colours (0 text, 1 tags, 2 links, 3 images, 4 embedded objects, 5 comments) as colour numbers.
inline const SettingsKey TextColor[6] = {
    In("Window Options", "TextColor0", "0"),     In("Window Options", "TextColor1", "16711680"),
    In("Window Options", "TextColor2", "32768"), In("Window Options", "TextColor3", "255"),
    In("Window Options", "TextColor4", "32767"), In("Window Options", "TextColor5", "8421504"),
};
/// The same six as entries of an RTF colour table.
inline const SettingsKey EdTextColor[6] = {
    In("Window Options", "EdTextColor0", "\\red0\\green0\\blue0"),
    In("Window Options", "EdTextColor1", "\\red0\\green0\\blue255"),
    In("Window Options", "EdTextColor2", "\\red0\\green128\\blue0"),
    In("Window Options", "EdTextColor3", "\\red255\\green0\\blue0"),
    In("Window Options", "EdTextColor4", "\\red255\\green127\\blue0"),
    In("Window Options", "EdTextColor5", "\\red128\\green128\\blue128"),
};
/// The folder that file dialogs open in; its default is the program's folder, and only known at run time.
SettingsKey LastDir();

// Program Options
inline const SettingsKey UseAutoFill = In("Program Options", "UseAutoFill", "1");
inline const SettingsKey UseWebTimer = In("Program Options", "UseWebTimer", "0");
inline const SettingsKey WordWrap = In("Program Options", "WordWrap", "1");
inline const SettingsKey LowerCaseTags = In("Program Options", "LowerCaseTags", "0");
inline const SettingsKey UseHTM = In("Program Options", "UseHTM", "0");
inline const SettingsKey Utf8Pages = In("Program Options", "Utf8Pages", "1");
inline const SettingsKey ModifiedMark = In("Program Options", "ModifiedMark", "1");
inline const SettingsKey EmptyFrameText = In("Program Options", "EmptyFrameText", "1");
inline const SettingsKey BlankButtonTips = In("Program Options", "BlankButtonTips", "1");
inline const SettingsKey UntitledNames = In("Program Options", "UntitledNames", "1");
inline const SettingsKey WindowChooser = In("Program Options", "WindowChooser", "1");
inline const SettingsKey StripKeys = In("Program Options", "StripKeys", "1");
inline const SettingsKey Recovery = In("Program Options", "Recovery", "1");
inline const SettingsKey WebTimer = In("Program Options", "WebTimer", "False");
/// How large documents are drawn, in percent; and whether keys and wheel change it.
inline const SettingsKey Zoom = In("Program Options", "Zoom", "100");
inline const SettingsKey UseZoom = In("Program Options", "UseZoom", "1");
inline const SettingsKey ShowPartnerTag = In("Program Options", "ShowPartnerTag", "1");
inline const SettingsKey ShowCurrentLine = In("Program Options", "ShowCurrentLine", "1");
inline const SettingsKey ShowLineNumbers = In("Program Options", "ShowLineNumbers", "0");
/// The folders of open and recent documents in file dialogs.
inline const SettingsKey FileDialogFolders = In("Program Options", "FileDialogFolders", "1");
/// Boxes as wide as what is in them, and as their titles.
inline const SettingsKey WideBoxes = In("Program Options", "WideBoxes", "1");
/// Whether a save asks before it overwrites what others changed; whether files that others changed, and saves
/// that failed, are told of; whether a file of which only a part was read is told of and kept whole.
inline const SettingsKey AskBeforeOverwrite = In("Program Options", "AskBeforeOverwrite", "1");
inline const SettingsKey TellChangedFiles = In("Program Options", "TellChangedFiles", "1");
inline const SettingsKey TellFailedSaves = In("Program Options", "TellFailedSaves", "1");
inline const SettingsKey KeepCutPages = In("Program Options", "KeepCutPages", "1");

// Browser Options
inline const SettingsKey Web = In("Browser Options", "Web", "");
inline const SettingsKey FTP = In("Browser Options", "FTP", "");
inline const SettingsKey LocalPreview = In("Browser Options", "LocalPreview", "True");
inline const SettingsKey LocalFTP = In("Browser Options", "LocalFTP", "True");

// Use DDE Value
inline const SettingsKey UseDDE = In("Use DDE Value", "UseDDE", "");

// SpellCheck: the two dictionaries lie in the program's folder by default.
SettingsKey StandardDic();
SettingsKey CustomDic();

// Menu Array Values: the recent files, n from 0 (the newest) to 7.
SettingsKey MenuArray(int n);

// User Tools: the user buttons, n from 0 to 29.
SettingsKey FirstBut(int n);
SettingsKey SecondBut(int n);
SettingsKey ButCap(int n);

// FTP: the upload sites, n from 0 to 4.
SettingsKey Server(int n);
SettingsKey UserName(int n);
SettingsKey Dir(int n);
inline const SettingsKey chkPass = In("FTP", "chkPass", "0");
inline const SettingsKey Password = In("FTP", "Password", "");

// Projects: n from 0 to 99.
SettingsKey ProjFile(int n);

// Application "Web Timer".
inline const SettingsKey DateList = {WebTimerApplication, QStringLiteral("Dates"),
                                     QStringLiteral("Date List"), QString()};

} // namespace Keys
