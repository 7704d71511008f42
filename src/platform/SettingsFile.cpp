// One file of the settings store, which stays whole on a disk that is full.
#include "platform/SettingsFile.h"

#include "platform/SecondName.h"

#include <QEvent>
#include <QFile>

namespace {

/// Each value has a line of its own, and each line its end. -1 for a file that was cut off, or can't be read.
qsizetype CountValues(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    qsizetype values = 0;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        if (!line.endsWith('\n'))
            return -1;
        values += !line.startsWith('[') && line.contains('=');
    }
    return values;
}

} // namespace

void SettingsFile::TidyUp(const QString& path) {
    for (SecondName& old : SecondName::LeftFor(path))
        if (old.IsReplaced() && CountValues(path) < CountValues(old.Path()))
            old.PutBack();
}

bool SettingsFile::Bring() {
    SecondName old(fileName());
    sync();
    if (old.IsReplaced() && !IsWhole()) {
        old.PutBack();
        return false;
    }
    return status() != AccessError;
}

bool SettingsFile::IsWhole() const {
    return CountValues(fileName()) >= allKeys().size();
}

bool SettingsFile::event(QEvent* event) {
    if (event->type() != QEvent::UpdateRequest)
        return QSettings::event(event);
    Bring();
    return true;
}
