#include "platform/store/SettingsKeys.h"

#include "platform/store/ProgramFolder.h"
#include "platform/values/Values.h"

namespace {

SettingsKey Indexed(const char* section, const QString& pattern, int n) {
    return {Keys::Tarnwick, QString::fromLatin1(section), pattern.arg(n), QString()};
}

} // namespace

bool SettingsKey::StandardFlag() const {
    return Values::ToBoolean(standard).value_or(false);
}

int SettingsKey::StandardNumber() const {
    return Values::WholeVal(standard);
}

namespace Keys {

SettingsKey LastDir() {
    return {Tarnwick, QStringLiteral("Window Options"), QStringLiteral("LastDir"), ProgramFolder()};
}

SettingsKey StandardDic() {
    return {Tarnwick, QStringLiteral("SpellCheck"), QStringLiteral("StandardDic"),
            InProgramFolder(QStringLiteral("american.vtd"))};
}

SettingsKey CustomDic() {
    return {Tarnwick, QStringLiteral("SpellCheck"), QStringLiteral("CustomDic"),
            InProgramFolder(QStringLiteral("custom.vtc"))};
}

SettingsKey MenuArray(int n) {
    return Indexed("Menu Array Values", QStringLiteral("MenuArray(%1)"), n);
}

SettingsKey FirstBut(int n) {
    return Indexed("User Tools", QStringLiteral("FirstBut(%1)"), n);
}
SettingsKey SecondBut(int n) {
    return Indexed("User Tools", QStringLiteral("SecondBut(%1)"), n);
}
SettingsKey ButCap(int n) {
    return Indexed("User Tools", QStringLiteral("ButCap(%1)"), n);
}

SettingsKey Server(int n) {
    return Indexed("FTP", QStringLiteral("Server(%1)"), n);
}
SettingsKey UserName(int n) {
    return Indexed("FTP", QStringLiteral("UserName(%1)"), n);
}
// The odd tail belongs to the key: existing stores have it.
SettingsKey Dir(int n) {
    return Indexed("FTP", QStringLiteral("Dir(%1, 0 Or 2 Or 4 Or 8 Or 16)"), n);
}

SettingsKey ProjFile(int n) {
    return Indexed("Projects", QStringLiteral("ProjFile%1"), n);
}

} // namespace Keys
