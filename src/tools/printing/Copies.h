// How many copies a person asks for.
#pragma once

#include <QString>

/// The answer as a 16-bit whole number, halves to the even one; 0 where it is no number or out of range.
int CopiesFrom(const QString& answer);
