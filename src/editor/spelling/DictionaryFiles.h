// Where the dictionary lies that a check works with.
#pragma once

#include <optional>
#include <QString>
#include <vector>

/// A Hunspell pair, or a plain word list alone.
struct DictionaryFiles {
    QString aff;
    QString dic;
    QString words;
};

/// What may serve, the best first: the pair that a path names, with or without its ".dic" or ".aff", the path
/// itself as a word list, the system's English pair. Only files that can be read and are what they should be:
/// both of a pair are text, and the words begin with their count.
std::vector<DictionaryFiles> FindDictionaries(const QString& standard);
