// What the user's own buttons write.
#pragma once

#include <array>
#include <QString>

/// Read when the program starts, changed by the dialog of a button, kept when the program ends. Only 0 to 29
/// are used.
struct UserButtonTexts {
    std::array<QString, 65> FirstBut;  ///< written before the selection
    std::array<QString, 65> SecondBut; ///< written behind it
    std::array<QString, 65> ButCap;    ///< as read at the start; later the captions are the buttons' own
};
