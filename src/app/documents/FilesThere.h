// Which of some files are there, asked without waiting for slow or dead disks.
#pragma once

#include "platform/store/PathLookup.h"

#include <QObject>
#include <QSet>
#include <QString>

class FilesThere final : public QObject {
    Q_OBJECT

  public:
    explicit FilesThere(QObject* parent = nullptr);

    /// Looks a path up; one whose answer is still to come is not looked up again.
    void Ask(const QString& path);

  Q_SIGNALS:
    /// There: a plain file with something in it.
    void Answered(const QString& path, bool there);

  private:
    void Take(const QString& path, bool there);

    PathLookup lookup_;
    QSet<QString> asked_;
};
