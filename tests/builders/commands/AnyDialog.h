// What AnyDialogTest has to know of a dialog to hold it to the rules that all dialogs share.
#pragma once

#include <vector>

class Frame;

struct DialogButton {
    const char16_t* name;
    const char16_t* caption;
};

/// What a field holds at first; "True" is a box that is on.
struct DialogPreset {
    const char16_t* field;
    const char16_t* value;
};

/// A form, the entries that show it (or else what does), and what its OK writes with LowerCaseTags on
/// when one of its fields holds "MiXed" and one of its buttons was pressed.
struct DialogCase {
    const char16_t* form;
    const char16_t* page = u""; ///< of a form that has tabs: the one that show turns to
    std::vector<const char16_t*> entries = {};
    void (*show)(Frame&) = nullptr;
    const char16_t* field;
    const char16_t* open;
    const char16_t* close = u"";
    const char16_t* press = u"";
    DialogButton ok = {u"cmdOK", u"OK"};
    DialogButton cancel = {u"cmdCancel", u"Cancel"};
    bool stays = false;         ///< OK leaves it open
    bool tellsTag = false;      ///< OK hands its tag on
    bool replaces = false;      ///< OK deletes what is selected
    bool needsDocument = false; ///< without one OK is disabled
    std::vector<DialogPreset> presets = {};
    const char16_t* sharedKeys = u""; ///< mnemonics that two of its captions have always had
};

/// Makes a dialog one of those that AnyDialogTest goes through: a constant beside the dialog's own tests.
struct AnyDialog {
    explicit AnyDialog(const DialogCase& dialog) { All().push_back(dialog); }
    static std::vector<DialogCase>& All() {
        static std::vector<DialogCase> all;
        return all;
    }
};
