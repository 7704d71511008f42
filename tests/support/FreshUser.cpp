// The settings and program folder of a user who never ran the program.
#include "support/FreshUser.h"

#include "platform/store/Settings.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

QTemporaryDir& Root() {
    static QTemporaryDir root;
    return root;
}

/// A folder for the settings that none has used before. QSettings remembers by its path what a file could not
/// take: the next user would find it there.
void FreshSettings() {
    static int users = 0;
    const auto path = [] { return Root().filePath(QStringLiteral("config%1").arg(users)); };
    QDir(path()).removeRecursively();
    ++users;
    QDir().mkpath(path());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(path()));
}

/// All that is drawn beside what the menus and dialogs offer, and all that happens after a fault.
void TurnExtrasOff() {
    Settings store;
    for (const SettingsKey& key :
         {Keys::ModifiedMark, Keys::EmptyFrameText, Keys::BlankButtonTips, Keys::UntitledNames,
          Keys::WindowChooser, Keys::StripKeys, Keys::Recovery, Keys::UseZoom, Keys::ShowPartnerTag,
          Keys::ShowCurrentLine, Keys::ShowLineNumbers, Keys::FileDialogFolders, Keys::WideBoxes,
          Keys::AskBeforeOverwrite, Keys::TellChangedFiles, Keys::TellFailedSaves, Keys::KeepCutPages})
        store.WriteFlag(key, false);
}

} // namespace

void FreshUser() {
    FreshSettings();
    for (const char* name : {"data", "runtime", "home", "files"}) {
        const QString path = Root().filePath(QString::fromLatin1(name));
        QDir(path).removeRecursively();
        QDir().mkpath(path);
    }
    QFile::setPermissions(Root().filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const auto set = [](const char* variable, const char* name) {
        qputenv(variable, QFile::encodeName(Root().filePath(QString::fromLatin1(name))));
    };
    set("XDG_DATA_HOME", "data");
    set("XDG_RUNTIME_DIR", "runtime");
    set("TARNWICK_HOME", "home");
    if (qEnvironmentVariableIsSet("TARNWICK_WITHOUT_EXTRAS"))
        TurnExtrasOff();
}

QString TestFolder() {
    return Root().filePath(QStringLiteral("files"));
}
