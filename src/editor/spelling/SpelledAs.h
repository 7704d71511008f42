// A correction, written the way the word was written that it replaces.
#pragma once

#include <QString>

/// A word in plain letters as it goes into the text in the place of another (as written there): with entities
/// where that one had some, and with its kind of apostrophe.
QString SpelledAs(const QString& written, const QString& correction);
