// Files that come from outside while the program runs.
#pragma once

#include <QObject>
#include <QStringList>

class Frame;

/// What another copy of the program, or a drop, brings is opened file by file, pending events between. While
/// a modal dialog is up the files wait for its end.
class Arrivals : public QObject {
    Q_OBJECT

  public:
    explicit Arrivals(Frame& frame, QObject* parent = nullptr);

    /// Opens each path in turn, behind those that wait.
    void Open(const QStringList& paths);
    /// Opens what waited for the end of a modal dialog, once the event at hand is over.
    void Resume();
    /// Nothing is opened any more: the frame goes.
    void Stop() { stopped_ = true; }

  private:
    Frame& frame_;
    QStringList waiting_;
    bool opening_ = false;
    bool stopped_ = false;
};
