// A system whose file calls go wrong.
#pragma once

#include <iosfwd>

/// What becomes of one call, or of all from one on.
enum class FaultKind {
    None,
    Fails,          ///< with an error of the disk
    FailsAsMissing, ///< as if there were no such file
    FailsForGood,   ///< and so do all calls behind it
    ComesShort,     ///< does half of what it was asked for, or gives half of the answer
    Dies,           ///< ends the process before it did anything
    DiesHalfway,    ///< ends the process after half of a write, or after another call was done
};

struct Fault {
    FaultKind kind = FaultKind::None;
    int at = 0; ///< which call, from 1 on
};

/// Puts calls into the table that go wrong as told. Nothing is flushed in earnest: a process that dies loses
/// nothing that it wrote.
void GoWrong(Fault fault);
/// Puts the system's own calls back.
void GoWell();

/// How many calls were made since, in whichever process: set to 0 by ForgetCalls().
int CallsMade();
void ForgetCalls();

std::ostream& operator<<(std::ostream& out, const Fault& fault);
