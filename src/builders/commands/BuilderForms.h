// The forms of this folder: a row makes one known.
#pragma once

#include "editor/frame/FormTable.h"

/// Every tag dialog, and the windows that they show.
std::span<const FormRow> BuilderForms();
