// The warnings of the libraries: each is something that the program did wrong.
#pragma once

#include <QStringList>

/// Collects them while it lives. Those that tell what a display without a desktop has not are left out.
class Warnings {
  public:
    Warnings();
    ~Warnings();
    Warnings(const Warnings&) = delete;
    Warnings& operator=(const Warnings&) = delete;

    /// Those that came since the last call, each once.
    static QStringList Take();
};
