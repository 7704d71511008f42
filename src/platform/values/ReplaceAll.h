// Replacing in texts of many megabytes.
#pragma once

#include <QString>

/// The text with every find in it replaced, from left to right; what was put in is not searched again. One
/// pass however many there are. An empty find changes nothing.
QString ReplaceAll(const QString& text, const QString& find, const QString& replacement,
                   Qt::CaseSensitivity sensitivity = Qt::CaseSensitive);
