// Who asked: the window that owns a box, and that has the keys again when the box is gone.
#pragma once

#include <QPointer>
#include <QWidget>

/// The window that asked last. Until the desktop has given the keys to some window again it counts as the one
/// that has them: a command that asks twice in a row is at work in it all the while.
class LastAsker {
  public:
    LastAsker();
    /// The window that has the keys, or is about to get them back. Null where the program has none.
    QWidget* ActiveWindow() const;
    void Remember(QWidget* window) { window_ = window; }

  private:
    QPointer<QWidget> window_;
    QObject context_;
};

/// Lives for as long as a box is up.
class Asker {
  public:
    /// The active window asks if it is the owner or a dialog of its, at any depth; else the owner itself.
    Asker(QWidget* owner, LastAsker& last);
    /// Gives the keys back.
    ~Asker();
    Asker(const Asker&) = delete;
    Asker& operator=(const Asker&) = delete;

    QWidget* Window() const { return window_; }

  private:
    QPointer<QWidget> window_;
    LastAsker& last_;
};
