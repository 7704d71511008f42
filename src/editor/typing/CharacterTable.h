// The typed letters that go into a document as character entities.
#pragma once

#include <array>
#include <QLatin1String>

struct CharacterRow {
    int Code; ///< of code page 1252
    QLatin1String Entity;
};

/// The accented letters of Latin-1 and the sharp s, in the order in which a typed character is compared with
/// them. Codes 208, 215, 222, 240, 247 and 254 are left out on purpose: they stay as typed.
const std::array<CharacterRow, 58>& CharacterTable();

/// The entity of a character code, empty for one that stays as typed. Upper and lower case are different
/// rows.
QLatin1String EntityOf(int code);
