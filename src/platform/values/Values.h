// Text to value and back, as the settings and input boxes have it.
#pragma once

#include <optional>
#include <QString>

namespace Values {

/// The number at the text's start, blanks skipped: "12pt" is 12, "abc" and "" are 0. Never fails.
double Val(QStringView text);
/// Val, cut to a 32-bit whole number (toward zero; outside the range the nearest bound).
int WholeVal(QStringView text);
/// The whole text as a number; nothing where it is no number. For values that are passed over when wrong.
std::optional<double> ToNumber(QStringView text);
/// "True" and "False" in any case, or a number (any but 0 is true); nothing for any other text.
std::optional<bool> ToBoolean(QStringView text);
/// "True" or "False".
QString FromBoolean(bool value);
/// Cuts blanks (32) at both ends, and nothing else: no tabs, no line ends.
QString Trim(const QString& text);

} // namespace Values
