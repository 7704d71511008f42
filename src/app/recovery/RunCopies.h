// The copies of one run of the program, as they lie in the recovery folder.
#pragma once

#include <memory>
#include <QString>
#include <QStringList>
#include <vector>

class ProcessLock;

/// A run has a name of its own, "run-" and sixteen digits: behind it the files "run-0123456789abcdef-1.copy",
/// and so on, and "run-0123456789abcdef.lock", locked for as long as the object lives. So no program takes
/// the copies of one that runs, and of two that start only one gets those of a run that is over.
class RunCopies {
  public:
    /// A new run. Null where no lock can be had in the recovery folder, which is made.
    static std::shared_ptr<RunCopies> Begin();
    /// The runs that are over, with the copies that they left. They are this program's now; where it leaves
    /// them, too, the next one finds them again.
    static std::vector<std::shared_ptr<RunCopies>> TakeLeft();
    ~RunCopies();
    RunCopies(const RunCopies&) = delete;
    RunCopies& operator=(const RunCopies&) = delete;

    /// The path of one copy more, which is not there yet.
    QString NewFile();
    /// The paths of the copies that are there, in the order in which their names were given.
    QStringList Files() const;

  private:
    RunCopies(QString base, std::unique_ptr<ProcessLock> lock);
    static std::shared_ptr<RunCopies> Take(const QString& base);

    QString base_; ///< the path of each of its files begins with it
    std::unique_ptr<ProcessLock> lock_;
    int last_ = 0;
};
