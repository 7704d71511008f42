// The forms of this folder: a row makes one known.
#pragma once

#include "editor/frame/FormTable.h"

/// The dialogs of the site tools.
std::span<const FormRow> ToolForms();
