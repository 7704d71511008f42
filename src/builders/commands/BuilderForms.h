// The forms of this folder: a row makes one known.
#pragma once

#include "editor/frame/FormTable.h"

/// Every tag dialog, and those that the program's end names already.
std::span<const FormRow> BuilderForms();
