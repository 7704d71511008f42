// What a finished check tells.
#pragma once

#include <QString>

/// Each count has a leading blank, as numbers turned into text have.
QString SpellReport(int wordsChecked, int wordsReplaced);
