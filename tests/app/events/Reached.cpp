#include "app/events/Reached.h"

#include "editor/frame/Commands.h"
#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"
#include "support/SourceFolder.h"

#include <QApplication>
#include <QDirIterator>
#include <QEvent>
#include <QWidget>

namespace {

/// By the files that describe them. The upload client is a program of its own.
QStringList KnownFormFiles() {
    QStringList names;
    QDirIterator sources(SourceFolder() + QStringLiteral("/src"), {QStringLiteral("*.ui")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (sources.hasNext())
        if (const QString path = sources.next(); !path.contains(QStringLiteral("/src/ftp/")))
            names << QFileInfo(path).completeBaseName();
    names.sort();
    return names;
}

QStringList Missed(const QStringList& known, const QSet<QString>& reached) {
    QStringList missed;
    for (const QString& name : known)
        if (!reached.contains(name))
            missed << name;
    missed.sort();
    return missed;
}

} // namespace

Reached::Reached() {
    qApp->installEventFilter(this);
}

void Reached::Follow(Frame& frame) {
    CommandSet& commands = frame.Commands();
    const CommandSet before = commands;
    for (const QString& name : before.Names()) {
        known_ << name;
        commands.Set(name, [this, name, before] {
            commands_ << name;
            before.Run(name);
        });
    }
}

void Reached::Look(Frame& frame) {
    const ::Forms& loaded = frame.LoadedForms();
    for (int i = 0; i < loaded.Count(); ++i)
        forms_ << loaded.At(i)->objectName();
}

QStringList Reached::MissedCommands() const {
    return Missed(known_.values(), commands_);
}

QStringList Reached::MissedForms() const {
    return Missed(KnownFormFiles(), forms_);
}

bool Reached::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched->isWidgetType())
        forms_ << QString::fromLatin1(watched->metaObject()->className());
    return false;
}
