// What the client shows to and asks of a person, in a window or in a terminal.
#pragma once

#include <QString>

struct Certificate;

struct Progress {
    QString file; ///< empty when no transfer is under way
    qint64 done = 0;
    qint64 total = 0; ///< in bytes; 0 where it is not known
};

enum class Echo { Shown, Hidden };

class Screen {
  public:
    virtual ~Screen() = default;
    virtual void Line(const QString& text) = 0;
    /// A hash mark; the line behind them begins anew.
    virtual void Mark() = 0;
    virtual void Show(const Progress& progress) = 0;
    /// Whether a server is trusted whose certificate doesn't check out.
    virtual bool Trusts(const Certificate& certificate) = 0;
    /// An answer typed, empty where nobody can be asked.
    virtual QString Ask(const QString& prompt, Echo echo) = 0;
};
