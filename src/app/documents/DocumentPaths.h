// The paths that documents take and leave: the document tabs follow them.
#pragma once

#include <QObject>
#include <QString>

/// One a frame, reached as frame.State<DocumentPaths>(): what opens, saves and closes documents tells it, and
/// knows of no strip.
class DocumentPaths final : public QObject {
    Q_OBJECT

  Q_SIGNALS:
    /// A document came to a path; its tab reads the caption. A path that has a tab keeps the one it has.
    void Taken(const QString& path, const QString& caption);
    /// No document has the path any more, as far as who leaves it knows.
    void Left(const QString& path);
};
