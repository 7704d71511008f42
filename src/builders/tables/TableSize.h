// What the size fields of the Table dialog mean, whatever stands in them.
#pragma once

#include <optional>
#include <QStringView>

/// The most rows or columns that a field can ask for.
constexpr int MostOfATable = 32767;

/// The nearest whole number, halves to the even one. Nothing where the text is no number, or one beyond
/// MostOfATable on either side of 0.
std::optional<int> TableSize(QStringView text);

/// How many rows or columns are written: one for each whole number from 0 on that is below the number at the
/// text's start. None beyond MostOfATable.
int WrittenCount(QStringView text);

/// A field with such a text is set to "1".
bool IsBelowOne(QStringView text);
