// The forms of this folder: a row makes one known.
#pragma once

#include "editor/frame/FormTable.h"

/// The style sheet builder and the layers.
std::span<const FormRow> StyleForms();
