// Questions about paths to a disk that may be slow, or never answer.
#pragma once

#include <functional>
#include <memory>
#include <QString>

/// Asks one question about any number of paths, each on a thread of its own: a network folder that doesn't
/// answer keeps back its own answer and nothing else, at the program's end neither. What was asked goes on to
/// its end when this goes; its answer is dropped then.
class PathLookup {
  public:
    /// Is called on several threads at once. It may outlive who asked, so it touches the disk and nothing
    /// else.
    using Question = std::function<bool(const QString& path)>;
    /// Is called on the threads that asked, one at a time, and no more once the lookup is gone.
    using Receiver = std::function<void(const QString& path, bool answer)>;

    PathLookup(Question question, Receiver receiver);
    /// Waits for a receiver that is at work, never for the disk.
    ~PathLookup();
    PathLookup(const PathLookup&) = delete;
    PathLookup& operator=(const PathLookup&) = delete;

    void Ask(const QString& path);

  private:
    struct Asked;

    /// Outlives this object for as long as a thread may answer.
    std::shared_ptr<Asked> asked_;
};
