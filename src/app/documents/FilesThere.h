// Which of some files are there, asked without waiting for slow or dead disks.
#pragma once

#include <memory>
#include <QObject>
#include <QSet>
#include <QString>

/// Each path is looked up on a thread of its own: a network folder that doesn't answer keeps back its own
/// answer and nothing else, at the program's end neither.
class FilesThere final : public QObject {
    Q_OBJECT

  public:
    explicit FilesThere(QObject* parent = nullptr);
    ~FilesThere() override;

    /// Looks a path up; one whose answer is still to come is not looked up again.
    void Ask(const QString& path);

  Q_SIGNALS:
    /// There: a plain file with something in it.
    void Answered(const QString& path, bool there);

  private:
    struct Receiver;
    void Take(const QString& path, bool there);

    /// Outlives this object for as long as a thread may answer.
    std::shared_ptr<Receiver> receiver_;
    QSet<QString> asked_;
};
