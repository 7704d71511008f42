// The forms of the whole program, gathered from the tables of its folders.
#pragma once

#include "editor/frame/FormTable.h"

/// A form that this version lacks and that something asks for: whoever brings it fills a command of its name.
inline constexpr const char* WebTimerForm = "frmTime";

/// The forms of the application itself.
std::span<const FormRow> AppForms();
/// Those of all folders.
std::span<const FormRow> KnownForms();
