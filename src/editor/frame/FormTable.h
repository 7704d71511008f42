// One row makes a dialog known: its type, how a person reaches it, and when the program's end takes it down.
#pragma once

#include "editor/frame/Forms.h"
#include "editor/frame/Frame.h"

#include <span>
#include <type_traits>
#include <vector>

/// A menu entry that shows a form. What the menus hold already is told by its name alone; an entry with a
/// caption is new and stands at the end of its menu.
struct FormEntry {
    const char* name = ""; ///< "mnuLink"
    const char* caption = "";
    const char* shortcut = "";
    const char* menu = "mnuTags";
};

/// A toolbar button that shows a form; one with a tool tip is new and stands at the toolbar's end.
struct FormButton {
    const char* key = ""; ///< the command is "tb_<key>", the icon resources/icons/<key>.svg
    const char* toolTip = "";
};

/// The tags whose dialog Edit Tag brings back.
struct EditedTag {
    /// A tag that holds this word, anywhere and in any case: no test looks at the tag's first word.
    const char* word = "";
    /// A tag may hold the words of several forms; the lowest turn has it.
    int turn = 0;
    /// Shows the form, filled from the tag, which is selected in the active document; takes the tag out of
    /// the document where the form's OK is to write it anew.
    void (*show)(Frame&, const QString& tag) = nullptr;
};

/// How a person reaches a form, and when it goes.
struct FormReach {
    /// Behind all that have a turn of their own at the program's end; or left alone there.
    static constexpr int Last = 1000;
    static constexpr int Never = 0;

    FormEntry entry = {};
    FormButton button = {};
    /// What entry and button do; for a form that takes nothing but the frame, FormOf makes it.
    void (*show)(Frame&) = nullptr;
    EditedTag edits = {};
    /// Its turn at the program's end.
    int unload = Last;
};

struct FormRow {
    const char* name;
    FormReach reach = {};
};

/// The row of a form, which names itself.
template <typename T> FormRow FormOf(FormReach reach) {
    if constexpr (std::is_constructible_v<T, Frame&>)
        if (!reach.show)
            reach.show = [](Frame& frame) { frame.LoadedForms().Show<T>(frame); };
    return {T::staticMetaObject.className(), reach};
}

/// Fills the commands that do nothing but show a form: one under each of its entries.
void FillFormCommands(Frame& frame, std::span<const FormRow> forms);

/// The row of the form that edits a tag, or null.
const FormRow* FormThatEdits(std::span<const FormRow> forms, const QString& tag);

/// The names of the forms that the program's end unloads, by their turns.
std::vector<const char*> FormsToUnload(std::span<const FormRow> forms);
