// The forms of the whole program, gathered from the tables of its folders.
#pragma once

#include "editor/frame/FormTable.h"

/// The forms of the application itself.
std::span<const FormRow> AppForms();
/// Those of all folders.
std::span<const FormRow> KnownForms();
