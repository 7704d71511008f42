// What the tables of forms add to the menus and to the toolbar that the program was designed with.
#pragma once

#include "app/window/KnownForms.h"

/// The forms that bring a menu entry of their own.
inline std::vector<FormRow> FormsWithNewEntry() {
    std::vector<FormRow> forms;
    for (const FormRow& row : KnownForms())
        if (*row.reach.entry.caption)
            forms.push_back(row);
    return forms;
}

/// The forms that bring a toolbar button of their own.
inline std::vector<FormRow> FormsWithNewButton() {
    std::vector<FormRow> forms;
    for (const FormRow& row : KnownForms())
        if (*row.reach.button.toolTip)
            forms.push_back(row);
    return forms;
}
